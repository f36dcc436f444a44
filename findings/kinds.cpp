// The kinds of findings, for people: also printed by "qvtcfg check --explain" and in docs/findings.md.

#include "findings/kinds.h"

#include <algorithm>

namespace SdkDebugDialog {
namespace {

const std::vector<FindingKind>& kinds() {
  static const std::vector<FindingKind> kKinds = {
      {.code = "incomplete-command",
       .severity = Severity::error,
       .title = "incomplete command",
       .meaning = "The text ends before it is a connect command. A command has a head, a target and, for most "
                  "targets, a connection keyword: 'connect ov odm'. Only options may be missing.",
       .example = "connect ov",
       .advice = "Add the word that is missing; the message lists those that can follow."},
      {.code = "unknown-head",
       .severity = Severity::error,
       .title = "no such head",
       .meaning = "A command begins with 'connect' or 'vpconnect'; the first word is neither. The text is refused, "
                  "and nothing behind this word is read.",
       .example = "conect ov odm -debugdevice deviceNr 2",
       .advice = "Correct the first word. If the text is not a connect command at all, take the command from "
                 "elsewhere: 'qvtcfg command PROC' prints the one for the settings of a processor."},
      {.code = "unknown-target",
       .severity = Severity::error,
       .title = "no such target",
       .meaning = "The word after the head names the kind of processor, such as 'ov' for a soft processor or 'ppc' "
                  "for a PowerPC. This one is not known, or does not belong to this head: after 'vpconnect' only "
                  "'ov' can stand.",
       .example = "connect arm9 hw -debugdevice deviceNr 2",
       .advice = "Write one of the targets that the message lists."},
      {.code = "unknown-connection",
       .severity = Severity::error,
       .title = "no such connection",
       .meaning = "The word after the target tells how the processor is reached, such as 'odm', 'hw', 'stub' or "
                  "'sim'. Each target has its own: a soft processor ('ov') is reached by 'odm', all others by 'hw'.",
       .example = "connect ov hw -debugdevice deviceNr 2",
       .advice = "Write one of the connection keywords that the message lists for this target."},
      {.code = "unknown-option",
       .severity = Severity::error,
       .title = "no such option",
       .meaning = "A word that begins with a dash is an option, and there is none of this name. The text is "
                  "refused.",
       .example = "connect ov odm -cabel type zarvek_platformusb frequency 6000000 -debugdevice deviceNr 2",
       .advice = "Correct the name. If it is meant as a value: a value cannot begin with a dash, unless a digit "
                 "follows."},
      {.code = "misplaced-option",
       .severity = Severity::error,
       .title = "option in the wrong place",
       .meaning = "The option exists, but not for this target, this connection, or behind the option '-sim', which "
                  "takes all options up to the end of the text.",
       .example = "connect ov odm -memsize 0x10000 -debugdevice deviceNr 2",
       .advice = "Remove the option, or choose the target and the connection that it is for. An option for the "
                 "processor stands in front of '-sim'."},
      {.code = "unknown-keyword",
       .severity = Severity::error,
       .title = "no such keyword",
       .meaning = "An option such as '-cable' or '-debugdevice' is followed by pairs of a keyword and a value. "
                  "This word stands where a keyword is expected, and no option has such a keyword. A value of two "
                  "words, or a missing value, also leads to this.",
       .example = "connect ov odm -cable type zarvek_platformusb freq 6000000 -debugdevice deviceNr 2",
       .advice = "Correct the keyword, or remove it together with its value."},
      {.code = "misplaced-keyword",
       .severity = Severity::error,
       .title = "keyword of another option",
       .meaning = "The keyword exists, but belongs to another option. The message names that option.",
       .example = "connect ov odm -cable type zarvek_platformusb frequency 6000000 deviceNr 2",
       .advice = "Move the keyword and its value behind the option that it belongs to, or put that option in front "
                 "of it."},
      {.code = "invalid-value",
       .severity = Severity::error,
       .title = "value that is not one of the accepted words",
       .meaning = "Some options and keywords take one of a few words. This is none of them, and the text is "
                  "refused.",
       .example = "connect ov odm -bscan USER5 -debugdevice deviceNr 2",
       .advice = "Write one of the words that the message lists."},
      {.code = "missing-value",
       .severity = Severity::error,
       .title = "missing value",
       .meaning = "A keyword or an option that needs a value has none: the text ends, or an option follows. A word "
                  "that begins with a dash is a value only if a digit follows the dash.",
       .example = "connect ov odm -cable type zarvek_platformusb frequency -debugdevice deviceNr 2",
       .advice = "Add the value, or remove the keyword."},
      {.code = "word-without-option",
       .severity = Severity::error,
       .title = "word that belongs to no option",
       .meaning = "An option is expected here, and an option begins with a dash. Often the dash is missing, or the "
                  "option in front takes fewer values than are given.",
       .example = "connect ov odm debugdevice deviceNr 2",
       .advice = "Put the dash in front if the word is an option; else remove it."},
      {.code = "lone-dash",
       .severity = Severity::error,
       .title = "dash without a name",
       .meaning = "A dash stands alone between blanks. It is neither an option nor a value, and the reading ends "
                  "here with an error. Often there is a blank too many between the dash and the name of the option.",
       .example = "connect ov odm - -debugdevice deviceNr 2",
       .advice = "Remove the dash, or the blank behind it."},
      {.code = "not-in-file",
       .severity = Severity::error,
       .title = "not allowed in an option file",
       .meaning = "The heads 'qconnect' and 'qvpconnect' and the targets 'dap', 'odm', 'dcc' and 'qmtc' are for "
                  "commands that a program hands over. In an option file they are refused.",
       .example = "qconnect ov odm -debugdevice deviceNr 2",
       .exampleKind = TextKind::optionFile,
       .advice = "Write 'connect' for 'qconnect' and 'vpconnect' for 'qvpconnect', which mean the same. For such a "
                 "target give the command to the debugger, not to an option file."},
      {.code = "connection-not-admitted",
       .severity = Severity::error,
       .title = "connection that the processor does not admit",
       .meaning = "The design tells how a processor can be reached, and this connection is not among them: a soft "
                  "processor without a debug module has no 'odm', and only one with a light UART has a 'stub'. "
                  "This is found only where the design is known.",
       .example = "connect ov stub -comm serial -port /dev/ttyUSB0 -baud 115200",
       .advice = "Choose a connection that the message lists, or add what is missing to the design."},
      {.code = "wrong-cpu-number",
       .severity = Severity::error,
       .title = "number of another processor",
       .meaning = "The value of 'cpunr' is not the number that this processor has in the design. The number comes "
                  "from the design and cannot be changed. This is found only where the design is known.",
       .example = "connect ov odm -debugdevice deviceNr 2 cpunr 9",
       .advice = "Write the number of the design, or remove 'cpunr' and its value. If another processor is meant, "
                 "the command belongs in the option file of that one."},
      {.code = "misaligned-address",
       .severity = Severity::error,
       .title = "address that is not a multiple of 64 KB",
       .meaning = "The six addresses of the debug address map, 'icacheStartAdr' to 'dcrStartAdr', must be "
                  "multiples of 64 KB: their last four hexadecimal digits are 0.",
       .example = "connect ppc hw -debugdevice deviceNr 1 icacheStartAdr 0x70001000",
       .advice = "Give the address as it is in the design. If it is not a multiple of 0x10000 there, move it in "
                 "the design."},
      {.code = "unsupported-frequency",
       .severity = Severity::error,
       .title = "frequency that the cable does not support",
       .meaning = "Each type of cable runs at a few frequencies, in Hz. Where '-cable' is the last option of the "
                  "text, the reader checks the frequency and refuses any other. Where an option follows, nothing "
                  "checks it, and the finding is a warning: the debugger gets the frequency as it is.",
       .example = "connect ov odm -debugdevice deviceNr 2 -cable type zarvek_platformusb frequency 5000000",
       .advice = "Write one of the frequencies that the message lists; 'qvtcfg cables' prints those of every type. "
                 "A plug-in or Digilent cable takes none: remove the keyword and its value."},
      {.code = "missing-module",
       .severity = Severity::error,
       .title = "plug-in cable without a module",
       .meaning = "A cable of type 'zarvek_plugin' needs the name of its module. Where '-cable' is the last option "
                  "of the text, the reader refuses it without. Where an option follows, the finding is a warning: "
                  "what a program then writes for the cable is not read back.",
       .example = "connect ov odm -debugdevice deviceNr 2 -cable type zarvek_plugin",
       .advice = "Add 'modulename' and the name of the module."},
      {.code = "unsupported-cable",
       .severity = Severity::error,
       .title = "type of cable that is not supported",
       .meaning = "The type of cable is known, and refused wherever it stands: 'zarvek_svffile' is not supported.",
       .example = "connect ov odm -cable type zarvek_svffile -debugdevice deviceNr 2",
       .advice = "Choose another type; 'qvtcfg cables' prints them."},
      {.code = "written-not-read",
       .severity = Severity::error,
       .title = "written in a form that cannot be read",
       .meaning = "The debugger dialog writes a few settings in a form that its reader refuses: 'jtagpin cpujtag' "
                  "for 'jtagport cpu', and the host and the port of the virtual platform joined to the option. "
                  "Nobody mistyped it.",
       .example = "connect ov odm -configdevice jtagpin cpujtag -debugdevice deviceNr 2",
       .advice = "Write it in the form that is read: '-configdevice jtagport cpu', '-ipcport host:2340'. It comes "
                 "back the next time that the settings are written anew."},
      {.code = "byte-order-mark",
       .severity = Severity::error,
       .title = "byte-order mark in front of the command",
       .meaning = "The file begins with the three bytes EF BB BF, which some editors put in front of a text in "
                  "UTF-8 and do not show. They join the first word, so that the command is refused.",
       .example = "\xEF\xBB\xBF"
                  "connect ov odm -debugdevice deviceNr 2",
       .exampleKind = TextKind::optionFile,
       .advice = "Remove the three bytes, and save the file as UTF-8 without a byte-order mark, or as ASCII."},
      {.code = "blank-first-line",
       .severity = Severity::error,
       .title = "blank line in front of the command",
       .meaning = "The first line that is not empty is read. This one has only blanks, tabs or a carriage return "
                  "in it: it is not empty, counts as the command, and is refused. Lines with no character at all "
                  "are skipped.",
       .example = "\t\nconnect ov odm -debugdevice deviceNr 2",
       .exampleKind = TextKind::optionFile,
       .advice = "Remove the line."},
      {.code = "line-too-long",
       .severity = Severity::warning,
       .title = "more than 1,023 characters",
       .meaning = "The first 1,023 bytes of the command are read, about a dozen devices of a chain. The rest is "
                  "ignored, and nothing says so. Where the line is cut in the middle of something, it may be "
                  "refused or mean something else.",
       .example = "connect ppc hw"
                  " -configdevice devicenr 1 partname fpga_01 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 2 partname fpga_02 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 3 partname fpga_03 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 4 partname fpga_04 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 5 partname fpga_05 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 6 partname fpga_06 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 7 partname fpga_07 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 8 partname fpga_08 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 9 partname fpga_09 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 10 partname fpga_10 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 11 partname fpga_11 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 12 partname fpga_12 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 13 partname fpga_13 irlength 10 idcode 0x0a001093"
                  " -configdevice devicenr 14 partname cpu irlength 10 idcode 0x0a001093"
                  " -debugdevice deviceNr 14",
       .exampleKind = TextKind::optionFile,
       .advice = "Shorten the command: drop options that have no effect and values that are the defaults, and "
                 "shorten the part names."},
      {.code = "carriage-return",
       .severity = Severity::warning,
       .title = "carriage return",
       .meaning =
           "The file has the line ends of Windows (CR LF), or a carriage return within a line. The reader drops one at "
           "the end of a word, and keeps one within a word as a part of it; other programs keep it in any case.",
       .example = "connect ov odm -debugdevice deviceNr 2\r\n",
       .exampleKind = TextKind::optionFile,
       .advice = "Save the file with the line ends of Unix (LF)."},
      {.code = "comment",
       .severity = Severity::warning,
       .title = "line that looks like a comment",
       .meaning = "There are no comments in an option file. In front of the command such a line is read as the "
                  "command, and refused: it is an error there. Behind the command it is not read, as no further "
                  "line is.",
       .example = "connect ov odm -debugdevice deviceNr 2\n# the board in the lab\n",
       .exampleKind = TextKind::optionFile,
       .advice = "Remove the line, and keep notes in a file of their own."},
      {.code = "further-lines",
       .severity = Severity::warning,
       .title = "lines that are not read",
       .meaning = "Only the first line that is not empty is read; all others are ignored. Options that stand on a "
                  "line of their own have no effect.",
       .example = "connect ov odm -bscan USER1\n-debugdevice deviceNr 2\n",
       .exampleKind = TextKind::optionFile,
       .advice = "Join the lines to one if they belong to the command; else remove them."},
      {.code = "not-text",
       .severity = Severity::warning,
       .title = "bytes that are not text",
       .meaning = "The file has bytes that are not text: control characters, or bytes that are not UTF-8. The "
                  "reader takes them as parts of words, and few other programs show them. In the first word it is "
                  "an error.",
       .example = "connect ov stub -comm serial -port /dev/tty\x01"
                  " -baud 115200",
       .exampleKind = TextKind::optionFile,
       .advice = "Type the word again. If the whole file looks like that, it is no option file, or in another "
                 "encoding: save it as ASCII or UTF-8."},
      {.code = "quotes",
       .severity = Severity::warning,
       .title = "quotes, a backslash or a variable",
       .meaning = "There is no quoting and no escape: quotes and backslashes are parts of the value, and a blank "
                  "ends a value in any case. No shell reads the text: '~' and '$' are parts of the value, too.",
       .example = "connect ppc sim -icf \"sim.icf\"",
       .advice = "Remove the quotes, and write the whole name of a file. A value that has a blank in it cannot be "
                 "given: rename the file."},
      {.code = "not-a-number",
       .severity = Severity::warning,
       .title = "value that is not a number",
       .meaning = "A number is expected. The reader takes what it can from the front of the word; here that is "
                  "nothing, and the value is 0 without a message.",
       .example = "connect ov odm -debugdevice deviceNr two",
       .advice = "Write a number: decimal, or hexadecimal with '0x'."},
      {.code = "trailing-characters",
       .severity = Severity::warning,
       .title = "value with something behind it",
       .meaning = "Of a number the reader takes the digits at the front of the word and ignores the rest, without a "
                  "message. A text keeps a comma or semicolon at its end.",
       .example = "connect ov odm -debugdevice deviceNr 2,",
       .advice = "Remove what is not a part of the value. Blanks alone separate words. There are no commas, points or "
                 "underscores in a number, and a hexadecimal number begins with '0x'."},
      {.code = "unit-ignored",
       .severity = Severity::warning,
       .title = "unit that is ignored",
       .meaning = "A unit behind a number is ignored: '12MHz' is 12 Hz, '64K' is 64 bytes. Numbers are in the unit "
                  "of the keyword.",
       .example = "connect ov odm -debugdevice deviceNr 2 romemStartAdr 0x1000 romemSize 64K",
       .advice = "Write the whole number: '12000000' for 12 MHz, '0x10000' for 64 KB. 'qvtcfg set' takes units and "
                 "writes the number."},
      {.code = "octal-number",
       .severity = Severity::warning,
       .title = "number in octal",
       .meaning = "A number that begins with 0 is octal: '010' is 8, and '08' is 0, since 8 is no octal digit.",
       .example = "connect ov odm -debugdevice deviceNr 010",
       .advice = "Write the number without the zero in front: '8' for what is read now, or '10' if that is meant. A "
                 "hexadecimal number begins with '0x'."},
      {.code = "negative-number",
       .severity = Severity::warning,
       .title = "negative number",
       .meaning = "Numbers are not negative, but for 'nCpu', and for 'cpunr', of which 200 is written as -56. Most of "
                  "them are stored without a sign, so that '-1' becomes 4294967295; '-timeout' and the numbers of "
                  "devices keep it.",
       .example = "connect ov stub -comm serial -port /dev/ttyUSB0 -baud 115200 -timeout -1",
       .advice = "Write the number that is meant."},
      {.code = "number-too-large",
       .severity = Severity::warning,
       .title = "number that does not fit",
       .meaning = "Numbers have 32 bits, and a few of them 8 bits, such as 'deviceNr', 'cpunr' and 'irlength'. "
                  "What does not fit is cut off without a message: '300' in 8 bits is 44.",
       .example = "connect ov odm -debugdevice deviceNr 300",
       .advice = "Write a number that fits."},
      {.code = "address-without-port",
       .severity = Severity::warning,
       .title = "host without a port",
       .meaning = "The value is 'host:port', and there is no colon in it. The host is then ignored, and the port "
                  "is the default one of the simulator.",
       .example = "connect ppc sim -ipcport localhost",
       .advice = "Write the colon and the port: 'localhost:6470', or ':6470' for this machine."},
      {.code = "given-twice",
       .severity = Severity::warning,
       .title = "given twice",
       .meaning = "The last value counts; what stood before has no effect.",
       .example = "connect ov odm -cable type zarvek_platformusb frequency 6000000 frequency 12000000 -debugdevice "
                  "deviceNr 2",
       .advice = "Remove the one that is not meant."},
      {.code = "port-before-type",
       .severity = Severity::warning,
       .title = "port in front of the type",
       .meaning = "The type of a parallel or USB cable sets the port to its default. A port that stands in front "
                  "of the type is overwritten.",
       .example = "connect ov odm -cable port USB22 type zarvek_platformusb frequency 6000000 -debugdevice "
                  "deviceNr 2",
       .advice = "If the port is meant, move it behind the type; else remove it."},
      {.code = "beside-esn",
       .severity = Severity::warning,
       .title = "no effect beside an ESN",
       .meaning = "A serial number ('esn') selects one cable. Port and frequency are then not used, and are lost "
                  "when the command is written anew.",
       .example = "connect ov odm -cable type zarvek_platformusb esn 1234 port USB22 -debugdevice deviceNr 2",
       .advice = "Keep either the serial number, or port and frequency."},
      {.code = "does-not-apply",
       .severity = Severity::warning,
       .title = "setting that does not apply",
       .meaning = "The setting is stored, but nothing uses it: it is for another connection, another cable or "
                  "another kind of processor. It is lost when the command is written anew. A frequency does not apply "
                  "either where another '-cable' without one ends the text: that gives the cable its default.",
       .example = "connect ov odm -baud 115200 -debugdevice deviceNr 2",
       .advice = "Remove it, or choose the connection that it is for: the stub for '-comm', '-port', '-baud' and "
                 "'-timeout'."},
      {.code = "fpu-from-design",
       .severity = Severity::warning,
       .title = "FPU is taken from the design",
       .meaning = "With a design the FPU of the processor is taken from it, and 'fpuType' has no effect. This is "
                  "found only where the design is known.",
       .example = "connect ppc hw -debugdevice deviceNr 1 fpuType dp",
       .advice = "Remove 'fpuType' and its value. If the FPU of the design is wrong, correct the design."},
      {.code = "not-reached",
       .severity = Severity::warning,
       .title = "words that are not read",
       .meaning = "After 'connect ov sim' one option is read, '-memsize' with its value. What follows is ignored "
                  "without a message.",
       .example = "connect ov sim -memsize 0x10000 -debugdevice deviceNr 2",
       .advice = "Remove the words that are not read. If they are meant, another connection than 'sim' is needed."},
      {.code = "skipped-option",
       .severity = Severity::warning,
       .title = "option in the place of a value",
       .meaning = "An option that has no value takes the next word in its place, even another option, which is "
                  "then skipped. Neither has an effect.",
       .example = "connect ov stub -comm -quiet -debugdevice deviceNr 2",
       .advice = "Add the value, or remove the option that has none."},
      {.code = "no-effect",
       .severity = Severity::warning,
       .title = "accepted without effect",
       .meaning = "This is accepted and then forgotten: '-quiet', '-noattach', '-writeonly' and '-pfsl' set "
                  "nothing, and neither does '-cable' or '-debugdevice' without a keyword.",
       .example = "connect ov odm -quiet -debugdevice deviceNr 2",
       .advice = "Remove it, or write the keyword that is missing; without it the command means the same."},
      {.code = "missing-frequency",
       .severity = Severity::warning,
       .title = "cable without a frequency",
       .meaning = "A cable without 'frequency' has the default of its type only where '-cable' is the last option. "
                  "Where another option follows, the frequency is 0.",
       .example = "connect ov odm -cable type zarvek_platformusb -debugdevice deviceNr 2",
       .advice = "Add 'frequency' and the number of Hz, or move '-cable' to the end."},
      {.code = "lost-when-written",
       .severity = Severity::warning,
       .title = "lost when the command is written anew",
       .meaning = "The reader accepts this, but the writer has no text for it. When a program writes the settings "
                  "anew, as the debugger dialog does, it is gone.",
       .example = "connect ov odm -bscan USER3 -debugdevice deviceNr 2",
       .advice = "Nothing is wrong as long as the file is edited by hand or by 'qvtcfg set', which keep it. Else "
                 "note it down."},
      {.code = "not-read-back",
       .severity = Severity::warning,
       .title = "cannot be read back once written",
       .meaning = "The reader accepts this, but what a program writes for it is refused or means something else: "
                  "'jtagport cpu' is written as 'jtagpin cpujtag', which no reader knows.",
       .example = "connect ov odm -configdevice devicenr 1 partname cpu irlength 8 idcode 0x0a001093 jtagport cpu "
                  "-debugdevice deviceNr 1",
       .advice = "Edit the file by hand or by 'qvtcfg set', which keep the form that is read, and do not store it "
                 "from a program that writes it anew."},
      {.code = "cannot-be-written",
       .severity = Severity::warning,
       .title = "cannot be written",
       .meaning = "The reader accepts this cable, but the writer has no text for its type. A program that wants to "
                  "store the settings gets an error, and the file stays as it is.",
       .example = "connect ov odm -cable type zarvek_tcf frequency 6000000 -debugdevice deviceNr 2",
       .advice = "Edit the file by hand or by 'qvtcfg set', or choose another type; 'qvtcfg cables' tells which "
                 "types can be written."},
      {.code = "invalid-idcode",
       .severity = Severity::warning,
       .title = "IDCODE that no device has",
       .meaning = "Bit 0 of an IDCODE is always 1 (IEEE 1149.1), so that an even number, 0 too, is none; neither "
                  "is 0xffffffff. Without 'idcode' it is 0.",
       .example = "connect ov odm -configdevice devicenr 1 partname fpga irlength 10 idcode 0x0a001092 "
                  "-debugdevice deviceNr 1",
       .advice = "Take the IDCODE from the data sheet of the device, with its '0x' in front."},
      {.code = "short-instruction-register",
       .severity = Severity::warning,
       .title = "instruction register shorter than 2 bits",
       .meaning = "The instruction register of a JTAG device has at least 2 bits (IEEE 1149.1). With a wrong "
                  "length, the debugger cannot reach this device and those behind it.",
       .example = "connect ov odm -configdevice devicenr 1 partname fpga irlength 1 idcode 0x0a001093 -debugdevice "
                  "deviceNr 1",
       .advice = "Give 'irlength' as in the data sheet of the device."},
      {.code = "repeated-device-number",
       .severity = Severity::warning,
       .title = "two devices with the same number",
       .meaning = "Two devices of the chain have the same 'devicenr', so that the debug device is not certain.",
       .example = "connect ov odm -configdevice devicenr 1 partname prom irlength 16 idcode 0x05059093 "
                  "-configdevice devicenr 1 partname fpga irlength 10 idcode 0x0a001093 -debugdevice deviceNr 1",
       .advice = "Number the devices 1, 2, 3 in their order in the chain."},
      {.code = "device-number-gap",
       .severity = Severity::warning,
       .title = "gap in the device numbers, or none",
       .meaning = "The devices of a chain are numbered from 1 on, and a number is left out, or a device has none or 0. "
                  "A device may be missing, and then all positions behind it are wrong.",
       .example = "connect ov odm -configdevice devicenr 1 partname prom irlength 16 idcode 0x05059093 "
                  "-configdevice devicenr 3 partname fpga irlength 10 idcode 0x0a001093 -debugdevice deviceNr 3",
       .advice = "Add the device that is missing, or number the devices anew, and 'deviceNr' with them."},
      {.code = "device-order",
       .severity = Severity::warning,
       .title = "devices out of order",
       .meaning = "The devices do not stand in the order of their numbers. The chain is kept in the order of the "
                  "text, so that number and position differ.",
       .example = "connect ov odm -configdevice devicenr 2 partname fpga irlength 10 idcode 0x0a001093 "
                  "-configdevice devicenr 1 partname prom irlength 16 idcode 0x05059093 -debugdevice deviceNr 2",
       .advice = "Put the '-configdevice' options in the order of the chain."},
      {.code = "no-such-device",
       .severity = Severity::warning,
       .title = "debug device that the chain does not have",
       .meaning =
           "The keyword 'deviceNr' of '-debugdevice' names the device of the chain that holds the processor, and no "
           "'-configdevice' has this number. A command without '-configdevice' has no such finding.",
       .example = "connect ov odm -configdevice devicenr 1 partname fpga irlength 10 idcode 0x0a001093 "
                  "-debugdevice deviceNr 2",
       .advice = "Write the number of the device that holds the processor, or add that device to the chain."},
      {.code = "idcode-two-lengths",
       .severity = Severity::warning,
       .title = "one IDCODE with two lengths",
       .meaning = "Two devices are of the same kind by their IDCODE (its first four bits, the version, do not "
                  "count), but their instruction registers have different lengths. One of them is wrong.",
       .example = "connect ov odm -configdevice devicenr 1 partname fpga irlength 10 idcode 0x0a001093 "
                  "-configdevice devicenr 2 partname fpga irlength 6 idcode 0x1a001093 -debugdevice deviceNr 2",
       .advice = "Give both the length in the data sheet, or correct the IDCODE."},
      {.code = "no-such-processor",
       .severity = Severity::error,
       .title = "no such processor in the design",
       .meaning = "The name of an option file, 'etc/qvt_NAME.opt', is that of a processor, and the design has none "
                  "of this name, or one that cannot be debugged. The file may be left from an older design. This "
                  "is found only where the design is known, whatever the command is.",
       .example = "connect ov odm -debugdevice deviceNr 2",
       .advice = "Remove the file, or rename it to the processor that it is meant for; 'qvtcfg processors' prints "
                 "the names."},
      {.code = "other-family",
       .severity = Severity::warning,
       .title = "command for another kind of processor",
       .meaning = "The target of the command is not that of the processor in the design, such as 'arm' for a soft "
                  "processor. The reader compares the connection alone, and accepts it. This is found only where "
                  "the design is known.",
       .example = "connect arm hw -debugdevice deviceNr 2",
       .advice = "Write the target of this processor. If the command is meant for another processor, it belongs in "
                 "the option file of that one."},
      {.code = "shared-cable-chain",
       .severity = Severity::warning,
       .title = "one cable with two chains",
       .meaning = "Two processors are reached through the same cable, by type and port or by serial number, but "
                  "their option files describe different JTAG chains behind it. This is found only where both "
                  "files are checked together.",
       .example = "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -configdevice "
                  "devicenr 1 partname fpga irlength 10 idcode 0x0a001093 -debugdevice deviceNr 1 cpunr 1",
       .advice = "Give both the same chain, or each its own cable. 'qvtcfg copy' gives the settings of one "
                 "processor to another."},
      {.code = "shared-cable-frequency",
       .severity = Severity::warning,
       .title = "one cable with two frequencies",
       .meaning = "Two processors are reached through the same cable, by type and port or by serial number, and "
                  "their option files give it different frequencies. The cable runs at one frequency at a time. "
                  "This is found only where both files are checked together.",
       .example = "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice "
                  "deviceNr 2 cpunr 1",
       .advice = "Give both the same frequency: that of the slower one, unless it is a mistake."},
      {.code = "same-processor",
       .severity = Severity::warning,
       .title = "two files for one processor",
       .meaning = "Two option files have the same cable, debug device and 'cpunr'. Both lead to the same "
                  "processor, though their names are of two. This is found only where both files are checked "
                  "together.",
       .example = "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice "
                  "deviceNr 2 cpunr 1",
       .advice = "Correct 'deviceNr' or 'cpunr' of one of them, or remove a file that was copied by mistake."},
      {.code = "too-many",
       .severity = Severity::warning,
       .title = "more findings than are listed",
       .meaning = "Of one kind, 1,000 findings of a text are listed. There are more, and this stands for them; the "
                  "example would have to go on as it begins.",
       .example = "connect ov odm -quiet -quiet -quiet -quiet",
       .advice = "Correct those that are listed, and check again. A text with so many findings is often not an "
                 "option file at all."},
  };
  return kKinds;
}

}  // namespace

const std::vector<FindingKind>& finding_kinds() { return kinds(); }

const FindingKind* find_finding_kind(std::string_view code) {
  const auto found = std::ranges::find(kinds(), code, &FindingKind::code);
  return found != kinds().end() ? &*found : nullptr;
}

const FindingKind& kind_of(Code code) { return kinds()[static_cast<std::size_t>(code)]; }

}  // namespace SdkDebugDialog
