#include "options/keyword.h"

#include <gtest/gtest.h>

#include <boost/algorithm/string/predicate.hpp>
#include <locale>
#include <string>
#include <vector>

#include "tests/support/GlobalLocale.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

// --- Words ---

constexpr Word kWords[] = {{"sp", 1}, {"Dp", 2}, {"spdp", 3}};

TEST(FindRow, AnswersTheRowThatAWordNamesInAnyCase) {
  LetterCase letterCase;
  EXPECT_EQ(find_row<kWords>("sp", letterCase), &kWords[0]);
  EXPECT_EQ(find_row<kWords>("SP", letterCase), &kWords[0]);
  EXPECT_EQ(find_row<kWords>("dP", letterCase), &kWords[1]);
  EXPECT_EQ(find_row<kWords>("SPDP", letterCase), &kWords[2]);
}

constexpr Word kLongWords[] = {{"zarvek_parallel3", 1}, {"zarvek_platformusb", 2}, {"-configdevice", 3}, {"a@[`{z", 4}};

// Every word that differs from a name in one character, but for the case of an ASCII letter.
TEST(FindRow, TellsWordsApartThatDifferInOneCharacter) {
  const GlobalLocale classic;
  LetterCase letterCase;
  for (const Word& row : kLongWords) {
    for (std::size_t i = 0; i < row.name.size(); ++i) {
      for (int c = 0; c < 256; ++c) {
        std::string word(row.name);
        word[i] = static_cast<char>(c);
        const auto* const expected = boost::iequals(word, row.name, std::locale::classic()) ? &row : nullptr;
        ASSERT_EQ(find_row<kLongWords>(word, letterCase), expected) << word << ' ' << c;
      }
    }
  }
}

TEST(FindRow, AnswersNullForAnyOtherWord) {
  LetterCase letterCase;
  for (const std::string word : {"", "s", "spd", "spdpx", "d p", "-sp"})
    EXPECT_EQ(find_row<kWords>(word, letterCase), nullptr);
}

// --- Keywords ---

struct Record {
  std::int8_t narrow = 0;
  std::uint8_t byte = 0;
  std::int32_t number = 0;
  std::uint32_t address = 0;
  std::string text;
  std::string seen;
};

using Row = Keyword<Record>;

int read_seen(const Pair& pair, Record& record, EngineImp& /*imp*/) {
  record.seen.append(pair.key).append("=").append(pair.value).append(";");
  return pair.value == "no" ? kError : kValue;
}

bool has_address(const Record& record) { return record.address != 0; }
void write_seen(TextOut::Pen& pen, const Record& record) {
  pen.put("<");
  pen.put(record.seen);
  pen.put(">");
}

constexpr Row kRows[] = {
    {.name = "Narrow", .field = &Record::narrow, .written = always<Record>},
    {.name = "byte", .field = &Record::byte, .written = always<Record>},
    {.name = "number", .field = &Record::number, .isSigned = true, .written = always<Record>},
    {.name = "address", .field = &Record::address, .hex = true, .written = has_address, .gap = "  "},
    {.name = "text", .field = &Record::text, .written = always<Record>},
    {.name = "seen", .read = read_seen, .written = always<Record>, .write = write_seen},
    {.name = "nothing"},
};

// The rows from first to last, as a writer of a group appends them.
template <std::size_t first, std::size_t last>
int write_rows(TextOut& out, const Record& record) {
  write_pairs<kRows, first, last>(out, record);
  return 0;
}

static_assert(row_index(kRows, "Narrow") == 0 && row_index(kRows, "nothing") == 6);

// What reading pairs gives.
struct Pairs {
  SelectedEngine selected;
  Record record;
  int end = 0;
  bool refused = false;
  std::uint32_t seen = 0;
  std::string rest;

  explicit Pairs(const std::string& text) {
    TokenCursor in(text);
    Reading<Record> reading = {record, selected.imp, in.letter_case()};
    end = read_pairs<kRows>(in, reading, "UNKNOWN '%s' here");
    refused = reading.refused;
    seen = reading.seen;
    rest = in.rest();
  }
};

TEST(ReadPairs, StoresEveryKindOfValueCutToItsField) {
  Pairs pairs("narrow 200 BYTE 0x1ff Number -0x80000000 address 0x1ffffffff text -5abc");
  EXPECT_EQ(pairs.end, 3);
  EXPECT_FALSE(pairs.refused);
  EXPECT_EQ(pairs.record.narrow, -56);
  EXPECT_EQ(pairs.record.byte, 255);
  EXPECT_EQ(pairs.record.number, -2147483647 - 1);
  EXPECT_EQ(pairs.record.address, 0xFFFFFFFFU);
  EXPECT_EQ(pairs.record.text, "-5abc");
  EXPECT_EQ(pairs.selected.error(), "");
}

TEST(ReadPairs, ConvertsAFieldTheSignedWayWhereItsRowSaysSo) {
  // Beyond 64 bits the two ways differ in the bits that are kept.
  EXPECT_EQ(Pairs("number 99999999999999999999").record.number, -1);
  EXPECT_EQ(Pairs("number -99999999999999999999").record.number, 0);
  EXPECT_EQ(Pairs("address -99999999999999999999").record.address, 0xFFFFFFFFU);
}

TEST(ReadPairs, TellsWhatEndedThem) {
  struct Case {
    std::string text;
    int kind;
    bool refused;
    std::string rest;
    std::string error;
  };
  const std::vector<Case> cases = {
      {"", 3, false, "", ""},
      {" \r\n", 3, false, "", ""},
      {"byte 1", 3, false, "", ""},
      {"byte 1 -next 2", 1, false, " 2", ""},
      {"-next", 1, false, "", ""},
      {"byte", 2, false, "", ""},
      {"byte 1 narrow", 2, false, "", ""},
      {"byte -next 2", 2, false, " 2", ""},
      {"unknown", 2, false, "", ""},
      {"unknown 5 byte 1", 2, true, " byte 1", "UNKNOWN 'unknown' here"},
      {"Byte1 5", 2, true, "", "UNKNOWN 'Byte1' here"},
      {"seen no byte 1", 2, true, " byte 1", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    Pairs pairs(c.text);
    EXPECT_EQ(pairs.end, c.kind);
    EXPECT_EQ(pairs.refused, c.refused);
    EXPECT_EQ(pairs.rest, c.rest);
    EXPECT_EQ(pairs.selected.error(), c.error);
  }
}

TEST(ReadPairs, MarksTheRowsThatWereMet) {
  EXPECT_EQ(Pairs("").seen, 0U);
  EXPECT_EQ(Pairs("nothing x").seen, 0x40U);
  EXPECT_EQ(Pairs("byte 1 NARROW 2 byte 3").seen, 0x3U);
  EXPECT_EQ(Pairs("byte 1 seen no").seen, 0x2U);
}

TEST(ReadPairs, HandsThePairAsItWasTypedToTheRowsOwnReader) {
  EXPECT_EQ(Pairs("SeEn Yes seen NO").record.seen, "SeEn=Yes;seen=NO;");
}

TEST(ReadPairs, CutsTheErrorTextOfAHugeKey) {
  Pairs pairs(std::string(1 << 20, 'k') + " 1");
  EXPECT_EQ(pairs.selected.error(), "UNKNOWN '" + std::string(2047 - 9, 'k'));
}

TEST(WritePairs, WritesTheRowsThatAreToBeWrittenInTheirOrder) {
  Record record;
  record.narrow = -56;
  record.byte = 200;
  record.number = -1;
  record.text = "t";
  record.seen = "s";
  std::string out = "before";
  on_end<write_rows<0, std::size(kRows) - 1>>(out, std::as_const(record));
  EXPECT_EQ(out, "before Narrow -56 byte 200 number -1 text t seen <s>");
  record.address = 0xA001093;
  out.clear();
  on_end<write_rows<0, std::size(kRows) - 1>>(out, std::as_const(record));
  EXPECT_EQ(out, " Narrow -56 byte 200 number -1  address 0xa001093 text t seen <s>");
  out.clear();
  on_end<write_rows<row_index(kRows, "byte"), row_index(kRows, "number")>>(out, std::as_const(record));
  EXPECT_EQ(out, " byte 200 number -1");
}

}  // namespace
}  // namespace SdkDebugDialog
