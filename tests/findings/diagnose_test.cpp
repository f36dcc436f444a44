// Which findings a text has, where, and what its fixes make of it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "platform/DesignFile.h"

namespace {

using namespace SdkDebugDialog;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Processor designed(const std::string& name) {
  static const Design design(
      std::make_shared<DesignFile>(DesignFile::load(PROJECT_SOURCE_DIR "/examples/designs/large.json")));
  return *design.find(name);
}

// "15-21 error unknown-option" for each finding.
std::vector<std::string> found(const std::string& text, TextKind kind = TextKind::command,
                               const Processor& processor = {}) {
  std::vector<std::string> lines;
  for (const Finding& f : diagnose(text, kind, processor)) {
    const char* const severity = f.severity == Severity::error ? " error " : " warning ";
    lines.push_back(std::to_string(f.begin) + "-" + std::to_string(f.end) + severity + std::string(f.kind->code));
  }
  return lines;
}
std::vector<std::string> found_in_file(const std::string& text, const Processor& processor = {}) {
  return found(text, TextKind::optionFile, processor);
}

std::string fixed(const std::string& text, TextKind kind = TextKind::command, FixChoice choice = FixChoice::safe) {
  return with_fixes(text, diagnose(text, kind), choice);
}

// What the first finding says.
std::string said(const std::string& text, TextKind kind = TextKind::command, const Processor& processor = {}) {
  const std::vector<Finding> findings = diagnose(text, kind, processor);
  return findings.empty() ? "" : findings.front().message + "; " + findings.front().remedy;
}

// --- Clean texts ---

TEST(Diagnose, FindsNothingInACleanTextOfEachTarget) {
  for (const char* const text : {
           "connect ov sim",
           "connect ov stub -comm serial -port /dev/ttyUSB0  -baud  115200 -timeout 20000",
           "connect ov stub -comm jtag -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice "
           "deviceNr 2",
           "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -bscan USER1 -debugdevice cpunr "
           "1",
           "connect ppc sim -ipcport localhost:7000",
           "connect ppc hw -cable type zarvek_parallel3 port LPT1 frequency 200000 -debugdevice deviceNr 1 cpunr 1 "
           "icacheStartAdr 0x70000000 fpuType sp",
           "connect arm hw -debugdevice deviceNr 2 cpunr 1",
           "connect r5 hw -configdevice devicenr 1 partname r5 irlength 4 idcode 0x4ba0a177",
           "connect dap hw -cable type zarvek_plugin modulename probe modulearg a=1 modulearg b",
           "connect odm -debugdevice deviceNr 2",
           "connect dcc -debugdevice deviceNr 1",
           "connect qmtc -configdevice devicenr 1 partname fpga irlength 10 idcode 0xa001093 -debugdevice deviceNr 1",
           "vpconnect ov -config cycle_approximate",
       }) {
    EXPECT_THAT(found(text), IsEmpty()) << text;
  }
  EXPECT_THAT(found_in_file(""), IsEmpty());
  EXPECT_THAT(found_in_file("\n\n"), IsEmpty());
  EXPECT_THAT(found("", TextKind::cableText), IsEmpty());
}

// --- Where it is, and that one mistake is one error ---

TEST(Diagnose, GoesOnBehindEachMistake) {
  EXPECT_THAT(found("connect ov odm -cabel type zarvek_platformusb frequency=12000000 -bscan USER5 -foo x y -quiet z"),
              ElementsAre("15-21 error unknown-option", "46-64 error unknown-keyword", "72-77 error invalid-value",
                          "78-82 error unknown-option", "94-95 error word-without-option"));
}

TEST(Diagnose, MakesNoErrorOfWhatFollowsFromTheFirst) {
  EXPECT_THAT(found("e zarvek_platformusb frequency 6000000 -debugdevice deviceNr 2"),
              ElementsAre("0-1 error unknown-head"));
  EXPECT_THAT(found("connect mips hw -uart -memsize 5 -config cycle_approximate"),
              ElementsAre("8-12 error unknown-target"));
  EXPECT_THAT(found("connect ov odm -cable nonsense type zarvek_platformusb port USB21 -quiet"),
              ElementsAre("22-30 error unknown-keyword"));
  EXPECT_THAT(found("connect ov odm -cable type nonsense frequency 5"), ElementsAre("27-35 error invalid-value"));
}

TEST(Diagnose, PutsAnErrorAtTheRejectedWord) {
  EXPECT_THAT(found(""), ElementsAre("0-0 error incomplete-command"));
  EXPECT_THAT(found("connect"), ElementsAre("0-7 error incomplete-command"));
  EXPECT_THAT(found("connect ppc"), ElementsAre("8-11 error incomplete-command"));
  EXPECT_THAT(found("connect ppc -quiet"), ElementsAre("12-18 error incomplete-command"));
  EXPECT_THAT(found("connect ov odm -cable type"), ElementsAre("22-26 error missing-value"));
  EXPECT_THAT(found("connect ov odm -cable type -quiet"), ElementsAre("22-26 error missing-value"));
  EXPECT_THAT(found("connect ov odm -bscan"), ElementsAre("15-21 error missing-value"));
  EXPECT_THAT(found("connect ov odm -quiet - x"), ElementsAre("22-23 error lone-dash"));
  EXPECT_THAT(found("connect ov odm -cable type zarvek_plugin"), ElementsAre("15-21 error missing-module"));
  EXPECT_THAT(found("connect ov odm -cable frequency 5 type zarvek_parallel"),
              ElementsAre("32-33 error unsupported-frequency"));
  EXPECT_THAT(found_in_file("  \t"), ElementsAre("0-3 error blank-first-line"));
}

TEST(Diagnose, ReportsAWordOnce) {
  EXPECT_THAT(found("connect -- ov odm"), ElementsAre("8-10 error incomplete-command"));
  EXPECT_THAT(found("connect ov --odm"), ElementsAre("11-16 error incomplete-command"));
  EXPECT_THAT(found("connect ov odm -debugdevice deviceNr 2-cable type zarvek_tcf frequency 125000"),
              ElementsAre("45-49 error unknown-keyword"));
}

// --- Fixes ---

TEST(Diagnose, FixesWhatIsOneEditAway) {
  EXPECT_EQ(fixed("conect ov odm -cabel tpye zarvek_platformusv"), "connect ov odm -cable type zarvek_platformusb");
  EXPECT_EQ(fixed("connect ovodm -cabletype zarvek_tcf -debugdevice cpunr1"),
            "connect ov odm -cable type zarvek_tcf -debugdevice cpunr 1");
  EXPECT_EQ(fixed("connect ov odm-quiet -bscanUSER1"), "connect ov odm -quiet -bscan USER1");
  EXPECT_EQ(fixed("connect ov odm --quiet quiet - quiet -cable -type -zarvek_tcf"),
            "connect ov odm -quiet -quiet -quiet -cable type zarvek_tcf");
  EXPECT_EQ(fixed("connect ov odm \xE2\x80\x93"
                  "cable type \xE2\x80\x9Czarvek_tcf\xE2\x80\x9D"),
            "connect ov odm -cable type zarvek_tcf");
  EXPECT_EQ(fixed("\xEF\xBB\xBF"
                  "connect ov odm"),
            "connect ov odm");
  EXPECT_EQ(fixed("qconnect ov odm", TextKind::optionFile), "connect ov odm");
}

TEST(Diagnose, FixesADashBeforeHeadTargetOrConnection) {
  EXPECT_EQ(fixed("-connect -ov -odm -quiet"), "connect ov odm -quiet");
  EXPECT_EQ(fixed("connect ov odm -debugdevice deviceNr 2-cable type zarvek_tcf frequency 125000"),
            "connect ov odm -debugdevice deviceNr 2 -cable type zarvek_tcf frequency 125000");
}

TEST(Diagnose, FixesSeparators) {
  EXPECT_EQ(fixed("connect ov odm -cable:type=zarvek_tcf,frequency=125000"),
            "connect ov odm -cable type zarvek_tcf frequency 125000");
  EXPECT_EQ(fixed("connect ov odm -cable type = zarvek_tcf frequency = 125000 port := x"),
            "connect ov odm -cable type zarvek_tcf frequency 125000 port x");
  EXPECT_EQ(fixed("connect ov odm -cable type zarvek_tcf ; -quiet ,"),
            "connect ov odm -cable type zarvek_tcf  -quiet ");
  EXPECT_EQ(fixed("connect ov odm -cable\xC2\xA0type\xC2\xA0zarvek_tcf"), "connect ov odm -cable type zarvek_tcf");
}

TEST(Diagnose, RefusesFilesOfAnotherEncoding) {
  const std::string little("c\0o\0n\0n\0e\0c\0t\0 \0o\0v\0", 20);
  EXPECT_THAT(found_in_file("\xFF\xFE" + little), ElementsAre("0-16 error not-text"));
  EXPECT_THAT(found_in_file(little), ElementsAre("0-14 error not-text"));
  EXPECT_EQ(said("\xFF\xFE" + little, TextKind::optionFile),
            "the file is UTF-16: two bytes a character; save the file as UTF-8");
  EXPECT_EQ(said("\x7F\x45LF\x02 x\x03", TextKind::optionFile),
            "the byte 0x7f is no text; there are 3 such bytes; save the file as UTF-8, and remove what is no text");
  // It is one byte too many.
  EXPECT_THAT(found_in_file("\x01"
                            "connect ov odm"),
              ElementsAre("0-8 error not-text"));
  EXPECT_EQ(fixed("\x01"
                  "connect ov odm",
                  TextKind::optionFile),
            "connect ov odm");
  EXPECT_THAT(found_in_file("connec ov odm -cable port \x01 -quiet"),
              ElementsAre("0-6 error unknown-head", "26-27 warning not-text"));
}

TEST(Diagnose, OnlyGuessesWhereSeveralNamesOrDigitsAreNear) {
  EXPECT_EQ(fixed("connect ov odm -bscan USER5"), "connect ov odm -bscan USER5");
  EXPECT_EQ(fixed("connect ov odm -bscan USER5", TextKind::command, FixChoice::allFirst),
            "connect ov odm -bscan USER1");
  EXPECT_EQ(fixed("connect r4 hw"), "connect r4 hw");
  EXPECT_EQ(fixed("connect ov odm -cable type zarvek_parallel5"), "connect ov odm -cable type zarvek_parallel5");
}

TEST(Diagnose, HasNoSafeFixInALineThatIsCut) {
  std::string text = "connect ov odm -cabel type zarvek_tcf";
  text.resize(1100, ' ');
  text += "-quiet";
  EXPECT_EQ(fixed(text, TextKind::optionFile), text);
  EXPECT_EQ(fixed(text).substr(0, 21), "connect ov odm -cable");
}

TEST(WithFixes, LeavesOutAFixThatOverlapsWithOneBeforeIt) {
  Finding finding = diagnose("connect ov odm -cabel", TextKind::command).front();
  finding.fixes.front().replacements = {{0, 5, "a"}};
  Finding other = finding;
  other.fixes.front().replacements = {{4, 6, "b"}, {7, 8, "c"}};
  EXPECT_EQ(with_fixes("0123456789", {finding, other}), "a56789");
}

TEST(Diagnose, MovesThePortBehindTheType) {
  EXPECT_EQ(
      fixed(
          "connect ov odm -cable port A modulearg b type zarvek_platformusb modulearg c frequency 6000000 -bscan USER1",
          TextKind::command, FixChoice::allFirst),
      "connect ov odm -cable modulearg b type zarvek_platformusb port A modulearg c frequency 6000000 -bscan USER1");
  EXPECT_EQ(
      fixed("connect ov odm -cable port A -cable type zarvek_platformusb", TextKind::command, FixChoice::allFirst),
      "connect ov odm -cable port A -cable type zarvek_platformusb");
}

// --- What it says ---

TEST(Diagnose, SaysWhereANameBelongs) {
  EXPECT_EQ(said("connect ov odm -debugdevice frequency 5"),
            "'-debugdevice' has no keyword 'frequency'; it belongs to '-cable'");
  EXPECT_EQ(said("connect ov odm -uart"), "'-uart' cannot stand here; it is an option of 'odm' and 'dcc'");
  EXPECT_EQ(said("connect ov odm -sim -bscan USER1"),
            "'-bscan' cannot stand here; write it before '-sim', which takes all options that follow");
  EXPECT_EQ(said("ov odm"), "the head is missing before the target 'ov'; write 'connect' before it");
  EXPECT_THAT(said("connect ov odm -cable type zarvek_tcf connect ov odm"), HasSubstr("a second command begins here"));
  EXPECT_THAT(said("connect ov odm -quiet connect ov odm"), HasSubstr("a second command begins here"));
  EXPECT_THAT(said("connect ov odm -frequency 5"), HasSubstr("'frequency' is a keyword of '-cable'"));
  EXPECT_THAT(said("connect ov odm -config device 1"), HasSubstr("it is an option of 'vpconnect ov'"));
  EXPECT_THAT(said("connect ov odm -debug"), HasSubstr("did you mean '-debugdevice'?"));
  EXPECT_EQ(said("connect ov odm -pfsl type q"), "'type' cannot be 'q'; accepted here: 'm', 's' and 'ms'");
  EXPECT_THAT(said("connect ov odm -cable type zarvek_svffile"), HasSubstr("are not supported"));
  EXPECT_THAT(said("connect ov odm -cable frequency 12 MHz"), HasSubstr("numbers have no unit: write 12000000"));
  EXPECT_THAT(said("connect ov odm \\"), HasSubstr("cannot go on in another line"));
  EXPECT_EQ(said("# options", TextKind::optionFile), "there are no comments in a command; remove the line");
}

TEST(Diagnose, ExplainsWhatTheWriterWritesAndNoReaderAccepts) {
  for (const char* const text :
       {"connect ov odm -configdevice jtagpin cpujtag", "vpconnect ov -ipcporthost12340", "vpconnect ov -config"}) {
    EXPECT_EQ(diagnose(text, TextKind::command).front().kind->code, "written-not-read") << text;
  }
}

TEST(Diagnose, KnowsTheProcessorOfADesign) {
  const Processor soft = designed("ovrin_0");
  EXPECT_EQ(said("vpconnect ov", TextKind::optionFile, soft),
            "processor 'ovrin_0' has no connection 'ov' in the design; it has 'connect ov sim', 'connect ov stub', "
            "'connect ov odm'");
  EXPECT_THAT(found_in_file("connect ppc hw -debugdevice cpunr 5", soft), ElementsAre("34-35 error wrong-cpu-number"));
  EXPECT_THAT(found_in_file("connect ppc hw", soft), ElementsAre("8-11 warning other-family"));
  // What follows from that is left out.
  EXPECT_THAT(found_in_file("connect ppc hw -debugdevice fpuType sp romemSize 5 icacheStartAdr 0x10000", soft),
              ElementsAre("8-11 warning other-family"));
  EXPECT_THAT(found_in_file("connect ppc hw -baud 9600", soft),
              ElementsAre("8-11 warning other-family", "15-20 warning does-not-apply"));
  EXPECT_THAT(found_in_file("connect ppc hw -debugdevice fpuType dp", designed("ppc405_0")),
              ElementsAre("36-38 warning fpu-from-design"));
}

// --- What has no effect, and what is lost ---

TEST(Diagnose, FindsWhatHasNoEffect) {
  EXPECT_THAT(found("connect ov odm -cable port A port B type zarvek_platformusb frequency 6000000"),
              ElementsAre("22-26 warning given-twice", "29-33 warning port-before-type"));
  EXPECT_THAT(found("connect ov odm -cable type zarvek_platformusb port A frequency 6000000 esn 5 -quiet"),
              ElementsAre("46-50 warning beside-esn", "53-62 warning beside-esn", "77-83 warning no-effect"));
  EXPECT_THAT(found("connect ov odm -comm serial"), ElementsAre("15-20 warning does-not-apply"));
  EXPECT_THAT(found("connect ov sim -memsize 16 -cable type foo"), ElementsAre("27-42 warning not-reached"));
  EXPECT_THAT(found("connect ov odm -comm -quiet"), ElementsAre("15-20 warning skipped-option"));
}

TEST(Diagnose, FindsOptionsWithoutEffectEachTime) {
  EXPECT_THAT(found("connect ov odm -noattach -NOATTACH -quiet -noattach"),
              ElementsAre("15-24 warning no-effect", "25-34 warning no-effect", "35-41 warning no-effect",
                          "42-51 warning no-effect"));
  EXPECT_THAT(found("connect ov odm -pfsl -cable -debugdevice"),
              ElementsAre("15-20 warning no-effect", "21-27 warning no-effect", "28-40 warning no-effect"));
  EXPECT_THAT(found("connect ov odm -pfsl port a port b -pfsl port c"),
              ElementsAre("15-20 warning no-effect", "35-40 warning no-effect"));
  // The last "-cable" gives the cable its frequency.
  EXPECT_THAT(found("connect ov odm -cable type zarvek_platformusb -bscan USER1 -cable"), IsEmpty());
  std::string many = "connect ov odm";
  for (int i = 0; i < 3000; ++i) many += " -quiet";
  const std::vector<Finding> findings = diagnose(many, TextKind::command);
  ASSERT_EQ(findings.size(), 1001U);
  EXPECT_EQ(findings.back().kind->code, "too-many");
}

TEST(Diagnose, LooksAtTheFrequencyWhereTheReaderDoesNot) {
  EXPECT_THAT(found("connect ov odm -cable type zarvek_platformusb frequency 5 -bscan USER1"),
              ElementsAre("56-57 warning unsupported-frequency"));
  EXPECT_THAT(found("connect ov odm -cable type zarvek_platformusb -bscan USER1"),
              ElementsAre("15-21 warning missing-frequency"));
}

TEST(Diagnose, TakesAFrequencyForWhatWasMeant) {
  const auto isFixed = [](const std::string& frequency, const std::string& expected) {
    const std::string begin = "connect ov odm -cable type zarvek_platformusb frequency ";
    EXPECT_THAT(found(begin + frequency),
                ElementsAre("56-" + std::to_string(56 + frequency.size()) + " error unsupported-frequency"));
    EXPECT_EQ(fixed(begin + frequency, TextKind::command, FixChoice::allFirst), begin + expected);
  };
  isFixed("12MHz", "12000000");
  isFixed("12,000,000", "12000000");
  isFixed("06000000", "6000000");
  isFixed("\"6000000\"", "6000000");
  isFixed("5MHz", "3000000");
  isFixed("5000000", "3000000");
  isFixed("5", "750000");
  // Nothing certain is meant.
  isFixed("12.0", "12.0");
  isFixed("twelve", "twelve");
  EXPECT_EQ(diagnose("connect ov odm -cable type zarvek_platformusb frequency 12MHz", TextKind::command)
                .front()
                .remarks.front()
                .message,
            "'12MHz' is read as 12: units are ignored");
}

TEST(Diagnose, WritesTheFrequencyBehindTheType) {
  EXPECT_EQ(fixed("connect ov odm -cable type zarvek_platformusb port A -bscan USER1", TextKind::command,
                  FixChoice::allFirst),
            "connect ov odm -cable type zarvek_platformusb frequency 6000000 port A -bscan USER1");
}

TEST(Diagnose, FindsAFrequencyThatTheLastCableResets) {
  EXPECT_EQ(said("connect ov odm -cable frequency 6000000 -cable type zarvek_parallel3"),
            "'frequency' has no effect: the last '-cable' has none, which then is that of its type, 200 kHz; write it "
            "behind the last '-cable', or remove it");
  EXPECT_THAT(found("connect ov odm -cable type zarvek_platformusb frequency 12000000 -bscan USER1 -cable"),
              ElementsAre("46-55 warning does-not-apply"));
  EXPECT_THAT(found("connect ov odm -cable type zarvek_platformusb frequency 6000000 -cable port A"), IsEmpty());
  EXPECT_THAT(found("connect ov odm -cable frequency 12000000 -cable type zarvek_platformusb -bscan USER1"), IsEmpty());
}

TEST(Diagnose, AsksForTheModuleOfAPlugInCable) {
  EXPECT_THAT(found("connect ov odm -cable type zarvek_plugin -debugdevice deviceNr 2"),
              ElementsAre("15-21 warning missing-module"));
  EXPECT_THAT(found("connect ov odm -cable modulename m -cable type zarvek_plugin -debugdevice deviceNr 2"), IsEmpty());
}

TEST(Diagnose, TellsWhyATextIsNotReadBack) {
  // The frequency, which would be checked at the end of what is written, is the reason.
  EXPECT_THAT(found("connect ov stub -comm jtag -cable type zarvek_platformusb frequency 5 -debugdevice cpunr 1"),
              ElementsAre("68-69 warning unsupported-frequency"));
  EXPECT_EQ(said("connect ov odm -configdevice jtagport cpu"),
            "written anew, the command is not read back: written as 'jtagpin cpujtag', which the reader does not know; "
            "keep the text, or change it in place");
  for (const char* const arguments : {";", "a;;b", "a;"}) {
    const std::string text =
        std::string("connect ov odm -cable type zarvek_plugin modulename x modulearg ") + arguments;
    EXPECT_EQ(said(text + " -debugdevice deviceNr 2"),
              "written anew, the command is not read back: ';' separates arguments, and an empty one is no word; keep "
              "the text, or change it in place");
  }
}

TEST(Diagnose, AsksForTheTypeOfTheCable) {
  EXPECT_EQ(said("connect ov odm -cable frequency 6000000 port A -bscan USER1"),
            "'-cable' has no effect: no type of cable is given; write 'type' and the type");
  EXPECT_EQ(said("connect ov stub -comm serial -cable frequency 6000000 -bscan USER1"),
            "'-cable' has no effect: the connection uses no cable; remove it, or change what it depends on");
}

TEST(Diagnose, FindsDevicesThatSayTooLittle) {
  const auto all = ElementsAre("15-28 warning invalid-idcode", "15-28 warning short-instruction-register",
                               "15-28 warning device-number-gap");
  EXPECT_THAT(found("connect ov odm -configdevice -debugdevice deviceNr 1"), all);
  EXPECT_THAT(found("connect ov odm -configdevice partname x -debugdevice deviceNr 1"), all);
  EXPECT_THAT(found("connect ov odm -configdevice jtagport cpu -debugdevice deviceNr 1"),
              ElementsAre("29-37 warning not-read-back"));
}

TEST(Diagnose, FindsWhatIsLostInAWriting) {
  EXPECT_THAT(found("connect ov odm -bscan USER3"), ElementsAre("15-27 warning lost-when-written"));
  // Host and port are two settings of the same words.
  EXPECT_THAT(found("connect ppc sim -icf a -ipcport :7"), ElementsAre("23-34 warning lost-when-written"));
  EXPECT_THAT(found("vpconnect ov -config cycle_approximate -ipcport a:1"),
              ElementsAre("39-51 warning lost-when-written"));
  EXPECT_EQ(diagnose("vpconnect ov -config cycle_approximate -ipcport a:1", TextKind::command)
                .front()
                .remarks.front()
                .message,
            "the reason: it is written when a host is set and '-config' is not");
  EXPECT_THAT(found("connect ov odm -cable type zarvek_tcf frequency 125000"),
              ElementsAre("27-37 warning cannot-be-written"));
  EXPECT_THAT(found("connect ov odm -configdevice jtagport cpu"), ElementsAre("29-37 warning not-read-back"));
}

}  // namespace
