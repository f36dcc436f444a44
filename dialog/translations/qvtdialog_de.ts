<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>ChainEditor</name>
    <message>
        <source>&apos;%1&apos; was not taken: %2</source>
        <translation>„%1“ wurde nicht übernommen: %2</translation>
    </message>
</context>
<context>
    <name>library</name>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Stub</source>
        <translation>Stub</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulator</translation>
    </message>
    <message>
        <source>Virtual platform</source>
        <translation>Virtuelle Plattform</translation>
    </message>
    <message>
        <source>Hardware simulator</source>
        <translation>Hardware-Simulator</translation>
    </message>
    <message>
        <source>Debug device</source>
        <translation>Debug-Baustein</translation>
    </message>
    <message>
        <source>Address map</source>
        <translation>Adressabbild</translation>
    </message>
    <message>
        <source>Memories</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>JTAG chain</source>
        <translation>JTAG-Kette</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Instance name of the processor in the design.</source>
        <translation>Instanzname des Prozessors im Design.</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>Kind of processor.</source>
        <translation>Art des Prozessors.</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Core of the processor; the address map and the memories of a PowerPC depend on it.</source>
        <translation>Kern des Prozessors; das Adressabbild und die Speicher eines PowerPC hängen davon ab.</translation>
    </message>
    <message>
        <source>as in the design</source>
        <translation>wie im Design</translation>
    </message>
    <message>
        <source>Processor number</source>
        <translation>Prozessornummer</translation>
    </message>
    <message>
        <source>Number of the processor on its debug link.</source>
        <translation>Nummer des Prozessors an seinem Debug-Anschluss.</translation>
    </message>
    <message>
        <source>1, or as in the design</source>
        <translation>1, oder wie im Design</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>The connections that the processor admits.</source>
        <translation>Die Verbindungen, die der Prozessor zulässt.</translation>
    </message>
    <message>
        <source>FPU</source>
        <translation>FPU</translation>
    </message>
    <message>
        <source>Floating-point unit of a PowerPC: single or double precision.</source>
        <translation>Gleitkommaeinheit eines PowerPC: einfache oder doppelte Genauigkeit.</translation>
    </message>
    <message>
        <source>What the debugger connects to: simulator, hardware, stub or virtual-platform.</source>
        <translation>Womit sich der Debugger verbindet: simulator, hardware, stub oder virtual-platform.</translation>
    </message>
    <message>
        <source>Stub link</source>
        <translation>Anbindung des Stubs</translation>
    </message>
    <message>
        <source>How the software stub is reached; setting it selects the connection &apos;stub&apos;.</source>
        <translation>Wie der Software-Stub erreicht wird; wer das einstellt, wählt damit die Verbindung „stub“.</translation>
    </message>
    <message>
        <source>Stub serial device</source>
        <translation>Serielle Schnittstelle des Stubs</translation>
    </message>
    <message>
        <source>Serial device of this computer that the stub is connected to.</source>
        <translation>Serielle Schnittstelle dieses Rechners, an der der Stub angeschlossen ist.</translation>
    </message>
    <message>
        <source>Stub baud rate</source>
        <translation>Baudrate des Stubs</translation>
    </message>
    <message>
        <source>Rate of the serial line; 0 for none.</source>
        <translation>Geschwindigkeit der seriellen Leitung; 0 für keine.</translation>
    </message>
    <message>
        <source>baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>Stub time-out</source>
        <translation>Zeitlimit des Stubs</translation>
    </message>
    <message>
        <source>Handed to the debugger as it is.</source>
        <translation>Wird unverändert an den Debugger weitergegeben.</translation>
    </message>
    <message>
        <source>Simulator memory</source>
        <translation>Speicher des Simulators</translation>
    </message>
    <message>
        <source>Memory of the soft-processor simulator.</source>
        <translation>Speicher des Simulators eines Softprozessors.</translation>
    </message>
    <message>
        <source>Simulator configuration file</source>
        <translation>Konfigurationsdatei des Simulators</translation>
    </message>
    <message>
        <source>Configuration file of the PowerPC simulator; it has precedence over host and port.</source>
        <translation>Konfigurationsdatei des PowerPC-Simulators; sie hat Vorrang vor Host und Port.</translation>
    </message>
    <message>
        <source>Simulator host</source>
        <translation>Host des Simulators</translation>
    </message>
    <message>
        <source>Host on which the simulator or the virtual platform runs.</source>
        <translation>Host, auf dem der Simulator oder die virtuelle Plattform läuft.</translation>
    </message>
    <message>
        <source>Simulator port</source>
        <translation>Port des Simulators</translation>
    </message>
    <message>
        <source>Port of the simulator or the virtual platform.</source>
        <translation>Port des Simulators oder der virtuellen Plattform.</translation>
    </message>
    <message>
        <source>Accuracy configured</source>
        <translation>Genauigkeit eingestellt</translation>
    </message>
    <message>
        <source>The accuracy of the virtual platform is set; without an accuracy the text is not read back.</source>
        <translation>Die Genauigkeit der virtuellen Plattform ist eingestellt; ohne Genauigkeit lässt sich der Text nicht wieder einlesen.</translation>
    </message>
    <message>
        <source>Cycle approximate</source>
        <translation>Ungefähre Takte</translation>
    </message>
    <message>
        <source>The virtual platform counts cycles approximately.</source>
        <translation>Die virtuelle Plattform zählt die Takte ungefähr.</translation>
    </message>
    <message>
        <source>The hardware is run by a hardware-description-language simulator.</source>
        <translation>Die Hardware läuft in einem Simulator für Hardware-Beschreibungssprachen.</translation>
    </message>
    <message>
        <source>Hardware simulator host</source>
        <translation>Host des Hardware-Simulators</translation>
    </message>
    <message>
        <source>Host on which the hardware simulator runs.</source>
        <translation>Host, auf dem der Hardware-Simulator läuft.</translation>
    </message>
    <message>
        <source>Hardware simulator port</source>
        <translation>Port des Hardware-Simulators</translation>
    </message>
    <message>
        <source>Port of the hardware simulator.</source>
        <translation>Port des Hardware-Simulators.</translation>
    </message>
    <message>
        <source>Number of the device in the JTAG chain that holds the processor; 0 for none.</source>
        <translation>Nummer des Bausteins der JTAG-Kette, in dem der Prozessor sitzt; 0 für keinen.</translation>
    </message>
    <message>
        <source>BSCAN register</source>
        <translation>BSCAN-Register</translation>
    </message>
    <message>
        <source>JTAG user register that the debug module uses.</source>
        <translation>JTAG-Benutzerregister, das das Debug-Modul verwendet.</translation>
    </message>
    <message>
        <source>UART</source>
        <translation>UART</translation>
    </message>
    <message>
        <source>The UART of the debug module is used.</source>
        <translation>Der UART des Debug-Moduls wird verwendet.</translation>
    </message>
    <message>
        <source>Processor version</source>
        <translation>Prozessorversion</translation>
    </message>
    <message>
        <source>Version of the processor, kept for programs.</source>
        <translation>Version des Prozessors, für Programme aufbewahrt.</translation>
    </message>
    <message>
        <source>Debug module version</source>
        <translation>Version des Debug-Moduls</translation>
    </message>
    <message>
        <source>Version of the debug module, kept for programs.</source>
        <translation>Version des Debug-Moduls, für Programme aufbewahrt.</translation>
    </message>
    <message>
        <source>Number of processors</source>
        <translation>Anzahl der Prozessoren</translation>
    </message>
    <message>
        <source>Number of processors, kept for programs.</source>
        <translation>Anzahl der Prozessoren, für Programme aufbewahrt.</translation>
    </message>
    <message>
        <source>Debug address map</source>
        <translation>Debug-Adressabbild</translation>
    </message>
    <message>
        <source>Base of the debug address map: that of the instruction cache. Unset, all bases are unset.</source>
        <translation>Basis des Debug-Adressabbilds: die des Befehlscaches. Ohne sie ist keine Basis gesetzt.</translation>
    </message>
    <message>
        <source>Instruction cache</source>
        <translation>Befehlscache</translation>
    </message>
    <message>
        <source>Base of the instruction cache and of the debug address map.</source>
        <translation>Basis des Befehlscaches und des Debug-Adressabbilds.</translation>
    </message>
    <message>
        <source>Instruction tags</source>
        <translation>Befehlstags</translation>
    </message>
    <message>
        <source>Base of the instruction tags.</source>
        <translation>Basis der Tags des Befehlscaches.</translation>
    </message>
    <message>
        <source>Data cache</source>
        <translation>Datencache</translation>
    </message>
    <message>
        <source>Base of the data cache.</source>
        <translation>Basis des Datencaches.</translation>
    </message>
    <message>
        <source>Data tags</source>
        <translation>Datentags</translation>
    </message>
    <message>
        <source>Base of the data tags.</source>
        <translation>Basis der Tags des Datencaches.</translation>
    </message>
    <message>
        <source>TLB</source>
        <translation>TLB</translation>
    </message>
    <message>
        <source>Base of the translation look-aside buffer.</source>
        <translation>Basis des Translation Look-aside Buffers.</translation>
    </message>
    <message>
        <source>DCR</source>
        <translation>DCR</translation>
    </message>
    <message>
        <source>Base of the device control registers.</source>
        <translation>Basis der Gerätesteuerregister (DCR).</translation>
    </message>
    <message>
        <source>On-chip instruction memory</source>
        <translation>On-Chip-Befehlsspeicher</translation>
    </message>
    <message>
        <source>Base of the on-chip instruction memory of a ppc405.</source>
        <translation>Basis des On-Chip-Befehlsspeichers eines ppc405.</translation>
    </message>
    <message>
        <source>On-chip memory size</source>
        <translation>Größe des On-Chip-Speichers</translation>
    </message>
    <message>
        <source>Size of the on-chip instruction memory.</source>
        <translation>Größe des On-Chip-Befehlsspeichers.</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>On-chip memory DCR base</source>
        <translation>DCR-Basis des On-Chip-Speichers</translation>
    </message>
    <message>
        <source>DCR base of the on-chip instruction memory.</source>
        <translation>DCR-Basis des On-Chip-Befehlsspeichers.</translation>
    </message>
    <message>
        <source>Read-only memory</source>
        <translation>Festwertspeicher</translation>
    </message>
    <message>
        <source>Base of the read-only memory.</source>
        <translation>Basis des Festwertspeichers.</translation>
    </message>
    <message>
        <source>Read-only memory size</source>
        <translation>Größe des Festwertspeichers</translation>
    </message>
    <message>
        <source>Size of the read-only memory.</source>
        <translation>Größe des Festwertspeichers (ROM).</translation>
    </message>
    <message>
        <source>Type of the download cable; a new type comes with its own port and frequency.</source>
        <translation>Typ des Download-Kabels; ein neuer Typ bringt seinen eigenen Anschluss und seine eigene Frequenz mit.</translation>
    </message>
    <message>
        <source>Cable frequency</source>
        <translation>Kabelfrequenz</translation>
    </message>
    <message>
        <source>JTAG clock of the cable.</source>
        <translation>JTAG-Takt des Kabels.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>that of the cable</source>
        <translation>die des Kabels</translation>
    </message>
    <message>
        <source>Cable port</source>
        <translation>Kabelanschluss</translation>
    </message>
    <message>
        <source>Where the cable is plugged in.</source>
        <translation>Wo das Kabel eingesteckt ist.</translation>
    </message>
    <message>
        <source>Cable serial number</source>
        <translation>Seriennummer des Kabels</translation>
    </message>
    <message>
        <source>Electronic serial number that selects one of several cables.</source>
        <translation>Elektronische Seriennummer, die eines von mehreren Kabeln auswählt.</translation>
    </message>
    <message>
        <source>SVF file</source>
        <translation>SVF-Datei</translation>
    </message>
    <message>
        <source>Output file of a cable that writes one.</source>
        <translation>Ausgabedatei eines Kabels, das eine schreibt.</translation>
    </message>
    <message>
        <source>SVF file named</source>
        <translation>SVF-Datei benannt</translation>
    </message>
    <message>
        <source>A name was given for the SVF file.</source>
        <translation>Für die SVF-Datei wurde ein Name angegeben.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Module of a plug-in cable.</source>
        <translation>Modul eines Plug-in-Kabels.</translation>
    </message>
    <message>
        <source>Module arguments</source>
        <translation>Modulargumente</translation>
    </message>
    <message>
        <source>Arguments of the module, separated by &apos;;&apos;.</source>
        <translation>Argumente des Moduls, getrennt durch „;“.</translation>
    </message>
    <message>
        <source>Cable URL</source>
        <translation>URL des Kabels</translation>
    </message>
    <message>
        <source>Address of a cable on the network.</source>
        <translation>Adresse eines Kabels im Netz.</translation>
    </message>
    <message>
        <source>Own JTAG pins</source>
        <translation>Eigene JTAG-Anschlüsse</translation>
    </message>
    <message>
        <source>The processor is reached through its own JTAG pins; such a command is not read back.</source>
        <translation>Der Prozessor wird über seine eigenen JTAG-Anschlüsse erreicht; ein solcher Befehl lässt sich nicht wieder einlesen.</translation>
    </message>
    <message>
        <source>The devices of the JTAG chain, in their order.</source>
        <translation>Die Bausteine der JTAG-Kette, in ihrer Reihenfolge.</translation>
    </message>
    <message>
        <source>a command for this connection does not tell it</source>
        <translation>ein Befehl für diese Verbindung enthält es nicht</translation>
    </message>
    <message>
        <source>a command for this target and connection does not take it</source>
        <translation>ein Befehl für dieses Ziel und diese Verbindung nimmt es nicht an</translation>
    </message>
    <message>
        <source>it has its default</source>
        <translation>es hat seinen Vorgabewert</translation>
    </message>
    <message>
        <source>it is for a PowerPC with the connection &apos;hardware&apos;</source>
        <translation>nur für einen PowerPC mit der Verbindung „hardware“</translation>
    </message>
    <message>
        <source>it is for a cable of the type &apos;zarvek_plugin&apos;</source>
        <translation>nur für ein Kabel vom Typ „zarvek_plugin“</translation>
    </message>
    <message>
        <source>it is for a ppc405 with the connection &apos;hardware&apos;</source>
        <translation>nur für einen ppc405 mit der Verbindung „hardware“</translation>
    </message>
    <message>
        <source>it is for the connection &apos;hardware&apos;</source>
        <translation>nur für die Verbindung „hardware“</translation>
    </message>
    <message>
        <source>it is for the connection &apos;stub&apos; over a serial line</source>
        <translation>nur für die Verbindung „stub“ über eine serielle Leitung</translation>
    </message>
    <message>
        <source>it is for the connection &apos;virtual-platform&apos;</source>
        <translation>nur für die Verbindung „virtual-platform“</translation>
    </message>
    <message>
        <source>it is for the connections &apos;hardware&apos; and &apos;stub&apos;</source>
        <translation>nur für die Verbindungen „hardware“ und „stub“</translation>
    </message>
    <message>
        <source>it is for the simulator of a PowerPC</source>
        <translation>nur für den Simulator eines PowerPC</translation>
    </message>
    <message>
        <source>it is for the simulator of a PowerPC and for the virtual platform</source>
        <translation>nur für den Simulator eines PowerPC und für die virtuelle Plattform</translation>
    </message>
    <message>
        <source>it is for the simulator of a soft processor</source>
        <translation>nur für den Simulator eines Softprozessors</translation>
    </message>
    <message>
        <source>it is never written: &apos;-sim&apos; is not written</source>
        <translation>wird nie geschrieben: „-sim“ wird nicht geschrieben</translation>
    </message>
    <message>
        <source>it is never written: &apos;ov sim&apos; is written alone</source>
        <translation>wird nie geschrieben: „ov sim“ wird allein geschrieben</translation>
    </message>
    <message>
        <source>it is never written: kept for programs</source>
        <translation>wird nie geschrieben: für Programme aufbewahrt</translation>
    </message>
    <message>
        <source>it is never written: no type is written with it</source>
        <translation>wird nie geschrieben: kein Typ wird damit geschrieben</translation>
    </message>
    <message>
        <source>it is never written: the writer has no text for it</source>
        <translation>wird nie geschrieben: beim Schreiben gibt es dafür keinen Text</translation>
    </message>
    <message>
        <source>it is written &apos;USER1&apos; only; &apos;USER3&apos; and &apos;USER4&apos; are lost</source>
        <translation>nur „USER1“ wird geschrieben; „USER3“ und „USER4“ gehen verloren</translation>
    </message>
    <message>
        <source>it is written for some types, unless &apos;esn&apos; is set</source>
        <translation>wird für manche Typen geschrieben, außer wenn „esn“ gesetzt ist</translation>
    </message>
    <message>
        <source>it is written for some types, when set; one &apos;modulearg&apos; for each</source>
        <translation>wird für manche Typen geschrieben, wenn gesetzt; ein „modulearg“ für jedes</translation>
    </message>
    <message>
        <source>it is written hardware connection, start set and size not 0</source>
        <translation>wird bei der Verbindung „hardware“ geschrieben, wenn der Anfang gesetzt und die Größe nicht 0 ist</translation>
    </message>
    <message>
        <source>it is written ppc405, &apos;isocmStartAdr&apos; set</source>
        <translation>wird für einen ppc405 geschrieben, wenn „isocmStartAdr“ gesetzt ist</translation>
    </message>
    <message>
        <source>it is written unless the connection is simulator or stub</source>
        <translation>wird geschrieben, außer bei den Verbindungen „simulator“ und „stub“</translation>
    </message>
    <message>
        <source>it is written when a host is set and &apos;-icf&apos; is not</source>
        <translation>wird geschrieben, wenn ein Host gesetzt ist und „-icf“ nicht</translation>
    </message>
    <message>
        <source>only a PowerPC has one</source>
        <translation>das hat nur ein PowerPC</translation>
    </message>
    <message>
        <source>other settings tell it</source>
        <translation>ergibt sich aus anderen Einstellungen</translation>
    </message>
    <message>
        <source>the cable has no such setting</source>
        <translation>das Kabel hat keine solche Einstellung</translation>
    </message>
    <message>
        <source>the connection uses no cable</source>
        <translation>die Verbindung verwendet kein Kabel</translation>
    </message>
    <message>
        <source>the design tells it</source>
        <translation>vom Design vorgegeben</translation>
    </message>
    <message>
        <source>the hardware simulator is not enabled</source>
        <translation>der Hardware-Simulator ist nicht eingeschaltet</translation>
    </message>
    <message>
        <source>the processor has no stub connection</source>
        <translation>der Prozessor hat keine Stub-Verbindung</translation>
    </message>
    <message>
        <source>incomplete command</source>
        <translation>unvollständiger Befehl</translation>
    </message>
    <message>
        <source>The text ends before it is a connect command. A command has a head, a target and, for most targets, a connection keyword: &apos;connect ov odm&apos;. Only options may be missing.</source>
        <translation>Der Text endet, bevor er ein Verbindungsbefehl ist. Ein Befehl hat einen Kopf, ein Ziel und bei den meisten Zielen ein Schlüsselwort für die Verbindung: „connect ov odm“. Fehlen dürfen nur Optionen.</translation>
    </message>
    <message>
        <source>Add the word that is missing; the message lists those that can follow.</source>
        <translation>Das fehlende Wort ergänzen; die Meldung nennt die Wörter, die folgen können.</translation>
    </message>
    <message>
        <source>no such head</source>
        <translation>kein solcher Kopf</translation>
    </message>
    <message>
        <source>A command begins with &apos;connect&apos; or &apos;vpconnect&apos;; the first word is neither. The text is refused, and nothing behind this word is read.</source>
        <translation>Ein Befehl beginnt mit „connect“ oder „vpconnect“; das erste Wort ist keines von beiden. Der Text wird abgelehnt, und nichts hinter diesem Wort wird gelesen.</translation>
    </message>
    <message>
        <source>Correct the first word. If the text is not a connect command at all, take the command from elsewhere: &apos;qvtcfg command PROC&apos; prints the one for the settings of a processor.</source>
        <translation>Das erste Wort berichtigen. Ist der Text gar kein Verbindungsbefehl, dann den Befehl von anderswo nehmen: „qvtcfg command PROC“ gibt den für die Einstellungen eines Prozessors aus.</translation>
    </message>
    <message>
        <source>no such target</source>
        <translation>kein solches Ziel</translation>
    </message>
    <message>
        <source>The word after the head names the kind of processor, such as &apos;ov&apos; for a soft processor or &apos;ppc&apos; for a PowerPC. This one is not known, or does not belong to this head: after &apos;vpconnect&apos; only &apos;ov&apos; can stand.</source>
        <translation>Das Wort nach dem Kopf nennt die Art des Prozessors, etwa „ov“ für einen Softprozessor oder „ppc“ für einen PowerPC. Dieses ist unbekannt oder gehört nicht zu diesem Kopf: Nach „vpconnect“ kann nur „ov“ stehen.</translation>
    </message>
    <message>
        <source>Write one of the targets that the message lists.</source>
        <translation>Eines der Ziele schreiben, die die Meldung nennt.</translation>
    </message>
    <message>
        <source>no such connection</source>
        <translation>keine solche Verbindung</translation>
    </message>
    <message>
        <source>The word after the target tells how the processor is reached, such as &apos;odm&apos;, &apos;hw&apos;, &apos;stub&apos; or &apos;sim&apos;. Each target has its own: a soft processor (&apos;ov&apos;) is reached by &apos;odm&apos;, all others by &apos;hw&apos;.</source>
        <translation>Das Wort nach dem Ziel sagt, wie der Prozessor erreicht wird, etwa „odm“, „hw“, „stub“ oder „sim“. Jedes Ziel hat seine eigenen: Ein Softprozessor („ov“) wird mit „odm“ erreicht, alle anderen mit „hw“.</translation>
    </message>
    <message>
        <source>Write one of the connection keywords that the message lists for this target.</source>
        <translation>Eines der Schlüsselwörter schreiben, die die Meldung für dieses Ziel nennt.</translation>
    </message>
    <message>
        <source>no such option</source>
        <translation>keine solche Option</translation>
    </message>
    <message>
        <source>A word that begins with a dash is an option, and there is none of this name. The text is refused.</source>
        <translation>Ein Wort, das mit einem Strich beginnt, ist eine Option, und eine mit diesem Namen gibt es nicht. Der Text wird abgelehnt.</translation>
    </message>
    <message>
        <source>Correct the name. If it is meant as a value: a value cannot begin with a dash, unless a digit follows.</source>
        <translation>Den Namen berichtigen. Ist es als Wert gemeint: Ein Wert kann nicht mit einem Strich beginnen, außer wenn eine Ziffer folgt.</translation>
    </message>
    <message>
        <source>option in the wrong place</source>
        <translation>Option an der falschen Stelle</translation>
    </message>
    <message>
        <source>The option exists, but not for this target, this connection, or behind the option &apos;-sim&apos;, which takes all options up to the end of the text.</source>
        <translation>Die Option gibt es, aber nicht für dieses Ziel, für diese Verbindung oder hinter der Option „-sim“, die alle Optionen bis zum Ende des Textes an sich nimmt.</translation>
    </message>
    <message>
        <source>Remove the option, or choose the target and the connection that it is for. An option for the processor stands in front of &apos;-sim&apos;.</source>
        <translation>Die Option entfernen oder das Ziel und die Verbindung wählen, für die sie da ist. Eine Option für den Prozessor steht vor „-sim“.</translation>
    </message>
    <message>
        <source>no such keyword</source>
        <translation>kein solches Schlüsselwort</translation>
    </message>
    <message>
        <source>An option such as &apos;-cable&apos; or &apos;-debugdevice&apos; is followed by pairs of a keyword and a value. This word stands where a keyword is expected, and no option has such a keyword. A value of two words, or a missing value, also leads to this.</source>
        <translation>Auf eine Option wie „-cable“ oder „-debugdevice“ folgen Paare aus Schlüsselwort und Wert. Dieses Wort steht dort, wo ein Schlüsselwort erwartet wird, und keine Option hat ein solches. Auch ein Wert aus zwei Wörtern oder ein fehlender Wert führt dazu.</translation>
    </message>
    <message>
        <source>Correct the keyword, or remove it together with its value.</source>
        <translation>Das Schlüsselwort berichtigen oder zusammen mit seinem Wert entfernen.</translation>
    </message>
    <message>
        <source>keyword of another option</source>
        <translation>Schlüsselwort einer anderen Option</translation>
    </message>
    <message>
        <source>The keyword exists, but belongs to another option. The message names that option.</source>
        <translation>Das Schlüsselwort gibt es, aber es gehört zu einer anderen Option. Die Meldung nennt sie.</translation>
    </message>
    <message>
        <source>Move the keyword and its value behind the option that it belongs to, or put that option in front of it.</source>
        <translation>Das Schlüsselwort und seinen Wert hinter die Option verschieben, zu der es gehört, oder diese Option davorsetzen.</translation>
    </message>
    <message>
        <source>value that is not one of the accepted words</source>
        <translation>Wert, der keines der zulässigen Wörter ist</translation>
    </message>
    <message>
        <source>Some options and keywords take one of a few words. This is none of them, and the text is refused.</source>
        <translation>Manche Optionen und Schlüsselwörter nehmen eines von wenigen Wörtern. Dieses ist keines davon, und der Text wird abgelehnt.</translation>
    </message>
    <message>
        <source>Write one of the words that the message lists.</source>
        <translation>Eines der Wörter schreiben, die die Meldung nennt.</translation>
    </message>
    <message>
        <source>missing value</source>
        <translation>fehlender Wert</translation>
    </message>
    <message>
        <source>A keyword or an option that needs a value has none: the text ends, or an option follows. A word that begins with a dash is a value only if a digit follows the dash.</source>
        <translation>Ein Schlüsselwort oder eine Option, die einen Wert braucht, hat keinen: Der Text endet, oder eine Option folgt. Ein Wort, das mit einem Strich beginnt, ist nur dann ein Wert, wenn auf den Strich eine Ziffer folgt.</translation>
    </message>
    <message>
        <source>Add the value, or remove the keyword.</source>
        <translation>Den Wert ergänzen oder das Schlüsselwort entfernen.</translation>
    </message>
    <message>
        <source>word that belongs to no option</source>
        <translation>Wort, das zu keiner Option gehört</translation>
    </message>
    <message>
        <source>An option is expected here, and an option begins with a dash. Often the dash is missing, or the option in front takes fewer values than are given.</source>
        <translation>Hier wird eine Option erwartet, und eine Option beginnt mit einem Strich. Oft fehlt der Strich, oder die Option davor nimmt weniger Werte, als angegeben sind.</translation>
    </message>
    <message>
        <source>Put the dash in front if the word is an option; else remove it.</source>
        <translation>Den Strich davorsetzen, wenn das Wort eine Option ist; sonst das Wort entfernen.</translation>
    </message>
    <message>
        <source>dash without a name</source>
        <translation>Strich ohne Namen</translation>
    </message>
    <message>
        <source>A dash stands alone between blanks. It is neither an option nor a value, and the reading ends here with an error. Often there is a blank too many between the dash and the name of the option.</source>
        <translation>Ein Strich steht allein zwischen Leerzeichen. Er ist weder Option noch Wert, und das Lesen endet hier mit einem Fehler. Oft ist zwischen dem Strich und dem Namen der Option ein Leerzeichen zu viel.</translation>
    </message>
    <message>
        <source>Remove the dash, or the blank behind it.</source>
        <translation>Den Strich oder das Leerzeichen dahinter entfernen.</translation>
    </message>
    <message>
        <source>not allowed in an option file</source>
        <translation>in einer Optionsdatei nicht zulässig</translation>
    </message>
    <message>
        <source>The heads &apos;qconnect&apos; and &apos;qvpconnect&apos; and the targets &apos;dap&apos;, &apos;odm&apos;, &apos;dcc&apos; and &apos;qmtc&apos; are for commands that a program hands over. In an option file they are refused.</source>
        <translation>Die Köpfe „qconnect“ und „qvpconnect“ und die Ziele „dap“, „odm“, „dcc“ und „qmtc“ sind für Befehle, die ein Programm übergibt. In einer Optionsdatei werden sie abgelehnt.</translation>
    </message>
    <message>
        <source>Write &apos;connect&apos; for &apos;qconnect&apos; and &apos;vpconnect&apos; for &apos;qvpconnect&apos;, which mean the same. For such a target give the command to the debugger, not to an option file.</source>
        <translation>„connect“ statt „qconnect“ und „vpconnect“ statt „qvpconnect“ schreiben; sie bedeuten dasselbe. Für ein solches Ziel den Befehl dem Debugger übergeben, nicht einer Optionsdatei.</translation>
    </message>
    <message>
        <source>connection that the processor does not admit</source>
        <translation>Verbindung, die der Prozessor nicht zulässt</translation>
    </message>
    <message>
        <source>The design tells how a processor can be reached, and this connection is not among them: a soft processor without a debug module has no &apos;odm&apos;, and only one with a light UART has a &apos;stub&apos;. This is found only where the design is known.</source>
        <translation>Das Design sagt, wie ein Prozessor erreicht werden kann, und diese Verbindung ist nicht dabei: Ein Softprozessor ohne Debug-Modul hat kein „odm“, und nur einer mit einem leichten UART hat einen „stub“. Dies wird nur gefunden, wenn das Design bekannt ist.</translation>
    </message>
    <message>
        <source>Choose a connection that the message lists, or add what is missing to the design.</source>
        <translation>Eine Verbindung wählen, die die Meldung nennt, oder das Fehlende im Design ergänzen.</translation>
    </message>
    <message>
        <source>number of another processor</source>
        <translation>Nummer eines anderen Prozessors</translation>
    </message>
    <message>
        <source>The value of &apos;cpunr&apos; is not the number that this processor has in the design. The number comes from the design and cannot be changed. This is found only where the design is known.</source>
        <translation>Der Wert von „cpunr“ ist nicht die Nummer, die dieser Prozessor im Design hat. Die Nummer kommt aus dem Design und lässt sich nicht ändern. Dies wird nur gefunden, wenn das Design bekannt ist.</translation>
    </message>
    <message>
        <source>Write the number of the design, or remove &apos;cpunr&apos; and its value. If another processor is meant, the command belongs in the option file of that one.</source>
        <translation>Die Nummer aus dem Design schreiben oder „cpunr“ und seinen Wert entfernen. Ist ein anderer Prozessor gemeint, gehört der Befehl in dessen Optionsdatei.</translation>
    </message>
    <message>
        <source>address that is not a multiple of 64 KB</source>
        <translation>Adresse, die kein Vielfaches von 64 KB ist</translation>
    </message>
    <message>
        <source>The six addresses of the debug address map, &apos;icacheStartAdr&apos; to &apos;dcrStartAdr&apos;, must be multiples of 64 KB: their last four hexadecimal digits are 0.</source>
        <translation>Die sechs Adressen des Debug-Adressabbilds, „icacheStartAdr“ bis „dcrStartAdr“, müssen Vielfache von 64 KB sein: Ihre letzten vier Hexadezimalziffern sind 0.</translation>
    </message>
    <message>
        <source>Give the address as it is in the design. If it is not a multiple of 0x10000 there, move it in the design.</source>
        <translation>Die Adresse so angeben, wie sie im Design steht. Ist sie dort kein Vielfaches von 0x10000, dann im Design verschieben.</translation>
    </message>
    <message>
        <source>frequency that the cable does not support</source>
        <translation>Frequenz, die das Kabel nicht unterstützt</translation>
    </message>
    <message>
        <source>Each type of cable runs at a few frequencies, in Hz. Where &apos;-cable&apos; is the last option of the text, the reader checks the frequency and refuses any other. Where an option follows, nothing checks it, and the finding is a warning: the debugger gets the frequency as it is.</source>
        <translation>Jeder Kabeltyp läuft mit einigen wenigen Frequenzen, in Hz. Ist „-cable“ die letzte Option des Textes, wird die Frequenz beim Lesen geprüft und jede andere abgelehnt. Folgt eine Option, prüft sie niemand, und der Befund ist eine Warnung: Der Debugger bekommt die Frequenz, wie sie ist.</translation>
    </message>
    <message>
        <source>Write one of the frequencies that the message lists; &apos;qvtcfg cables&apos; prints those of every type. A plug-in or Digilent cable takes none: remove the keyword and its value.</source>
        <translation>Eine der Frequenzen schreiben, die die Meldung nennt; „qvtcfg cables“ gibt die aller Typen aus. Ein Plug-in- oder Digilent-Kabel nimmt keine: das Schlüsselwort und seinen Wert entfernen.</translation>
    </message>
    <message>
        <source>plug-in cable without a module</source>
        <translation>Plug-in-Kabel ohne Modul</translation>
    </message>
    <message>
        <source>A cable of type &apos;zarvek_plugin&apos; needs the name of its module. Where &apos;-cable&apos; is the last option of the text, the reader refuses it without. Where an option follows, the finding is a warning: what a program then writes for the cable is not read back.</source>
        <translation>Ein Kabel vom Typ „zarvek_plugin“ braucht den Namen seines Moduls. Ist „-cable“ die letzte Option des Textes, wird er ohne Modul beim Lesen abgelehnt. Folgt eine Option, ist der Befund eine Warnung: Was ein Programm dann für das Kabel schreibt, lässt sich nicht wieder einlesen.</translation>
    </message>
    <message>
        <source>Add &apos;modulename&apos; and the name of the module.</source>
        <translation>„modulename“ und den Namen des Moduls ergänzen.</translation>
    </message>
    <message>
        <source>type of cable that is not supported</source>
        <translation>Kabeltyp, der nicht unterstützt wird</translation>
    </message>
    <message>
        <source>The type of cable is known, and refused wherever it stands: &apos;zarvek_svffile&apos; is not supported.</source>
        <translation>Der Kabeltyp ist bekannt und wird überall abgelehnt, wo er steht: „zarvek_svffile“ wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Choose another type; &apos;qvtcfg cables&apos; prints them.</source>
        <translation>Einen anderen Typ wählen; „qvtcfg cables“ gibt sie aus.</translation>
    </message>
    <message>
        <source>written in a form that cannot be read</source>
        <translation>in einer Form geschrieben, die nicht gelesen werden kann</translation>
    </message>
    <message>
        <source>The debugger dialog writes a few settings in a form that its reader refuses: &apos;jtagpin cpujtag&apos; for &apos;jtagport cpu&apos;, and the host and the port of the virtual platform joined to the option. Nobody mistyped it.</source>
        <translation>Der Debugger-Dialog schreibt einige Einstellungen in einer Form, die er beim Lesen ablehnt: „jtagpin cpujtag“ für „jtagport cpu“, und Host und Port der virtuellen Plattform an die Option angehängt. Niemand hat sich vertippt.</translation>
    </message>
    <message>
        <source>Write it in the form that is read: &apos;-configdevice jtagport cpu&apos;, &apos;-ipcport host:2340&apos;. It comes back the next time that the settings are written anew.</source>
        <translation>In der Form schreiben, die gelesen wird: „-configdevice jtagport cpu“, „-ipcport host:2340“. Es kommt wieder, sobald die Einstellungen das nächste Mal neu geschrieben werden.</translation>
    </message>
    <message>
        <source>byte-order mark in front of the command</source>
        <translation>Byte Order Mark vor dem Befehl</translation>
    </message>
    <message>
        <source>The file begins with the three bytes EF BB BF, which some editors put in front of a text in UTF-8 and do not show. They join the first word, so that the command is refused.</source>
        <translation>Die Datei beginnt mit den drei Bytes EF BB BF, die manche Editoren vor einen Text in UTF-8 setzen und nicht anzeigen. Sie werden ein Teil des ersten Wortes, sodass der Befehl abgelehnt wird.</translation>
    </message>
    <message>
        <source>Remove the three bytes, and save the file as UTF-8 without a byte-order mark, or as ASCII.</source>
        <translation>Die drei Bytes entfernen und die Datei als UTF-8 ohne Byte Order Mark oder als ASCII speichern.</translation>
    </message>
    <message>
        <source>blank line in front of the command</source>
        <translation>leer aussehende Zeile vor dem Befehl</translation>
    </message>
    <message>
        <source>The first line that is not empty is read. This one has only blanks, tabs or a carriage return in it: it is not empty, counts as the command, and is refused. Lines with no character at all are skipped.</source>
        <translation>Gelesen wird die erste Zeile, die nicht leer ist. In dieser stehen nur Leerzeichen, Tabulatoren oder ein Wagenrücklauf: Sie ist nicht leer, gilt als der Befehl und wird abgelehnt. Zeilen ganz ohne Zeichen werden übersprungen.</translation>
    </message>
    <message>
        <source>Remove the line.</source>
        <translation>Die Zeile entfernen.</translation>
    </message>
    <message>
        <source>more than 1,023 characters</source>
        <translation>mehr als 1.023 Zeichen</translation>
    </message>
    <message>
        <source>The first 1,023 bytes of the command are read, about a dozen devices of a chain. The rest is ignored, and nothing says so. Where the line is cut in the middle of something, it may be refused or mean something else.</source>
        <translation>Vom Befehl werden die ersten 1.023 Bytes gelesen, etwa ein Dutzend Bausteine einer Kette. Der Rest wird ohne jede Meldung übergangen. Wo die Zeile mitten in etwas abgeschnitten wird, kann sie abgelehnt werden oder etwas anderes bedeuten.</translation>
    </message>
    <message>
        <source>Shorten the command: drop options that have no effect and values that are the defaults, and shorten the part names.</source>
        <translation>Den Befehl kürzen: Optionen ohne Wirkung und Werte, die Vorgaben sind, weglassen und die Namen der Bausteine kürzen.</translation>
    </message>
    <message>
        <source>carriage return</source>
        <translation>Wagenrücklauf</translation>
    </message>
    <message>
        <source>The file has the line ends of Windows (CR LF), or a carriage return within a line. The reader drops one at the end of a word, and keeps one within a word as a part of it; other programs keep it in any case.</source>
        <translation>Die Datei hat die Zeilenenden von Windows (CR LF) oder einen Wagenrücklauf innerhalb einer Zeile. Am Ende eines Wortes fällt er beim Lesen weg, innerhalb eines Wortes bleibt er ein Teil davon; andere Programme behalten ihn immer.</translation>
    </message>
    <message>
        <source>Save the file with the line ends of Unix (LF).</source>
        <translation>Die Datei mit den Zeilenenden von Unix (LF) speichern.</translation>
    </message>
    <message>
        <source>line that looks like a comment</source>
        <translation>Zeile, die wie ein Kommentar aussieht</translation>
    </message>
    <message>
        <source>There are no comments in an option file. In front of the command such a line is read as the command, and refused: it is an error there. Behind the command it is not read, as no further line is.</source>
        <translation>In einer Optionsdatei gibt es keine Kommentare. Vor dem Befehl wird eine solche Zeile als der Befehl gelesen und abgelehnt: Dort ist sie ein Fehler. Hinter dem Befehl wird sie wie jede weitere Zeile nicht gelesen.</translation>
    </message>
    <message>
        <source>Remove the line, and keep notes in a file of their own.</source>
        <translation>Die Zeile entfernen und Notizen in einer eigenen Datei aufheben.</translation>
    </message>
    <message>
        <source>lines that are not read</source>
        <translation>Zeilen, die nicht gelesen werden</translation>
    </message>
    <message>
        <source>Only the first line that is not empty is read; all others are ignored. Options that stand on a line of their own have no effect.</source>
        <translation>Nur die erste Zeile, die nicht leer ist, wird gelesen; alle anderen werden übergangen. Optionen, die in einer eigenen Zeile stehen, haben keine Wirkung.</translation>
    </message>
    <message>
        <source>Join the lines to one if they belong to the command; else remove them.</source>
        <translation>Die Zeilen zu einer verbinden, wenn sie zum Befehl gehören; sonst entfernen.</translation>
    </message>
    <message>
        <source>bytes that are not text</source>
        <translation>Bytes, die kein Text sind</translation>
    </message>
    <message>
        <source>The file has bytes that are not text: control characters, or bytes that are not UTF-8. The reader takes them as parts of words, and few other programs show them. In the first word it is an error.</source>
        <translation>Die Datei enthält Bytes, die kein Text sind: Steuerzeichen oder Bytes, die kein UTF-8 sind. Beim Lesen gelten sie als Teile von Wörtern, und nur wenige Programme zeigen sie an. Im ersten Wort sind sie ein Fehler.</translation>
    </message>
    <message>
        <source>Type the word again. If the whole file looks like that, it is no option file, or in another encoding: save it as ASCII or UTF-8.</source>
        <translation>Das Wort neu tippen. Sieht die ganze Datei so aus, ist sie keine Optionsdatei oder anders kodiert: als ASCII oder UTF-8 speichern.</translation>
    </message>
    <message>
        <source>quotes, a backslash or a variable</source>
        <translation>Anführungszeichen, umgekehrter Schrägstrich oder Variable</translation>
    </message>
    <message>
        <source>There is no quoting and no escape: quotes and backslashes are parts of the value, and a blank ends a value in any case. No shell reads the text: &apos;~&apos; and &apos;$&apos; are parts of the value, too.</source>
        <translation>Es gibt weder Anführung noch Maskierung: Anführungszeichen und umgekehrte Schrägstriche gehören zum Wert, und ein Leerzeichen beendet ihn immer. Keine Shell liest den Text: Auch „~“ und „$“ gehören zum Wert.</translation>
    </message>
    <message>
        <source>Remove the quotes, and write the whole name of a file. A value that has a blank in it cannot be given: rename the file.</source>
        <translation>Die Anführungszeichen entfernen und Dateinamen ausschreiben. Ein Wert mit einem Leerzeichen lässt sich nicht angeben: die Datei umbenennen.</translation>
    </message>
    <message>
        <source>value that is not a number</source>
        <translation>Wert, der keine Zahl ist</translation>
    </message>
    <message>
        <source>A number is expected. The reader takes what it can from the front of the word; here that is nothing, and the value is 0 without a message.</source>
        <translation>Eine Zahl wird erwartet. Beim Lesen wird genommen, was vorn im Wort als Zahl gelten kann; hier ist das nichts, und der Wert ist ohne Meldung 0.</translation>
    </message>
    <message>
        <source>Write a number: decimal, or hexadecimal with &apos;0x&apos;.</source>
        <translation>Eine Zahl schreiben: dezimal, oder hexadezimal mit „0x“.</translation>
    </message>
    <message>
        <source>value with something behind it</source>
        <translation>Wert mit etwas dahinter</translation>
    </message>
    <message>
        <source>Of a number the reader takes the digits at the front of the word and ignores the rest, without a message. A text keeps a comma or semicolon at its end.</source>
        <translation>Von einer Zahl werden die Ziffern vorn im Wort gelesen, der Rest wird ohne Meldung übergangen. Ein Text behält ein Komma oder Semikolon an seinem Ende.</translation>
    </message>
    <message>
        <source>Remove what is not a part of the value. Blanks alone separate words. There are no commas, points or underscores in a number, and a hexadecimal number begins with &apos;0x&apos;.</source>
        <translation>Entfernen, was nicht zum Wert gehört. Nur Leerzeichen trennen Wörter. In einer Zahl gibt es keine Kommas, Punkte oder Unterstriche, und eine hexadezimale Zahl beginnt mit „0x“.</translation>
    </message>
    <message>
        <source>unit that is ignored</source>
        <translation>Einheit, die nicht beachtet wird</translation>
    </message>
    <message>
        <source>A unit behind a number is ignored: &apos;12MHz&apos; is 12 Hz, &apos;64K&apos; is 64 bytes. Numbers are in the unit of the keyword.</source>
        <translation>Eine Einheit hinter einer Zahl wird nicht beachtet: „12MHz“ sind 12 Hz, „64K“ sind 64 Bytes. Zahlen stehen in der Einheit des Schlüsselworts.</translation>
    </message>
    <message>
        <source>Write the whole number: &apos;12000000&apos; for 12 MHz, &apos;0x10000&apos; for 64 KB. &apos;qvtcfg set&apos; takes units and writes the number.</source>
        <translation>Die ganze Zahl schreiben: „12000000“ für 12 MHz, „0x10000“ für 64 KB. „qvtcfg set“ nimmt Einheiten und schreibt die Zahl.</translation>
    </message>
    <message>
        <source>number in octal</source>
        <translation>oktale Zahl</translation>
    </message>
    <message>
        <source>A number that begins with 0 is octal: &apos;010&apos; is 8, and &apos;08&apos; is 0, since 8 is no octal digit.</source>
        <translation>Eine Zahl, die mit 0 beginnt, ist oktal: „010“ ist 8, und „08“ ist 0, denn 8 ist keine oktale Ziffer.</translation>
    </message>
    <message>
        <source>Write the number without the zero in front: &apos;8&apos; for what is read now, or &apos;10&apos; if that is meant. A hexadecimal number begins with &apos;0x&apos;.</source>
        <translation>Die Zahl ohne die Null davor schreiben: „8“ für das, was jetzt gelesen wird, oder „10“, wenn das gemeint ist. Eine hexadezimale Zahl beginnt mit „0x“.</translation>
    </message>
    <message>
        <source>negative number</source>
        <translation>negative Zahl</translation>
    </message>
    <message>
        <source>Numbers are not negative, but for &apos;nCpu&apos;, and for &apos;cpunr&apos;, of which 200 is written as -56. Most of them are stored without a sign, so that &apos;-1&apos; becomes 4294967295; &apos;-timeout&apos; and the numbers of devices keep it.</source>
        <translation>Zahlen sind nicht negativ, außer bei „nCpu“ und bei „cpunr“, bei dem 200 als -56 geschrieben wird. Die meisten werden ohne Vorzeichen gespeichert, sodass aus „-1“ 4294967295 wird; „-timeout“ und die Nummern der Bausteine behalten es.</translation>
    </message>
    <message>
        <source>Write the number that is meant.</source>
        <translation>Die gemeinte Zahl schreiben.</translation>
    </message>
    <message>
        <source>number that does not fit</source>
        <translation>Zahl, die nicht hineinpasst</translation>
    </message>
    <message>
        <source>Numbers have 32 bits, and a few of them 8 bits, such as &apos;deviceNr&apos;, &apos;cpunr&apos; and &apos;irlength&apos;. What does not fit is cut off without a message: &apos;300&apos; in 8 bits is 44.</source>
        <translation>Zahlen haben 32 Bit, einige wenige 8 Bit, etwa „deviceNr“, „cpunr“ und „irlength“. Was nicht hineinpasst, wird ohne Meldung abgeschnitten: „300“ ist in 8 Bit 44.</translation>
    </message>
    <message>
        <source>Write a number that fits.</source>
        <translation>Eine Zahl schreiben, die hineinpasst.</translation>
    </message>
    <message>
        <source>host without a port</source>
        <translation>Host ohne Port</translation>
    </message>
    <message>
        <source>The value is &apos;host:port&apos;, and there is no colon in it. The host is then ignored, and the port is the default one of the simulator.</source>
        <translation>Der Wert ist „host:port“, und er enthält keinen Doppelpunkt. Der Host wird dann nicht beachtet, und der Port ist der vorgegebene des Simulators.</translation>
    </message>
    <message>
        <source>Write the colon and the port: &apos;localhost:6470&apos;, or &apos;:6470&apos; for this machine.</source>
        <translation>Den Doppelpunkt und den Port schreiben: „localhost:6470“, oder „:6470“ für diesen Rechner.</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>zweimal angegeben</translation>
    </message>
    <message>
        <source>The last value counts; what stood before has no effect.</source>
        <translation>Der letzte Wert gilt; was davor stand, hat keine Wirkung.</translation>
    </message>
    <message>
        <source>Remove the one that is not meant.</source>
        <translation>Das Nichtgemeinte entfernen.</translation>
    </message>
    <message>
        <source>port in front of the type</source>
        <translation>Anschluss vor dem Typ</translation>
    </message>
    <message>
        <source>The type of a parallel or USB cable sets the port to its default. A port that stands in front of the type is overwritten.</source>
        <translation>Der Typ eines Parallel- oder USB-Kabels setzt den Anschluss auf seine Vorgabe. Ein Anschluss, der vor dem Typ steht, wird überschrieben.</translation>
    </message>
    <message>
        <source>If the port is meant, move it behind the type; else remove it.</source>
        <translation>Ist der Anschluss gemeint, ihn hinter den Typ verschieben; sonst entfernen.</translation>
    </message>
    <message>
        <source>no effect beside an ESN</source>
        <translation>keine Wirkung neben einer ESN</translation>
    </message>
    <message>
        <source>A serial number (&apos;esn&apos;) selects one cable. Port and frequency are then not used, and are lost when the command is written anew.</source>
        <translation>Eine Seriennummer („esn“) wählt ein Kabel aus. Anschluss und Frequenz werden dann nicht verwendet und gehen verloren, wenn der Befehl neu geschrieben wird.</translation>
    </message>
    <message>
        <source>Keep either the serial number, or port and frequency.</source>
        <translation>Entweder die Seriennummer behalten oder Anschluss und Frequenz.</translation>
    </message>
    <message>
        <source>setting that does not apply</source>
        <translation>Einstellung, die nicht gilt</translation>
    </message>
    <message>
        <source>The setting is stored, but nothing uses it: it is for another connection, another cable or another kind of processor. It is lost when the command is written anew. A frequency does not apply either where another &apos;-cable&apos; without one ends the text: that gives the cable its default.</source>
        <translation>Die Einstellung wird gespeichert, aber nichts verwendet sie: Sie ist für eine andere Verbindung, ein anderes Kabel oder eine andere Art von Prozessor. Sie geht verloren, wenn der Befehl neu geschrieben wird. Eine Frequenz gilt auch dann nicht, wenn ein weiteres „-cable“ ohne Frequenz den Text beendet: Das Kabel bekommt dann seine Vorgabe.</translation>
    </message>
    <message>
        <source>Remove it, or choose the connection that it is for: the stub for &apos;-comm&apos;, &apos;-port&apos;, &apos;-baud&apos; and &apos;-timeout&apos;.</source>
        <translation>Sie entfernen oder die Verbindung wählen, für die sie da ist: den Stub für „-comm“, „-port“, „-baud“ und „-timeout“.</translation>
    </message>
    <message>
        <source>FPU is taken from the design</source>
        <translation>FPU wird aus dem Design übernommen</translation>
    </message>
    <message>
        <source>With a design the FPU of the processor is taken from it, and &apos;fpuType&apos; has no effect. This is found only where the design is known.</source>
        <translation>Mit einem Design wird die FPU des Prozessors daraus übernommen, und „fpuType“ hat keine Wirkung. Dies wird nur gefunden, wenn das Design bekannt ist.</translation>
    </message>
    <message>
        <source>Remove &apos;fpuType&apos; and its value. If the FPU of the design is wrong, correct the design.</source>
        <translation>„fpuType“ und seinen Wert entfernen. Ist die FPU im Design falsch, das Design berichtigen.</translation>
    </message>
    <message>
        <source>words that are not read</source>
        <translation>Wörter, die nicht gelesen werden</translation>
    </message>
    <message>
        <source>After &apos;connect ov sim&apos; one option is read, &apos;-memsize&apos; with its value. What follows is ignored without a message.</source>
        <translation>Nach „connect ov sim“ wird eine Option gelesen, „-memsize“ mit ihrem Wert. Was folgt, wird ohne Meldung übergangen.</translation>
    </message>
    <message>
        <source>Remove the words that are not read. If they are meant, another connection than &apos;sim&apos; is needed.</source>
        <translation>Die Wörter entfernen, die nicht gelesen werden. Sind sie gemeint, ist eine andere Verbindung als „sim“ nötig.</translation>
    </message>
    <message>
        <source>option in the place of a value</source>
        <translation>Option an der Stelle eines Wertes</translation>
    </message>
    <message>
        <source>An option that has no value takes the next word in its place, even another option, which is then skipped. Neither has an effect.</source>
        <translation>Eine Option, der ihr Wert fehlt, nimmt das nächste Wort an dessen Stelle, selbst eine andere Option, die dann übersprungen wird. Keine von beiden hat eine Wirkung.</translation>
    </message>
    <message>
        <source>Add the value, or remove the option that has none.</source>
        <translation>Den Wert ergänzen oder die Option ohne Wert entfernen.</translation>
    </message>
    <message>
        <source>accepted without effect</source>
        <translation>angenommen ohne Wirkung</translation>
    </message>
    <message>
        <source>This is accepted and then forgotten: &apos;-quiet&apos;, &apos;-noattach&apos;, &apos;-writeonly&apos; and &apos;-pfsl&apos; set nothing, and neither does &apos;-cable&apos; or &apos;-debugdevice&apos; without a keyword.</source>
        <translation>Dies wird angenommen und dann vergessen: „-quiet“, „-noattach“, „-writeonly“ und „-pfsl“ setzen nichts, ebenso wenig „-cable“ oder „-debugdevice“ ohne Schlüsselwort.</translation>
    </message>
    <message>
        <source>Remove it, or write the keyword that is missing; without it the command means the same.</source>
        <translation>Entfernen, oder das fehlende Schlüsselwort schreiben; ohne dies bedeutet der Befehl dasselbe.</translation>
    </message>
    <message>
        <source>cable without a frequency</source>
        <translation>Kabel ohne Frequenz</translation>
    </message>
    <message>
        <source>A cable without &apos;frequency&apos; has the default of its type only where &apos;-cable&apos; is the last option. Where another option follows, the frequency is 0.</source>
        <translation>Ein Kabel ohne „frequency“ hat die Vorgabe seines Typs nur, wenn „-cable“ die letzte Option ist. Folgt eine andere Option, ist die Frequenz 0.</translation>
    </message>
    <message>
        <source>Add &apos;frequency&apos; and the number of Hz, or move &apos;-cable&apos; to the end.</source>
        <translation>„frequency“ und die Zahl in Hz ergänzen oder „-cable“ ans Ende verschieben.</translation>
    </message>
    <message>
        <source>lost when the command is written anew</source>
        <translation>geht verloren, wenn der Befehl neu geschrieben wird</translation>
    </message>
    <message>
        <source>The reader accepts this, but the writer has no text for it. When a program writes the settings anew, as the debugger dialog does, it is gone.</source>
        <translation>Beim Lesen wird dies angenommen, aber beim Schreiben gibt es keinen Text dafür. Schreibt ein Programm die Einstellungen neu, wie es der Debugger-Dialog tut, ist es weg.</translation>
    </message>
    <message>
        <source>Nothing is wrong as long as the file is edited by hand or by &apos;qvtcfg set&apos;, which keep it. Else note it down.</source>
        <translation>Nichts ist falsch, solange die Datei von Hand oder mit „qvtcfg set“ bearbeitet wird; beide behalten es. Sonst notieren.</translation>
    </message>
    <message>
        <source>cannot be read back once written</source>
        <translation>lässt sich nach dem Schreiben nicht wieder einlesen</translation>
    </message>
    <message>
        <source>The reader accepts this, but what a program writes for it is refused or means something else: &apos;jtagport cpu&apos; is written as &apos;jtagpin cpujtag&apos;, which no reader knows.</source>
        <translation>Beim Lesen wird dies angenommen, aber was ein Programm dafür schreibt, wird abgelehnt oder bedeutet etwas anderes: „jtagport cpu“ wird als „jtagpin cpujtag“ geschrieben, das beim Lesen unbekannt ist.</translation>
    </message>
    <message>
        <source>Edit the file by hand or by &apos;qvtcfg set&apos;, which keep the form that is read, and do not store it from a program that writes it anew.</source>
        <translation>Die Datei von Hand oder mit „qvtcfg set“ bearbeiten, die die lesbare Form behalten, und nicht aus einem Programm speichern, das sie neu schreibt.</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The reader accepts this cable, but the writer has no text for its type. A program that wants to store the settings gets an error, and the file stays as it is.</source>
        <translation>Beim Lesen wird dieses Kabel angenommen, aber beim Schreiben gibt es keinen Text für seinen Typ. Ein Programm, das die Einstellungen speichern will, bekommt einen Fehler, und die Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Edit the file by hand or by &apos;qvtcfg set&apos;, or choose another type; &apos;qvtcfg cables&apos; tells which types can be written.</source>
        <translation>Die Datei von Hand oder mit „qvtcfg set“ bearbeiten oder einen anderen Typ wählen; „qvtcfg cables“ zeigt, welche Typen geschrieben werden können.</translation>
    </message>
    <message>
        <source>IDCODE that no device has</source>
        <translation>IDCODE, den kein Baustein hat</translation>
    </message>
    <message>
        <source>Bit 0 of an IDCODE is always 1 (IEEE 1149.1), so that an even number, 0 too, is none; neither is 0xffffffff. Without &apos;idcode&apos; it is 0.</source>
        <translation>Bit 0 eines IDCODEs ist immer 1 (IEEE 1149.1), sodass eine gerade Zahl, auch 0, keiner ist; ebenso wenig 0xffffffff. Ohne „idcode“ ist er 0.</translation>
    </message>
    <message>
        <source>Take the IDCODE from the data sheet of the device, with its &apos;0x&apos; in front.</source>
        <translation>Den IDCODE aus dem Datenblatt des Bausteins nehmen, mit „0x“ davor.</translation>
    </message>
    <message>
        <source>instruction register shorter than 2 bits</source>
        <translation>Befehlsregister kürzer als 2 Bit</translation>
    </message>
    <message>
        <source>The instruction register of a JTAG device has at least 2 bits (IEEE 1149.1). With a wrong length, the debugger cannot reach this device and those behind it.</source>
        <translation>Das Befehlsregister eines JTAG-Bausteins hat mindestens 2 Bit (IEEE 1149.1). Mit einer falschen Länge erreicht der Debugger diesen Baustein und die dahinter nicht.</translation>
    </message>
    <message>
        <source>Give &apos;irlength&apos; as in the data sheet of the device.</source>
        <translation>„irlength“ so angeben, wie es im Datenblatt des Bausteins steht.</translation>
    </message>
    <message>
        <source>two devices with the same number</source>
        <translation>zwei Bausteine mit derselben Nummer</translation>
    </message>
    <message>
        <source>Two devices of the chain have the same &apos;devicenr&apos;, so that the debug device is not certain.</source>
        <translation>Zwei Bausteine der Kette haben dieselbe „devicenr“, sodass der Debug-Baustein nicht sicher ist.</translation>
    </message>
    <message>
        <source>Number the devices 1, 2, 3 in their order in the chain.</source>
        <translation>Die Bausteine in der Reihenfolge der Kette mit 1, 2, 3 nummerieren.</translation>
    </message>
    <message>
        <source>gap in the device numbers, or none</source>
        <translation>Lücke in den Nummern der Bausteine, oder keine Nummer</translation>
    </message>
    <message>
        <source>The devices of a chain are numbered from 1 on, and a number is left out, or a device has none or 0. A device may be missing, and then all positions behind it are wrong.</source>
        <translation>Die Bausteine einer Kette werden ab 1 nummeriert, und eine Nummer ist ausgelassen, oder ein Baustein hat keine oder 0. Vielleicht fehlt ein Baustein; dann sind alle Positionen dahinter falsch.</translation>
    </message>
    <message>
        <source>Add the device that is missing, or number the devices anew, and &apos;deviceNr&apos; with them.</source>
        <translation>Den fehlenden Baustein ergänzen oder die Bausteine neu nummerieren, und „deviceNr“ mit ihnen.</translation>
    </message>
    <message>
        <source>devices out of order</source>
        <translation>Bausteine nicht in der Reihenfolge</translation>
    </message>
    <message>
        <source>The devices do not stand in the order of their numbers. The chain is kept in the order of the text, so that number and position differ.</source>
        <translation>Die Bausteine stehen nicht in der Reihenfolge ihrer Nummern. Die Kette wird in der Reihenfolge des Textes geführt, sodass Nummer und Position voneinander abweichen.</translation>
    </message>
    <message>
        <source>Put the &apos;-configdevice&apos; options in the order of the chain.</source>
        <translation>Die Optionen „-configdevice“ in die Reihenfolge der Kette bringen.</translation>
    </message>
    <message>
        <source>debug device that the chain does not have</source>
        <translation>Debug-Baustein, den die Kette nicht hat</translation>
    </message>
    <message>
        <source>The keyword &apos;deviceNr&apos; of &apos;-debugdevice&apos; names the device of the chain that holds the processor, and no &apos;-configdevice&apos; has this number. A command without &apos;-configdevice&apos; has no such finding.</source>
        <translation>Das Schlüsselwort „deviceNr“ von „-debugdevice“ nennt den Baustein der Kette, in dem der Prozessor sitzt, und kein „-configdevice“ hat diese Nummer. Einen Befehl ohne „-configdevice“ trifft dieser Befund nicht.</translation>
    </message>
    <message>
        <source>Write the number of the device that holds the processor, or add that device to the chain.</source>
        <translation>Die Nummer des Bausteins schreiben, in dem der Prozessor sitzt, oder diesen Baustein in die Kette aufnehmen.</translation>
    </message>
    <message>
        <source>one IDCODE with two lengths</source>
        <translation>ein IDCODE mit zwei Längen</translation>
    </message>
    <message>
        <source>Two devices are of the same kind by their IDCODE (its first four bits, the version, do not count), but their instruction registers have different lengths. One of them is wrong.</source>
        <translation>Zwei Bausteine sind nach ihrem IDCODE von derselben Art (seine ersten vier Bits, die Version, zählen nicht), aber ihre Befehlsregister sind verschieden lang. Eine der Längen ist falsch.</translation>
    </message>
    <message>
        <source>Give both the length in the data sheet, or correct the IDCODE.</source>
        <translation>Beiden die Länge aus dem Datenblatt geben oder den IDCODE berichtigen.</translation>
    </message>
    <message>
        <source>no such processor in the design</source>
        <translation>kein solcher Prozessor im Design</translation>
    </message>
    <message>
        <source>The name of an option file, &apos;etc/qvt_NAME.opt&apos;, is that of a processor, and the design has none of this name, or one that cannot be debugged. The file may be left from an older design. This is found only where the design is known, whatever the command is.</source>
        <translation>Der Name einer Optionsdatei, „etc/qvt_NAME.opt“, ist der eines Prozessors, und das Design hat keinen dieses Namens oder einen, der sich nicht debuggen lässt. Die Datei kann von einem älteren Design übrig sein. Dies wird nur gefunden, wenn das Design bekannt ist, gleich wie der Befehl lautet.</translation>
    </message>
    <message>
        <source>Remove the file, or rename it to the processor that it is meant for; &apos;qvtcfg processors&apos; prints the names.</source>
        <translation>Die Datei entfernen oder nach dem Prozessor umbenennen, für den sie gedacht ist; „qvtcfg processors“ gibt die Namen aus.</translation>
    </message>
    <message>
        <source>command for another kind of processor</source>
        <translation>Befehl für eine andere Art von Prozessor</translation>
    </message>
    <message>
        <source>The target of the command is not that of the processor in the design, such as &apos;arm&apos; for a soft processor. The reader compares the connection alone, and accepts it. This is found only where the design is known.</source>
        <translation>Das Ziel des Befehls ist nicht das des Prozessors im Design, etwa „arm“ für einen Softprozessor. Beim Lesen wird nur die Verbindung verglichen und der Befehl angenommen. Dies wird nur gefunden, wenn das Design bekannt ist.</translation>
    </message>
    <message>
        <source>Write the target of this processor. If the command is meant for another processor, it belongs in the option file of that one.</source>
        <translation>Das Ziel dieses Prozessors schreiben. Ist der Befehl für einen anderen Prozessor gedacht, gehört er in dessen Optionsdatei.</translation>
    </message>
    <message>
        <source>one cable with two chains</source>
        <translation>ein Kabel mit zwei Ketten</translation>
    </message>
    <message>
        <source>Two processors are reached through the same cable, by type and port or by serial number, but their option files describe different JTAG chains behind it. This is found only where both files are checked together.</source>
        <translation>Zwei Prozessoren werden über dasselbe Kabel erreicht, nach Typ und Anschluss oder nach Seriennummer, aber ihre Optionsdateien beschreiben verschiedene JTAG-Ketten dahinter. Dies wird nur gefunden, wenn beide Dateien zusammen geprüft werden.</translation>
    </message>
    <message>
        <source>Give both the same chain, or each its own cable. &apos;qvtcfg copy&apos; gives the settings of one processor to another.</source>
        <translation>Beiden dieselbe Kette geben oder jedem ein eigenes Kabel. „qvtcfg copy“ gibt die Einstellungen eines Prozessors einem anderen.</translation>
    </message>
    <message>
        <source>one cable with two frequencies</source>
        <translation>ein Kabel mit zwei Frequenzen</translation>
    </message>
    <message>
        <source>Two processors are reached through the same cable, by type and port or by serial number, and their option files give it different frequencies. The cable runs at one frequency at a time. This is found only where both files are checked together.</source>
        <translation>Zwei Prozessoren werden über dasselbe Kabel erreicht, nach Typ und Anschluss oder nach Seriennummer, und ihre Optionsdateien geben ihm verschiedene Frequenzen. Das Kabel läuft jeweils nur mit einer Frequenz. Dies wird nur gefunden, wenn beide Dateien zusammen geprüft werden.</translation>
    </message>
    <message>
        <source>Give both the same frequency: that of the slower one, unless it is a mistake.</source>
        <translation>Beiden dieselbe Frequenz geben: die des langsameren, wenn es kein Versehen ist.</translation>
    </message>
    <message>
        <source>two files for one processor</source>
        <translation>zwei Dateien für einen Prozessor</translation>
    </message>
    <message>
        <source>Two option files have the same cable, debug device and &apos;cpunr&apos;. Both lead to the same processor, though their names are of two. This is found only where both files are checked together.</source>
        <translation>Zwei Optionsdateien haben dasselbe Kabel, denselben Debug-Baustein und dieselbe „cpunr“. Beide führen zu demselben Prozessor, obwohl sie die Namen von zweien tragen. Dies wird nur gefunden, wenn beide Dateien zusammen geprüft werden.</translation>
    </message>
    <message>
        <source>Correct &apos;deviceNr&apos; or &apos;cpunr&apos; of one of them, or remove a file that was copied by mistake.</source>
        <translation>„deviceNr“ oder „cpunr“ in einer von beiden berichtigen oder eine versehentlich kopierte Datei entfernen.</translation>
    </message>
    <message>
        <source>more findings than are listed</source>
        <translation>mehr Befunde, als aufgeführt sind</translation>
    </message>
    <message>
        <source>Of one kind, 1,000 findings of a text are listed. There are more, and this stands for them; the example would have to go on as it begins.</source>
        <translation>Von einer Art werden 1.000 Befunde eines Textes aufgeführt. Es gibt mehr, und dieser steht für sie; das Beispiel müsste so weitergehen, wie es beginnt.</translation>
    </message>
    <message>
        <source>Correct those that are listed, and check again. A text with so many findings is often not an option file at all.</source>
        <translation>Die aufgeführten berichtigen und erneut prüfen. Ein Text mit so vielen Befunden ist oft gar keine Optionsdatei.</translation>
    </message>
    <message>
        <source>a command written anew does not have it</source>
        <translation>ein neu geschriebener Befehl enthält es nicht</translation>
    </message>
    <message>
        <source>of a device number, part, length and IDCODE are written</source>
        <translation>von einem Baustein werden Nummer, Name, Länge und IDCODE geschrieben</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The debug configuration of the processors of a design, in a window</source>
        <translation>Die Debug-Konfiguration der Prozessoren eines Designs, in einem Fenster</translation>
    </message>
    <message>
        <source>the processor to show first</source>
        <translation>der Prozessor, der zuerst gezeigt wird</translation>
    </message>
    <message>
        <source>work in this folder</source>
        <translation>in diesem Ordner arbeiten</translation>
    </message>
    <message>
        <source>the design file</source>
        <translation>die Design-Datei</translation>
    </message>
    <message>
        <source>store a picture of the window in a file, and end</source>
        <translation>ein Bild des Fensters in einer Datei speichern und beenden</translation>
    </message>
    <message>
        <source>one processor can be named, not more</source>
        <translation>nur ein Prozessor kann angegeben werden</translation>
    </message>
    <message>
        <source>the folder %1 cannot be used</source>
        <translation>der Ordner %1 kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>; --design FILE names another design</source>
        <translation>; --design FILE nennt ein anderes Design</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>qvtdialog::AddressPicture</name>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>first and last address</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Adressen</translation>
    </message>
    <message>
        <source>No address is set.</source>
        <translation>Keine Adresse ist gesetzt.</translation>
    </message>
    <message>
        <source>; </source>
        <comment>between the regions of a list</comment>
        <translation>; </translation>
    </message>
    <message>
        <source>%1 and %2 overlap: %3.</source>
        <translation>%1 und %2 überlappen sich: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n more overlap(s).</source>
        <translation>
            <numerusform>%n weitere Überlappung.</numerusform>
            <numerusform>%n weitere Überlappungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <comment>label, addresses, size</comment>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>overlaps with %1</source>
        <translation>überlappt sich mit %1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>qvtdialog::ApplyDialog</name>
    <message>
        <source>Store it &amp;although something is lost</source>
        <translation>&amp;Trotz Verlust speichern</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>&amp;What is stored:</source>
        <translation>&amp;Was gespeichert wird:</translation>
    </message>
    <message>
        <source>What is stored</source>
        <translation>Was gespeichert wird</translation>
    </message>
    <message>
        <source>The processors, below each what changes and what is lost</source>
        <translation>Die Prozessoren, darunter jeweils was sich ändert und was verloren geht</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>cannot be stored</source>
        <translation>nicht zu speichern</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>geht verloren</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>nicht wieder lesbar</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>Not stored: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>qvtdialog::ChainEditor</name>
    <message>
        <source>Devices of the JTAG chain</source>
        <translation>Bausteine der JTAG-Kette</translation>
    </message>
    <message>
        <source>F2 or a double click changes a cell, Insert adds a device, Delete removes one</source>
        <translation>F2 oder ein Doppelklick ändert eine Zelle, Einfg fügt einen Baustein hinzu, Entf entfernt einen</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Adds a device behind the selected one</source>
        <translation>Fügt hinter dem ausgewählten Baustein einen hinzu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes the selected device</source>
        <translation>Entfernt den ausgewählten Baustein</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Moves the selected device towards TDI</source>
        <translation>Verschiebt den ausgewählten Baustein in Richtung TDI</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Moves the selected device towards TDO</source>
        <translation>Verschiebt den ausgewählten Baustein in Richtung TDO</translation>
    </message>
    <message>
        <source>A device number is at most 127.</source>
        <translation>Die Nummer eines Bausteins ist höchstens 127.</translation>
    </message>
    <message>
        <source>a device added</source>
        <translation>Baustein hinzufügen</translation>
    </message>
    <message>
        <source>a device removed</source>
        <translation>Baustein entfernen</translation>
    </message>
    <message>
        <source>a device moved</source>
        <translation>Baustein verschieben</translation>
    </message>
</context>
<context>
    <name>qvtdialog::ChainModel</name>
    <message>
        <source>A value is missing.</source>
        <translation>Ein Wert fehlt.</translation>
    </message>
    <message>
        <source>This is the debug device.</source>
        <translation>Dies ist der Debug-Baustein.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Number of the device in the chain</source>
        <translation>Nummer des Bausteins in der Kette</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Baustein</translation>
    </message>
    <message>
        <source>Name of the part: one word</source>
        <translation>Name des Bausteins: ein Wort</translation>
    </message>
    <message>
        <source>IDCODE</source>
        <translation>IDCODE</translation>
    </message>
    <message>
        <source>The device&apos;s JTAG IDCODE</source>
        <translation>JTAG-IDCODE des Bausteins</translation>
    </message>
    <message>
        <source>IR length</source>
        <translation>IR-Länge</translation>
    </message>
    <message>
        <source>Length of the instruction register, in bits</source>
        <translation>Länge des Befehlsregisters, in Bit</translation>
    </message>
    <message>
        <source>FPGA</source>
        <translation>FPGA</translation>
    </message>
    <message>
        <source>Whether the device is an FPGA: 1 or 0; read, never written anew</source>
        <translation>Ob der Baustein ein FPGA ist: 1 oder 0; wird gelesen, aber nie neu geschrieben</translation>
    </message>
    <message>
        <source>Hard PPC</source>
        <translation>Fester PPC</translation>
    </message>
    <message>
        <source>Hard PowerPC core: none, ppc405 or other; read, never written anew</source>
        <translation>Fester PowerPC-Kern: none, ppc405 oder other; wird gelesen, aber nie neu geschrieben</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Kerne</translation>
    </message>
    <message>
        <source>Number of hard PowerPC cores; read, never written anew</source>
        <translation>Anzahl der festen PowerPC-Kerne; wird gelesen, aber nie neu geschrieben</translation>
    </message>
</context>
<context>
    <name>qvtdialog::ChainPicture</name>
    <message>
        <source>%1: %2</source>
        <comment>number of a device, its part name</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>IR %1</source>
        <comment>length of the instruction register</comment>
        <translation>IR %1</translation>
    </message>
    <message>
        <source>%1, FPGA</source>
        <comment>length of the instruction register</comment>
        <translation>%1, FPGA</translation>
    </message>
    <message>
        <source>JTAG chain</source>
        <translation>JTAG-Kette</translation>
    </message>
    <message>
        <source>IDCODE %1</source>
        <translation>IDCODE %1</translation>
    </message>
    <message>
        <source>debug device</source>
        <translation>Debug-Baustein</translation>
    </message>
    <message>
        <source>debug device of %1</source>
        <translation>Debug-Baustein von %1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>TDI</source>
        <translation>TDI</translation>
    </message>
    <message>
        <source>TDO</source>
        <translation>TDO</translation>
    </message>
    <message>
        <source>There are no devices in the JTAG chain.</source>
        <translation>Die JTAG-Kette enthält keine Bausteine.</translation>
    </message>
    <message>
        <source>; debug device: %1</source>
        <translation>; Debug-Baustein: %1</translation>
    </message>
    <message>
        <source>; selected: %1</source>
        <translation>; ausgewählt: %1</translation>
    </message>
    <message>
        <source>Debug device</source>
        <translation>Debug-Baustein</translation>
    </message>
    <message>
        <source>The chain has no device %1, which is set as the debug device.</source>
        <translation>Die Kette hat keinen Baustein %1, der als Debug-Baustein eingestellt ist.</translation>
    </message>
</context>
<context>
    <name>qvtdialog::CommandView</name>
    <message>
        <source>Connect command</source>
        <translation>Verbindungsbefehl</translation>
    </message>
    <message>
        <source>The content of the option file for the present settings</source>
        <translation>Der Inhalt der Optionsdatei für die jetzigen Einstellungen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>severity, message</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>byte 0x%1</source>
        <translation>Byte 0x%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>setting, value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>This word has no effect.</source>
        <translation>Dieses Wort hat keine Wirkung.</translation>
    </message>
</context>
<context>
    <name>qvtdialog::CopyDialog</name>
    <message>
        <source>Copy the settings of %1</source>
        <translation>Einstellungen von %1 kopieren</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>Nach Namen filtern</translation>
    </message>
    <message>
        <source>Filter of the processors</source>
        <translation>Filter der Prozessoren</translation>
    </message>
    <message>
        <source>Processors to copy to</source>
        <translation>Prozessoren, die die Kopie bekommen</translation>
    </message>
    <message>
        <source>What is not copied</source>
        <translation>Was nicht kopiert wird</translation>
    </message>
    <message>
        <source>&amp;To these processors:</source>
        <translation>&amp;An diese Prozessoren:</translation>
    </message>
    <message>
        <source>&amp;What is not copied:</source>
        <translation>&amp;Was nicht kopiert wird:</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>%1: its command is not understood, and stays as it is</source>
        <translation>%1: Der Befehl wird nicht verstanden und bleibt, wie er ist</translation>
    </message>
    <message>
        <source>Everything is copied.</source>
        <translation>Alles wird kopiert.</translation>
    </message>
    <message>
        <source>The space bar checks a processor</source>
        <translation>Die Leertaste hakt einen Prozessor an</translation>
    </message>
    <message>
        <source>The option file of %1 cannot be read any more.</source>
        <translation>Die Optionsdatei von %1 lässt sich nicht mehr lesen.</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is not accepted, and not copied</source>
        <translation>%1: „%2“ ist nicht zulässig und wird nicht kopiert</translation>
    </message>
</context>
<context>
    <name>qvtdialog::Document</name>
    <message>
        <source>the new text does not have it</source>
        <translation>der neue Text enthält es nicht</translation>
    </message>
    <message>
        <source>The command is not understood. Correct it first.</source>
        <translation>Der Befehl wird nicht verstanden. Er ist erst zu berichtigen.</translation>
    </message>
    <message>
        <source>The value in the field &apos;%1&apos; is not accepted. Correct it first.</source>
        <translation>Der Wert im Feld „%1“ wird nicht angenommen. Er ist erst zu berichtigen.</translation>
    </message>
    <message>
        <source>The file was changed by another program. Choose first what is to be kept.</source>
        <translation>Die Datei wurde von einem anderen Programm geändert. Erst ist zu wählen, was behalten wird.</translation>
    </message>
    <message>
        <source>the command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>%1 back to its default</source>
        <translation>%1 auf die Vorgabe</translation>
    </message>
    <message>
        <source>all settings back to their defaults</source>
        <translation>alle Einstellungen auf die Vorgaben</translation>
    </message>
    <message>
        <source>the settings of %1</source>
        <translation>Einstellungen von %1</translation>
    </message>
    <message>
        <source>the file as another program changed it</source>
        <translation>Datei eines anderen Programms</translation>
    </message>
    <message>
        <source>Storing would lose a part of the file.</source>
        <translation>Beim Speichern ginge ein Teil der Datei verloren.</translation>
    </message>
</context>
<context>
    <name>qvtdialog::Field</name>
    <message>
        <source>Default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>Back to the default: %1</source>
        <translation>Zurück zur Vorgabe: %1</translation>
    </message>
    <message>
        <source>%1: back to the default, %2</source>
        <translation>%1: zurück zur Vorgabe, %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
<context>
    <name>qvtdialog::FindingList</name>
    <message>
        <source>Fix all that is &amp;safe</source>
        <translation>Alles &amp;Sichere berichtigen</translation>
    </message>
    <message>
        <source>Applies every fix that keeps the meaning of the text</source>
        <translation>Nimmt jede Korrektur vor, die den Sinn des Textes erhält</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>What is wrong with the text, and its fixes</source>
        <translation>Was am Text nicht stimmt, und die Korrekturen dazu</translation>
    </message>
</context>
<context>
    <name>qvtdialog::FindingModel</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Fix: %1</source>
        <translation>Korrektur: %1</translation>
    </message>
    <message>
        <source>Fix: %1 (a guess)</source>
        <translation>Korrektur: %1 (geraten)</translation>
    </message>
    <message>
        <source>See: %1</source>
        <translation>Siehe: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>severity, message</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>message, remedy</comment>
        <translation>%1; %2</translation>
    </message>
</context>
<context>
    <name>qvtdialog::HelpDialog</name>
    <message>
        <source>on or off</source>
        <translation>on oder off (ein oder aus)</translation>
    </message>
    <message>
        <source>a number: 16, 1_000, 0x10, 12e6</source>
        <translation>eine Zahl: 16, 1_000, 0x10, 12e6</translation>
    </message>
    <message>
        <source>an address: 0x70000000, 64K, 1M; empty for &quot;not set&quot;</source>
        <translation>eine Adresse: 0x70000000, 64K, 1M; leer für „nicht gesetzt“</translation>
    </message>
    <message>
        <source>a frequency: 12000000, 12M, 12 MHz, 200k, 1.5 MHz</source>
        <translation>eine Frequenz: 12000000, 12M, 12 MHz, 200k, 1.5 MHz</translation>
    </message>
    <message>
        <source>a size: 65536, 64K, 64 KB, 1M</source>
        <translation>eine Größe: 65536, 64K, 64 KB, 1M</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>one of the words</source>
        <translation>eines der Wörter</translation>
    </message>
    <message>
        <source>several of the words</source>
        <translation>mehrere der Wörter</translation>
    </message>
    <message>
        <source>devices, each with number, part name, register length and IDCODE</source>
        <translation>Bausteine, jeder mit Nummer, Name, Registerlänge und IDCODE</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Name in scripts</source>
        <translation>Name in Skripten</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Zulässig</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Choices now</source>
        <translation>Jetzige Auswahl</translation>
    </message>
    <message>
        <source>Value now</source>
        <translation>Jetziger Wert</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>Nicht änderbar</translation>
    </message>
    <message>
        <source>Does not apply</source>
        <translation>Gilt nicht</translation>
    </message>
    <message>
        <source>Not in the command</source>
        <translation>Nicht im Befehl</translation>
    </message>
    <message>
        <source>May change as well</source>
        <translation>Kann sich mit ändern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>filter the processors</source>
        <translation>die Prozessoren filtern</translation>
    </message>
    <message>
        <source>Alt and a letter</source>
        <translation>Alt und ein Buchstabe</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>what the field, the word or the finding means</source>
        <translation>was das Feld, das Wort oder der Befund bedeutet</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Strg+E</translation>
    </message>
    <message>
        <source>edit the command as text, and back</source>
        <translation>den Befehl als Text bearbeiten, und zurück</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Shift+Z</source>
        <translation>Strg+Z, Strg+Umschalt+Z</translation>
    </message>
    <message>
        <source>undo, redo</source>
        <translation>rückgängig machen, wiederholen</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Strg+S</translation>
    </message>
    <message>
        <source>apply: see what is stored, and store it</source>
        <translation>übernehmen: sehen, was gespeichert wird, und es speichern</translation>
    </message>
    <message>
        <source>Insert, Delete, F2</source>
        <translation>Einfg, Entf, F2</translation>
    </message>
    <message>
        <source>in the JTAG chain: add or remove a device, change a cell</source>
        <translation>in der JTAG-Kette: einen Baustein hinzufügen oder entfernen, eine Zelle ändern</translation>
    </message>
    <message>
        <source>Alt+Up, Alt+Down</source>
        <translation>Alt+Hoch, Alt+Runter</translation>
    </message>
    <message>
        <source>in the JTAG chain: move the device</source>
        <translation>in der JTAG-Kette: den Baustein verschieben</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>abbrechen</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Alt and a number</source>
        <translation>Alt und eine Ziffer</translation>
    </message>
    <message>
        <source>the group of settings in this place</source>
        <translation>die Gruppe von Einstellungen an dieser Stelle</translation>
    </message>
    <message>
        <source>the field or button with this letter underlined</source>
        <translation>das Feld oder der Knopf, bei dem dieser Buchstabe unterstrichen ist</translation>
    </message>
</context>
<context>
    <name>qvtdialog::MainWindow</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+Z</source>
        <translation>Ctrl+Shift+Z</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>&amp;Apply…</source>
        <translation>Über&amp;nehmen…</translation>
    </message>
    <message>
        <source>Reset to &amp;defaults</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Cop&amp;y to…</source>
        <translation>&amp;Kopieren nach…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Edit the command as te&amp;xt</source>
        <translation>Befehl als &amp;Text bearbeiten</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Filter the processors</source>
        <translation>Prozessoren &amp;filtern</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;What is this?</source>
        <translation>&amp;Was ist das?</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>qvtdialog %1
Debug configuration of the processors of FPGA-based designs, and the connect commands of the QVT debugger.</source>
        <translation>qvtdialog %1
Debug-Konfiguration der Prozessoren FPGA-basierter Designs und die Verbindungsbefehle des QVT-Debuggers.</translation>
    </message>
    <message>
        <source>&amp;Load the file</source>
        <translation>Datei &amp;laden</translation>
    </message>
    <message>
        <source>What is in the file takes the place of what is here; Undo goes back</source>
        <translation>Der Inhalt der Datei ersetzt, was hier steht; mit „Rückgängig“ geht es zurück</translation>
    </message>
    <message>
        <source>&amp;Keep what is here</source>
        <translation>&amp;Eigenes behalten</translation>
    </message>
    <message>
        <source>Apply will replace what is in the file now</source>
        <translation>„Übernehmen“ ersetzt dann, was jetzt in der Datei steht</translation>
    </message>
    <message>
        <source>Edit as te&amp;xt</source>
        <translation>Als &amp;Text bearbeiten</translation>
    </message>
    <message>
        <source>C&amp;onnect command</source>
        <translation>&amp;Verbindungsbefehl</translation>
    </message>
    <message>
        <source>The file was changed by another program, and read again. Undo brings back what was here.</source>
        <translation>Die Datei wurde von einem anderen Programm geändert und neu gelesen. „Rückgängig“ bringt zurück, was hier stand.</translation>
    </message>
    <message>
        <source>The option file cannot be read: %1</source>
        <translation>Die Optionsdatei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Another program has removed the option file.</source>
        <translation>Ein anderes Programm hat die Optionsdatei entfernt.</translation>
    </message>
    <message>
        <source>Another program has changed the option file. It now holds:
%1</source>
        <translation>Ein anderes Programm hat die Optionsdatei geändert. Sie enthält jetzt:
%1</translation>
    </message>
    <message>
        <source>The command is not understood. The settings are shown again when it is.</source>
        <translation>Der Befehl wird nicht verstanden. Sobald er verstanden wird, erscheinen die Einstellungen wieder.</translation>
    </message>
    <message>
        <source>The option file is not understood. Correct its text below, or reset it to the defaults.</source>
        <translation>Die Optionsdatei wird nicht verstanden. Ihr Text lässt sich unten berichtigen, oder alles auf die Vorgaben zurücksetzen.</translation>
    </message>
    <message>
        <source>what was found</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>%1 does not apply: %2</source>
        <translation>%1 gilt nicht: %2</translation>
    </message>
    <message>
        <source>Stored.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There are changes that are not stored: %1</source>
        <translation>Es gibt Änderungen, die nicht gespeichert sind: %1</translation>
    </message>
    <message>
        <source>&amp;Discard the changes</source>
        <translation>Änderungen &amp;verwerfen</translation>
    </message>
    <message>
        <source>&amp;Go on editing</source>
        <translation>&amp;Weiter bearbeiten</translation>
    </message>
    <message>
        <source>The value in the field &apos;%1&apos; is not accepted. Correct it first.</source>
        <translation>Der Wert im Feld „%1“ wird nicht angenommen. Er ist erst zu berichtigen.</translation>
    </message>
</context>
<context>
    <name>qvtdialog::ProcessorList</name>
    <message>
        <source>Filter by name</source>
        <translation>Nach Namen filtern</translation>
    </message>
    <message>
        <source>Filter of the processors</source>
        <translation>Filter der Prozessoren</translation>
    </message>
    <message>
        <source>Processors of the design</source>
        <translation>Prozessoren des Designs</translation>
    </message>
    <message>
        <source>What they are, and what is known about their option files</source>
        <translation>Was sie sind, und was über ihre Optionsdateien bekannt ist</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Prozessoren</translation>
    </message>
</context>
<context>
    <name>qvtdialog::ProcessorModel</name>
    <message>
        <source>not stored</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>unlesbar</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>stored</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>Connections: %1</source>
        <translation>Verbindungen: %1</translation>
    </message>
    <message>
        <source>Option file: %1</source>
        <translation>Optionsdatei: %1</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Option file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>changed elsewhere</source>
        <translation>anderswo geändert</translation>
    </message>
</context>
<context>
    <name>qvtdialog::Session</name>
    <message>
        <source>cannot be debugged</source>
        <translation>nicht debugfähig</translation>
    </message>
</context>
<context>
    <name>qvtdialog::SettingsForm</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>A tab for each group of settings</source>
        <translation>Ein Reiter für jede Gruppe von Einstellungen</translation>
    </message>
    <message>
        <source>Alt+%1</source>
        <translation>Alt+%1</translation>
    </message>
</context>
<context>
    <name>severity</name>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>value</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
</context>
</TS>
