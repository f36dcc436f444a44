// SPDX-License-Identifier: MIT
// The fixed texts of the library, for the translators' tools: lupdate finds texts only where they are written out.

#include <QtGlobal>

#include "model/library_texts.h"

namespace qvtdialog {
namespace {

constexpr const char* kStrings[] = {
    // The groups of settings.
    QT_TRANSLATE_NOOP("library", "Processor"),
    QT_TRANSLATE_NOOP("library", "Connection"),
    QT_TRANSLATE_NOOP("library", "Stub"),
    QT_TRANSLATE_NOOP("library", "Simulator"),
    QT_TRANSLATE_NOOP("library", "Virtual platform"),
    QT_TRANSLATE_NOOP("library", "Hardware simulator"),
    QT_TRANSLATE_NOOP("library", "Debug device"),
    QT_TRANSLATE_NOOP("library", "Address map"),
    QT_TRANSLATE_NOOP("library", "Memories"),
    QT_TRANSLATE_NOOP("library", "Cable"),
    QT_TRANSLATE_NOOP("library", "JTAG chain"),

    // The settings: labels, meanings, units, defaults in words.
    QT_TRANSLATE_NOOP("library", "Name"),
    QT_TRANSLATE_NOOP("library", "Instance name of the processor in the design."),
    QT_TRANSLATE_NOOP("library", "Family"),
    QT_TRANSLATE_NOOP("library", "Kind of processor."),
    QT_TRANSLATE_NOOP("library", "Variant"),
    QT_TRANSLATE_NOOP("library", "Core of the processor; the address map and the memories of a PowerPC depend on it."),
    QT_TRANSLATE_NOOP("library", "as in the design"),
    QT_TRANSLATE_NOOP("library", "Processor number"),
    QT_TRANSLATE_NOOP("library", "Number of the processor on its debug link."),
    QT_TRANSLATE_NOOP("library", "1, or as in the design"),
    QT_TRANSLATE_NOOP("library", "Connections"),
    QT_TRANSLATE_NOOP("library", "The connections that the processor admits."),
    QT_TRANSLATE_NOOP("library", "FPU"),
    QT_TRANSLATE_NOOP("library", "Floating-point unit of a PowerPC: single or double precision."),
    QT_TRANSLATE_NOOP("library", "What the debugger connects to: simulator, hardware, stub or virtual-platform."),
    QT_TRANSLATE_NOOP("library", "Stub link"),
    QT_TRANSLATE_NOOP("library", "How the software stub is reached; setting it selects the connection 'stub'."),
    QT_TRANSLATE_NOOP("library", "Stub serial device"),
    QT_TRANSLATE_NOOP("library", "Serial device of this computer that the stub is connected to."),
    QT_TRANSLATE_NOOP("library", "Stub baud rate"),
    QT_TRANSLATE_NOOP("library", "Rate of the serial line; 0 for none."),
    QT_TRANSLATE_NOOP("library", "baud"),
    QT_TRANSLATE_NOOP("library", "Stub time-out"),
    QT_TRANSLATE_NOOP("library", "Handed to the debugger as it is."),
    QT_TRANSLATE_NOOP("library", "Simulator memory"),
    QT_TRANSLATE_NOOP("library", "Memory of the soft-processor simulator."),
    QT_TRANSLATE_NOOP("library", "Simulator configuration file"),
    QT_TRANSLATE_NOOP("library", "Configuration file of the PowerPC simulator; it has precedence over host and port."),
    QT_TRANSLATE_NOOP("library", "Simulator host"),
    QT_TRANSLATE_NOOP("library", "Host on which the simulator or the virtual platform runs."),
    QT_TRANSLATE_NOOP("library", "Simulator port"),
    QT_TRANSLATE_NOOP("library", "Port of the simulator or the virtual platform."),
    QT_TRANSLATE_NOOP("library", "Accuracy configured"),
    QT_TRANSLATE_NOOP("library",
                      "The accuracy of the virtual platform is set; without an accuracy the text is not read back."),
    QT_TRANSLATE_NOOP("library", "Cycle approximate"),
    QT_TRANSLATE_NOOP("library", "The virtual platform counts cycles approximately."),
    QT_TRANSLATE_NOOP("library", "The hardware is run by a hardware-description-language simulator."),
    QT_TRANSLATE_NOOP("library", "Hardware simulator host"),
    QT_TRANSLATE_NOOP("library", "Host on which the hardware simulator runs."),
    QT_TRANSLATE_NOOP("library", "Hardware simulator port"),
    QT_TRANSLATE_NOOP("library", "Port of the hardware simulator."),
    QT_TRANSLATE_NOOP("library", "Number of the device in the JTAG chain that holds the processor; 0 for none."),
    QT_TRANSLATE_NOOP("library", "BSCAN register"),
    QT_TRANSLATE_NOOP("library", "JTAG user register that the debug module uses."),
    QT_TRANSLATE_NOOP("library", "UART"),
    QT_TRANSLATE_NOOP("library", "The UART of the debug module is used."),
    QT_TRANSLATE_NOOP("library", "Processor version"),
    QT_TRANSLATE_NOOP("library", "Version of the processor, kept for programs."),
    QT_TRANSLATE_NOOP("library", "Debug module version"),
    QT_TRANSLATE_NOOP("library", "Version of the debug module, kept for programs."),
    QT_TRANSLATE_NOOP("library", "Number of processors"),
    QT_TRANSLATE_NOOP("library", "Number of processors, kept for programs."),
    QT_TRANSLATE_NOOP("library", "Debug address map"),
    QT_TRANSLATE_NOOP("library",
                      "Base of the debug address map: that of the instruction cache. Unset, all bases are unset."),
    QT_TRANSLATE_NOOP("library", "Instruction cache"),
    QT_TRANSLATE_NOOP("library", "Base of the instruction cache and of the debug address map."),
    QT_TRANSLATE_NOOP("library", "Instruction tags"),
    QT_TRANSLATE_NOOP("library", "Base of the instruction tags."),
    QT_TRANSLATE_NOOP("library", "Data cache"),
    QT_TRANSLATE_NOOP("library", "Base of the data cache."),
    QT_TRANSLATE_NOOP("library", "Data tags"),
    QT_TRANSLATE_NOOP("library", "Base of the data tags."),
    QT_TRANSLATE_NOOP("library", "TLB"),
    QT_TRANSLATE_NOOP("library", "Base of the translation look-aside buffer."),
    QT_TRANSLATE_NOOP("library", "DCR"),
    QT_TRANSLATE_NOOP("library", "Base of the device control registers."),
    QT_TRANSLATE_NOOP("library", "On-chip instruction memory"),
    QT_TRANSLATE_NOOP("library", "Base of the on-chip instruction memory of a ppc405."),
    QT_TRANSLATE_NOOP("library", "On-chip memory size"),
    QT_TRANSLATE_NOOP("library", "Size of the on-chip instruction memory."),
    QT_TRANSLATE_NOOP("library", "bytes"),
    QT_TRANSLATE_NOOP("library", "On-chip memory DCR base"),
    QT_TRANSLATE_NOOP("library", "DCR base of the on-chip instruction memory."),
    QT_TRANSLATE_NOOP("library", "Read-only memory"),
    QT_TRANSLATE_NOOP("library", "Base of the read-only memory."),
    QT_TRANSLATE_NOOP("library", "Read-only memory size"),
    QT_TRANSLATE_NOOP("library", "Size of the read-only memory."),
    QT_TRANSLATE_NOOP("library", "Type of the download cable; a new type comes with its own port and frequency."),
    QT_TRANSLATE_NOOP("library", "Cable frequency"),
    QT_TRANSLATE_NOOP("library", "JTAG clock of the cable."),
    QT_TRANSLATE_NOOP("library", "Hz"),
    QT_TRANSLATE_NOOP("library", "that of the cable"),
    QT_TRANSLATE_NOOP("library", "Cable port"),
    QT_TRANSLATE_NOOP("library", "Where the cable is plugged in."),
    QT_TRANSLATE_NOOP("library", "Cable serial number"),
    QT_TRANSLATE_NOOP("library", "Electronic serial number that selects one of several cables."),
    QT_TRANSLATE_NOOP("library", "SVF file"),
    QT_TRANSLATE_NOOP("library", "Output file of a cable that writes one."),
    QT_TRANSLATE_NOOP("library", "SVF file named"),
    QT_TRANSLATE_NOOP("library", "A name was given for the SVF file."),
    QT_TRANSLATE_NOOP("library", "Module"),
    QT_TRANSLATE_NOOP("library", "Module of a plug-in cable."),
    QT_TRANSLATE_NOOP("library", "Module arguments"),
    QT_TRANSLATE_NOOP("library", "Arguments of the module, separated by ';'."),
    QT_TRANSLATE_NOOP("library", "Cable URL"),
    QT_TRANSLATE_NOOP("library", "Address of a cable on the network."),
    QT_TRANSLATE_NOOP("library", "Own JTAG pins"),
    QT_TRANSLATE_NOOP("library",
                      "The processor is reached through its own JTAG pins; such a command is not read back."),
    QT_TRANSLATE_NOOP("library", "The devices of the JTAG chain, in their order."),

    // Why a setting does not apply, cannot be changed, or is not written.
    QT_TRANSLATE_NOOP("library", "a command for this connection does not tell it"),
    QT_TRANSLATE_NOOP("library", "a command written anew does not have it"),
    QT_TRANSLATE_NOOP("library", "a command for this target and connection does not take it"),
    QT_TRANSLATE_NOOP("library", "it has its default"),
    QT_TRANSLATE_NOOP("library", "it is for a PowerPC with the connection 'hardware'"),
    QT_TRANSLATE_NOOP("library", "it is for a cable of the type 'zarvek_plugin'"),
    QT_TRANSLATE_NOOP("library", "it is for a ppc405 with the connection 'hardware'"),
    QT_TRANSLATE_NOOP("library", "it is for the connection 'hardware'"),
    QT_TRANSLATE_NOOP("library", "it is for the connection 'stub' over a serial line"),
    QT_TRANSLATE_NOOP("library", "it is for the connection 'virtual-platform'"),
    QT_TRANSLATE_NOOP("library", "it is for the connections 'hardware' and 'stub'"),
    QT_TRANSLATE_NOOP("library", "it is for the simulator of a PowerPC"),
    QT_TRANSLATE_NOOP("library", "it is for the simulator of a PowerPC and for the virtual platform"),
    QT_TRANSLATE_NOOP("library", "it is for the simulator of a soft processor"),
    QT_TRANSLATE_NOOP("library", "it is never written: '-sim' is not written"),
    QT_TRANSLATE_NOOP("library", "it is never written: 'ov sim' is written alone"),
    QT_TRANSLATE_NOOP("library", "it is never written: kept for programs"),
    QT_TRANSLATE_NOOP("library", "it is never written: no type is written with it"),
    QT_TRANSLATE_NOOP("library", "it is never written: the writer has no text for it"),
    QT_TRANSLATE_NOOP("library", "it is written 'USER1' only; 'USER3' and 'USER4' are lost"),
    QT_TRANSLATE_NOOP("library", "it is written for some types, unless 'esn' is set"),
    QT_TRANSLATE_NOOP("library", "it is written for some types, when set; one 'modulearg' for each"),
    QT_TRANSLATE_NOOP("library", "it is written hardware connection, start set and size not 0"),
    QT_TRANSLATE_NOOP("library", "it is written ppc405, 'isocmStartAdr' set"),
    QT_TRANSLATE_NOOP("library", "it is written unless the connection is simulator or stub"),
    QT_TRANSLATE_NOOP("library", "it is written when a host is set and '-icf' is not"),
    QT_TRANSLATE_NOOP("library", "of a device number, part, length and IDCODE are written"),
    QT_TRANSLATE_NOOP("library", "only a PowerPC has one"),
    QT_TRANSLATE_NOOP("library", "other settings tell it"),
    QT_TRANSLATE_NOOP("library", "the cable has no such setting"),
    QT_TRANSLATE_NOOP("library", "the connection uses no cable"),
    QT_TRANSLATE_NOOP("library", "the design tells it"),
    QT_TRANSLATE_NOOP("library", "the hardware simulator is not enabled"),
    QT_TRANSLATE_NOOP("library", "the processor has no stub connection"),

    // The kinds of findings.
    QT_TRANSLATE_NOOP("library", "incomplete command"),
    QT_TRANSLATE_NOOP("library",
                      "The text ends before it is a connect command. A command has a head, a target and, for most "
                      "targets, a connection keyword: 'connect ov odm'. Only options may be missing."),
    QT_TRANSLATE_NOOP("library", "Add the word that is missing; the message lists those that can follow."),
    QT_TRANSLATE_NOOP("library", "no such head"),
    QT_TRANSLATE_NOOP("library",
                      "A command begins with 'connect' or 'vpconnect'; the first word is neither. The text is refused, "
                      "and nothing behind this word is read."),
    QT_TRANSLATE_NOOP("library",
                      "Correct the first word. If the text is not a connect command at all, take the command from "
                      "elsewhere: 'qvtcfg command PROC' prints the one for the settings of a processor."),
    QT_TRANSLATE_NOOP("library", "no such target"),
    QT_TRANSLATE_NOOP(
        "library",
        "The word after the head names the kind of processor, such as 'ov' for a soft processor or 'ppc' for a "
        "PowerPC. This one is not known, or does not belong to this head: after 'vpconnect' only 'ov' can stand."),
    QT_TRANSLATE_NOOP("library", "Write one of the targets that the message lists."),
    QT_TRANSLATE_NOOP("library", "no such connection"),
    QT_TRANSLATE_NOOP(
        "library",
        "The word after the target tells how the processor is reached, such as 'odm', 'hw', 'stub' or 'sim'. Each "
        "target has its own: a soft processor ('ov') is reached by 'odm', all others by 'hw'."),
    QT_TRANSLATE_NOOP("library", "Write one of the connection keywords that the message lists for this target."),
    QT_TRANSLATE_NOOP("library", "no such option"),
    QT_TRANSLATE_NOOP(
        "library", "A word that begins with a dash is an option, and there is none of this name. The text is refused."),
    QT_TRANSLATE_NOOP(
        "library",
        "Correct the name. If it is meant as a value: a value cannot begin with a dash, unless a digit follows."),
    QT_TRANSLATE_NOOP("library", "option in the wrong place"),
    QT_TRANSLATE_NOOP("library",
                      "The option exists, but not for this target, this connection, or behind the option '-sim', which "
                      "takes all options up to the end of the text."),
    QT_TRANSLATE_NOOP("library",
                      "Remove the option, or choose the target and the connection that it is for. An option for the "
                      "processor stands in front of '-sim'."),
    QT_TRANSLATE_NOOP("library", "no such keyword"),
    QT_TRANSLATE_NOOP("library",
                      "An option such as '-cable' or '-debugdevice' is followed by pairs of a keyword and a value. "
                      "This word stands where a keyword is expected, and no option has such a keyword. A value of two "
                      "words, or a missing value, also leads to this."),
    QT_TRANSLATE_NOOP("library", "Correct the keyword, or remove it together with its value."),
    QT_TRANSLATE_NOOP("library", "keyword of another option"),
    QT_TRANSLATE_NOOP("library", "The keyword exists, but belongs to another option. The message names that option."),
    QT_TRANSLATE_NOOP(
        "library",
        "Move the keyword and its value behind the option that it belongs to, or put that option in front of it."),
    QT_TRANSLATE_NOOP("library", "value that is not one of the accepted words"),
    QT_TRANSLATE_NOOP(
        "library", "Some options and keywords take one of a few words. This is none of them, and the text is refused."),
    QT_TRANSLATE_NOOP("library", "Write one of the words that the message lists."),
    QT_TRANSLATE_NOOP("library", "missing value"),
    QT_TRANSLATE_NOOP("library",
                      "A keyword or an option that needs a value has none: the text ends, or an option follows. A word "
                      "that begins with a dash is a value only if a digit follows the dash."),
    QT_TRANSLATE_NOOP("library", "Add the value, or remove the keyword."),
    QT_TRANSLATE_NOOP("library", "word that belongs to no option"),
    QT_TRANSLATE_NOOP("library",
                      "An option is expected here, and an option begins with a dash. Often the dash is missing, or the "
                      "option in front takes fewer values than are given."),
    QT_TRANSLATE_NOOP("library", "Put the dash in front if the word is an option; else remove it."),
    QT_TRANSLATE_NOOP("library", "dash without a name"),
    QT_TRANSLATE_NOOP(
        "library",
        "A dash stands alone between blanks. It is neither an option nor a value, and the reading ends here with an "
        "error. Often there is a blank too many between the dash and the name of the option."),
    QT_TRANSLATE_NOOP("library", "Remove the dash, or the blank behind it."),
    QT_TRANSLATE_NOOP("library", "not allowed in an option file"),
    QT_TRANSLATE_NOOP("library",
                      "The heads 'qconnect' and 'qvpconnect' and the targets 'dap', 'odm', 'dcc' and 'qmtc' are for "
                      "commands that a program hands over. In an option file they are refused."),
    QT_TRANSLATE_NOOP("library",
                      "Write 'connect' for 'qconnect' and 'vpconnect' for 'qvpconnect', which mean the same. For such "
                      "a target give the command to the debugger, not to an option file."),
    QT_TRANSLATE_NOOP("library", "connection that the processor does not admit"),
    QT_TRANSLATE_NOOP("library",
                      "The design tells how a processor can be reached, and this connection is not among them: a soft "
                      "processor without a debug module has no 'odm', and only one with a light UART has a 'stub'. "
                      "This is found only where the design is known."),
    QT_TRANSLATE_NOOP("library", "Choose a connection that the message lists, or add what is missing to the design."),
    QT_TRANSLATE_NOOP("library", "number of another processor"),
    QT_TRANSLATE_NOOP("library",
                      "The value of 'cpunr' is not the number that this processor has in the design. The number comes "
                      "from the design and cannot be changed. This is found only where the design is known."),
    QT_TRANSLATE_NOOP("library",
                      "Write the number of the design, or remove 'cpunr' and its value. If another processor is meant, "
                      "the command belongs in the option file of that one."),
    QT_TRANSLATE_NOOP("library", "address that is not a multiple of 64 KB"),
    QT_TRANSLATE_NOOP("library",
                      "The six addresses of the debug address map, 'icacheStartAdr' to 'dcrStartAdr', must be "
                      "multiples of 64 KB: their last four hexadecimal digits are 0."),
    QT_TRANSLATE_NOOP(
        "library",
        "Give the address as it is in the design. If it is not a multiple of 0x10000 there, move it in the design."),
    QT_TRANSLATE_NOOP("library", "frequency that the cable does not support"),
    QT_TRANSLATE_NOOP("library",
                      "Each type of cable runs at a few frequencies, in Hz. Where '-cable' is the last option of the "
                      "text, the reader checks the frequency and refuses any other. Where an option follows, nothing "
                      "checks it, and the finding is a warning: the debugger gets the frequency as it is."),
    QT_TRANSLATE_NOOP("library",
                      "Write one of the frequencies that the message lists; 'qvtcfg cables' prints those of every "
                      "type. A plug-in or Digilent cable takes none: remove the keyword and its value."),
    QT_TRANSLATE_NOOP("library", "plug-in cable without a module"),
    QT_TRANSLATE_NOOP("library",
                      "A cable of type 'zarvek_plugin' needs the name of its module. Where '-cable' is the last option "
                      "of the text, the reader refuses it without. Where an option follows, the finding is a warning: "
                      "what a program then writes for the cable is not read back."),
    QT_TRANSLATE_NOOP("library", "Add 'modulename' and the name of the module."),
    QT_TRANSLATE_NOOP("library", "type of cable that is not supported"),
    QT_TRANSLATE_NOOP("library",
                      "The type of cable is known, and refused wherever it stands: 'zarvek_svffile' is not supported."),
    QT_TRANSLATE_NOOP("library", "Choose another type; 'qvtcfg cables' prints them."),
    QT_TRANSLATE_NOOP("library", "written in a form that cannot be read"),
    QT_TRANSLATE_NOOP(
        "library",
        "The debugger dialog writes a few settings in a form that its reader refuses: 'jtagpin cpujtag' for 'jtagport "
        "cpu', and the host and the port of the virtual platform joined to the option. Nobody mistyped it."),
    QT_TRANSLATE_NOOP("library",
                      "Write it in the form that is read: '-configdevice jtagport cpu', '-ipcport host:2340'. It comes "
                      "back the next time that the settings are written anew."),
    QT_TRANSLATE_NOOP("library", "byte-order mark in front of the command"),
    QT_TRANSLATE_NOOP("library",
                      "The file begins with the three bytes EF BB BF, which some editors put in front of a text in "
                      "UTF-8 and do not show. They join the first word, so that the command is refused."),
    QT_TRANSLATE_NOOP("library",
                      "Remove the three bytes, and save the file as UTF-8 without a byte-order mark, or as ASCII."),
    QT_TRANSLATE_NOOP("library", "blank line in front of the command"),
    QT_TRANSLATE_NOOP(
        "library",
        "The first line that is not empty is read. This one has only blanks, tabs or a carriage return in it: it is "
        "not empty, counts as the command, and is refused. Lines with no character at all are skipped."),
    QT_TRANSLATE_NOOP("library", "Remove the line."),
    QT_TRANSLATE_NOOP("library", "more than 1,023 characters"),
    QT_TRANSLATE_NOOP(
        "library",
        "The first 1,023 bytes of the command are read, about a dozen devices of a chain. The rest is ignored, and "
        "nothing says so. Where the line is cut in the middle of something, it may be refused or mean something else."),
    QT_TRANSLATE_NOOP("library",
                      "Shorten the command: drop options that have no effect and values that are the defaults, and "
                      "shorten the part names."),
    QT_TRANSLATE_NOOP("library", "carriage return"),
    QT_TRANSLATE_NOOP(
        "library",
        "The file has the line ends of Windows (CR LF), or a carriage return within a line. The reader drops one at "
        "the end of a word, and keeps one within a word as a part of it; other programs keep it in any case."),
    QT_TRANSLATE_NOOP("library", "Save the file with the line ends of Unix (LF)."),
    QT_TRANSLATE_NOOP("library", "line that looks like a comment"),
    QT_TRANSLATE_NOOP(
        "library",
        "There are no comments in an option file. In front of the command such a line is read as the command, and "
        "refused: it is an error there. Behind the command it is not read, as no further line is."),
    QT_TRANSLATE_NOOP("library", "Remove the line, and keep notes in a file of their own."),
    QT_TRANSLATE_NOOP("library", "lines that are not read"),
    QT_TRANSLATE_NOOP("library",
                      "Only the first line that is not empty is read; all others are ignored. Options that stand on a "
                      "line of their own have no effect."),
    QT_TRANSLATE_NOOP("library", "Join the lines to one if they belong to the command; else remove them."),
    QT_TRANSLATE_NOOP("library", "bytes that are not text"),
    QT_TRANSLATE_NOOP(
        "library",
        "The file has bytes that are not text: control characters, or bytes that are not UTF-8. The reader takes them "
        "as parts of words, and few other programs show them. In the first word it is an error."),
    QT_TRANSLATE_NOOP("library",
                      "Type the word again. If the whole file looks like that, it is no option file, or in another "
                      "encoding: save it as ASCII or UTF-8."),
    QT_TRANSLATE_NOOP("library", "quotes, a backslash or a variable"),
    QT_TRANSLATE_NOOP("library",
                      "There is no quoting and no escape: quotes and backslashes are parts of the value, and a blank "
                      "ends a value in any case. No shell reads the text: '~' and '$' are parts of the value, too."),
    QT_TRANSLATE_NOOP("library",
                      "Remove the quotes, and write the whole name of a file. A value that has a blank in it cannot be "
                      "given: rename the file."),
    QT_TRANSLATE_NOOP("library", "value that is not a number"),
    QT_TRANSLATE_NOOP("library",
                      "A number is expected. The reader takes what it can from the front of the word; here that is "
                      "nothing, and the value is 0 without a message."),
    QT_TRANSLATE_NOOP("library", "Write a number: decimal, or hexadecimal with '0x'."),
    QT_TRANSLATE_NOOP("library", "value with something behind it"),
    QT_TRANSLATE_NOOP("library",
                      "Of a number the reader takes the digits at the front of the word and ignores the rest, without "
                      "a message. A text keeps a comma or semicolon at its end."),
    QT_TRANSLATE_NOOP("library",
                      "Remove what is not a part of the value. Blanks alone separate words. There are no commas, "
                      "points or underscores in a number, and a hexadecimal number begins with '0x'."),
    QT_TRANSLATE_NOOP("library", "unit that is ignored"),
    QT_TRANSLATE_NOOP("library",
                      "A unit behind a number is ignored: '12MHz' is 12 Hz, '64K' is 64 bytes. Numbers are in the unit "
                      "of the keyword."),
    QT_TRANSLATE_NOOP("library",
                      "Write the whole number: '12000000' for 12 MHz, '0x10000' for 64 KB. 'qvtcfg set' takes units "
                      "and writes the number."),
    QT_TRANSLATE_NOOP("library", "number in octal"),
    QT_TRANSLATE_NOOP("library",
                      "A number that begins with 0 is octal: '010' is 8, and '08' is 0, since 8 is no octal digit."),
    QT_TRANSLATE_NOOP("library",
                      "Write the number without the zero in front: '8' for what is read now, or '10' if that is meant. "
                      "A hexadecimal number begins with '0x'."),
    QT_TRANSLATE_NOOP("library", "negative number"),
    QT_TRANSLATE_NOOP(
        "library",
        "Numbers are not negative, but for 'nCpu', and for 'cpunr', of which 200 is written as -56. Most of them are "
        "stored without a sign, so that '-1' becomes 4294967295; '-timeout' and the numbers of devices keep it."),
    QT_TRANSLATE_NOOP("library", "Write the number that is meant."),
    QT_TRANSLATE_NOOP("library", "number that does not fit"),
    QT_TRANSLATE_NOOP("library",
                      "Numbers have 32 bits, and a few of them 8 bits, such as 'deviceNr', 'cpunr' and 'irlength'. "
                      "What does not fit is cut off without a message: '300' in 8 bits is 44."),
    QT_TRANSLATE_NOOP("library", "Write a number that fits."),
    QT_TRANSLATE_NOOP("library", "host without a port"),
    QT_TRANSLATE_NOOP("library",
                      "The value is 'host:port', and there is no colon in it. The host is then ignored, and the port "
                      "is the default one of the simulator."),
    QT_TRANSLATE_NOOP("library", "Write the colon and the port: 'localhost:6470', or ':6470' for this machine."),
    QT_TRANSLATE_NOOP("library", "given twice"),
    QT_TRANSLATE_NOOP("library", "The last value counts; what stood before has no effect."),
    QT_TRANSLATE_NOOP("library", "Remove the one that is not meant."),
    QT_TRANSLATE_NOOP("library", "port in front of the type"),
    QT_TRANSLATE_NOOP("library",
                      "The type of a parallel or USB cable sets the port to its default. A port that stands in front "
                      "of the type is overwritten."),
    QT_TRANSLATE_NOOP("library", "If the port is meant, move it behind the type; else remove it."),
    QT_TRANSLATE_NOOP("library", "no effect beside an ESN"),
    QT_TRANSLATE_NOOP("library",
                      "A serial number ('esn') selects one cable. Port and frequency are then not used, and are lost "
                      "when the command is written anew."),
    QT_TRANSLATE_NOOP("library", "Keep either the serial number, or port and frequency."),
    QT_TRANSLATE_NOOP("library", "setting that does not apply"),
    QT_TRANSLATE_NOOP(
        "library",
        "The setting is stored, but nothing uses it: it is for another connection, another cable or another kind of "
        "processor. It is lost when the command is written anew. A frequency does not apply either where another "
        "'-cable' without one ends the text: that gives the cable its default."),
    QT_TRANSLATE_NOOP(
        "library",
        "Remove it, or choose the connection that it is for: the stub for '-comm', '-port', '-baud' and '-timeout'."),
    QT_TRANSLATE_NOOP("library", "FPU is taken from the design"),
    QT_TRANSLATE_NOOP("library",
                      "With a design the FPU of the processor is taken from it, and 'fpuType' has no effect. This is "
                      "found only where the design is known."),
    QT_TRANSLATE_NOOP("library",
                      "Remove 'fpuType' and its value. If the FPU of the design is wrong, correct the design."),
    QT_TRANSLATE_NOOP("library", "words that are not read"),
    QT_TRANSLATE_NOOP("library",
                      "After 'connect ov sim' one option is read, '-memsize' with its value. What follows is ignored "
                      "without a message."),
    QT_TRANSLATE_NOOP(
        "library", "Remove the words that are not read. If they are meant, another connection than 'sim' is needed."),
    QT_TRANSLATE_NOOP("library", "option in the place of a value"),
    QT_TRANSLATE_NOOP("library",
                      "An option that has no value takes the next word in its place, even another option, which is "
                      "then skipped. Neither has an effect."),
    QT_TRANSLATE_NOOP("library", "Add the value, or remove the option that has none."),
    QT_TRANSLATE_NOOP("library", "accepted without effect"),
    QT_TRANSLATE_NOOP("library",
                      "This is accepted and then forgotten: '-quiet', '-noattach', '-writeonly' and '-pfsl' set "
                      "nothing, and neither does '-cable' or '-debugdevice' without a keyword."),
    QT_TRANSLATE_NOOP("library",
                      "Remove it, or write the keyword that is missing; without it the command means the same."),
    QT_TRANSLATE_NOOP("library", "cable without a frequency"),
    QT_TRANSLATE_NOOP("library",
                      "A cable without 'frequency' has the default of its type only where '-cable' is the last option. "
                      "Where another option follows, the frequency is 0."),
    QT_TRANSLATE_NOOP("library", "Add 'frequency' and the number of Hz, or move '-cable' to the end."),
    QT_TRANSLATE_NOOP("library", "lost when the command is written anew"),
    QT_TRANSLATE_NOOP("library",
                      "The reader accepts this, but the writer has no text for it. When a program writes the settings "
                      "anew, as the debugger dialog does, it is gone."),
    QT_TRANSLATE_NOOP(
        "library",
        "Nothing is wrong as long as the file is edited by hand or by 'qvtcfg set', which keep it. Else note it down."),
    QT_TRANSLATE_NOOP("library", "cannot be read back once written"),
    QT_TRANSLATE_NOOP("library",
                      "The reader accepts this, but what a program writes for it is refused or means something else: "
                      "'jtagport cpu' is written as 'jtagpin cpujtag', which no reader knows."),
    QT_TRANSLATE_NOOP("library",
                      "Edit the file by hand or by 'qvtcfg set', which keep the form that is read, and do not store it "
                      "from a program that writes it anew."),
    QT_TRANSLATE_NOOP("library", "cannot be written"),
    QT_TRANSLATE_NOOP("library",
                      "The reader accepts this cable, but the writer has no text for its type. A program that wants to "
                      "store the settings gets an error, and the file stays as it is."),
    QT_TRANSLATE_NOOP("library",
                      "Edit the file by hand or by 'qvtcfg set', or choose another type; 'qvtcfg cables' tells which "
                      "types can be written."),
    QT_TRANSLATE_NOOP("library", "IDCODE that no device has"),
    QT_TRANSLATE_NOOP("library",
                      "Bit 0 of an IDCODE is always 1 (IEEE 1149.1), so that an even number, 0 too, is none; neither "
                      "is 0xffffffff. Without 'idcode' it is 0."),
    QT_TRANSLATE_NOOP("library", "Take the IDCODE from the data sheet of the device, with its '0x' in front."),
    QT_TRANSLATE_NOOP("library", "instruction register shorter than 2 bits"),
    QT_TRANSLATE_NOOP("library",
                      "The instruction register of a JTAG device has at least 2 bits (IEEE 1149.1). With a wrong "
                      "length, the debugger cannot reach this device and those behind it."),
    QT_TRANSLATE_NOOP("library", "Give 'irlength' as in the data sheet of the device."),
    QT_TRANSLATE_NOOP("library", "two devices with the same number"),
    QT_TRANSLATE_NOOP("library",
                      "Two devices of the chain have the same 'devicenr', so that the debug device is not certain."),
    QT_TRANSLATE_NOOP("library", "Number the devices 1, 2, 3 in their order in the chain."),
    QT_TRANSLATE_NOOP("library", "gap in the device numbers, or none"),
    QT_TRANSLATE_NOOP("library",
                      "The devices of a chain are numbered from 1 on, and a number is left out, or a device has none "
                      "or 0. A device may be missing, and then all positions behind it are wrong."),
    QT_TRANSLATE_NOOP("library",
                      "Add the device that is missing, or number the devices anew, and 'deviceNr' with them."),
    QT_TRANSLATE_NOOP("library", "devices out of order"),
    QT_TRANSLATE_NOOP("library",
                      "The devices do not stand in the order of their numbers. The chain is kept in the order of the "
                      "text, so that number and position differ."),
    QT_TRANSLATE_NOOP("library", "Put the '-configdevice' options in the order of the chain."),
    QT_TRANSLATE_NOOP("library", "debug device that the chain does not have"),
    QT_TRANSLATE_NOOP(
        "library",
        "The keyword 'deviceNr' of '-debugdevice' names the device of the chain that holds the processor, and no "
        "'-configdevice' has this number. A command without '-configdevice' has no such finding."),
    QT_TRANSLATE_NOOP("library",
                      "Write the number of the device that holds the processor, or add that device to the chain."),
    QT_TRANSLATE_NOOP("library", "one IDCODE with two lengths"),
    QT_TRANSLATE_NOOP("library",
                      "Two devices are of the same kind by their IDCODE (its first four bits, the version, do not "
                      "count), but their instruction registers have different lengths. One of them is wrong."),
    QT_TRANSLATE_NOOP("library", "Give both the length in the data sheet, or correct the IDCODE."),
    QT_TRANSLATE_NOOP("library", "no such processor in the design"),
    QT_TRANSLATE_NOOP("library",
                      "The name of an option file, 'etc/qvt_NAME.opt', is that of a processor, and the design has none "
                      "of this name, or one that cannot be debugged. The file may be left from an older design. This "
                      "is found only where the design is known, whatever the command is."),
    QT_TRANSLATE_NOOP(
        "library",
        "Remove the file, or rename it to the processor that it is meant for; 'qvtcfg processors' prints the names."),
    QT_TRANSLATE_NOOP("library", "command for another kind of processor"),
    QT_TRANSLATE_NOOP(
        "library",
        "The target of the command is not that of the processor in the design, such as 'arm' for a soft processor. The "
        "reader compares the connection alone, and accepts it. This is found only where the design is known."),
    QT_TRANSLATE_NOOP("library",
                      "Write the target of this processor. If the command is meant for another processor, it belongs "
                      "in the option file of that one."),
    QT_TRANSLATE_NOOP("library", "one cable with two chains"),
    QT_TRANSLATE_NOOP(
        "library",
        "Two processors are reached through the same cable, by type and port or by serial number, but their option "
        "files describe different JTAG chains behind it. This is found only where both files are checked together."),
    QT_TRANSLATE_NOOP("library",
                      "Give both the same chain, or each its own cable. 'qvtcfg copy' gives the settings of one "
                      "processor to another."),
    QT_TRANSLATE_NOOP("library", "one cable with two frequencies"),
    QT_TRANSLATE_NOOP("library",
                      "Two processors are reached through the same cable, by type and port or by serial number, and "
                      "their option files give it different frequencies. The cable runs at one frequency at a time. "
                      "This is found only where both files are checked together."),
    QT_TRANSLATE_NOOP("library", "Give both the same frequency: that of the slower one, unless it is a mistake."),
    QT_TRANSLATE_NOOP("library", "two files for one processor"),
    QT_TRANSLATE_NOOP(
        "library",
        "Two option files have the same cable, debug device and 'cpunr'. Both lead to the same processor, though their "
        "names are of two. This is found only where both files are checked together."),
    QT_TRANSLATE_NOOP("library",
                      "Correct 'deviceNr' or 'cpunr' of one of them, or remove a file that was copied by mistake."),
    QT_TRANSLATE_NOOP("library", "more findings than are listed"),
    QT_TRANSLATE_NOOP("library",
                      "Of one kind, 1,000 findings of a text are listed. There are more, and this stands for them; the "
                      "example would have to go on as it begins."),
    QT_TRANSLATE_NOOP("library",
                      "Correct those that are listed, and check again. A text with so many findings is often not an "
                      "option file at all."),
};

}  // namespace

std::span<const char* const> library_strings() { return kStrings; }

}  // namespace qvtdialog
