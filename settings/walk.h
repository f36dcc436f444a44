#pragma once

// What each word of a text is, according to the tables of the syntax.

#include <cstddef>
#include <deque>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "options/framing.h"
#include "options/syntax.h"

namespace SdkDebugDialog {

struct WalkedWord {
  std::size_t begin = 0;  // in bytes
  std::size_t end = 0;
  Role role = Role::ignored;
  const Target* target = nullptr;          // of the target's word and all that follow in the command
  const Connection* connection = nullptr;  // of the connection's word and all that follow in the command
  const Run* run = nullptr;                // where the option stands; of an option and what belongs to it
  const Option* option = nullptr;          // of an option and what belongs to it; null for an unknown one
  const Keyword* keyword = nullptr;        // the row of a keyword and its value, and of an option's own value
  // The words of one option, with its keywords and values, have the same number; the first option has 1. Words that
  // belong to no option have 0.
  std::size_t group = 0;
};

// Every word of the text. It goes on after a mistake: what may not stand in its place is Role::unknown, and what
// follows is read as the reader would have read it without the mistake. Values are not checked, and no processor is
// asked.
//
//   no such head               a target of either kind may follow
//   no such target, connection any option may follow
//   an option instead of those any option may follow
//   no such option             it takes all words up to the next option
//   no such keyword            it takes a value
//   a lone dash                it counts as no word, so that what follows stands in its place
std::vector<WalkedWord> walk(std::string_view text, TextKind kind);

// Where any option may stand: behind a target that is not known.
inline constexpr Run kAnyOptions = {~0U, "anywhere", ""};

// Where a word stands, is missing or is refused.
enum class Slot { head, target, connection, option, keyword, value };

// A word of the text, or what is taken to stand there instead.
struct Piece {
  std::string_view text;
  std::size_t begin = 0;  // in the text, in bytes
  std::size_t end = 0;
};

// Goes through a command, or through options alone, in the same steps as the readers, and tells what it finds. Whoever
// derives from it may put other words in the place of those that are refused; it then goes on with these.
class Walker {
 public:
  Walker(std::string_view text, TextKind kind);
  virtual ~Walker() = default;
  Walker(const Walker&) = delete;
  Walker& operator=(const Walker&) = delete;

  void go();

 protected:
  // --- What is told, in the order of the text ---

  // A word, and how it is spelled: as in the text, if it was not replaced.
  virtual void found(const WalkedWord& word, std::string_view spelled) = 0;
  // The next word is refused in this slot: it names nothing, or is an option where something else is due. True if the
  // words ahead were replaced and are to be looked at once more.
  virtual bool refused(Slot /*slot*/) { return false; }
  // The same for a lone dash, wherever it stands.
  virtual bool lone_dash(bool /*isValueDue*/) { return false; }
  // Nothing that could stand in the slot is there: the text ends, or an option follows.
  virtual void missing(Slot /*slot*/) {}
  // The next word is the value of row(). The words ahead may be replaced, but a value must be the first.
  virtual void value_ahead() {}

  // --- The words ahead ---

  // Null behind the last word. It stays where it is until words ahead are replaced or told.
  const Piece* ahead(std::size_t count = 0);
  // Puts others, or none, in the place of the first ones.
  void replace_ahead(std::size_t count, const std::vector<Piece>& by);

  const LetterCase& letter_case() const { return m_cursor.letter_case(); }
  // What holds for the next word.
  const WalkedWord& here() const { return m_here; }
  Source source() const { return m_source; }
  // Whether the head told which targets may follow, and which ones then.
  const Head* head() const { return m_head; }
  const Run* run() const { return m_run; }
  // Of a value that is due, or was due last.
  const Keyword* row() const { return m_row; }

 private:
  Token next(bool isValueDue = false);
  bool is_allowed(bool inFile) const { return m_source == Source::command || inFile; }
  const Head* find_head();
  const Target* find_target();
  const Connection* find_connection();
  void command();
  void walk_options(const Run& run);
  void walk_option(const Option* option);  // null for an unknown one
  void what_it_takes(const Option& option);
  void own_value(const Option& option, bool anyToken, bool orNone);
  void pairs(const Group& group);
  void single_option();
  void take(Role role, const Keyword* keyword = nullptr);

  std::string_view m_text;
  TextKind m_kind;
  Source m_source;
  TokenCursor m_cursor;
  std::deque<Piece> m_ahead;  // looking further ahead moves none of them
  const Head* m_head = nullptr;
  const Run* m_run = nullptr;
  const Keyword* m_row = nullptr;
  WalkedWord m_here;
  std::size_t m_options = 0;
};

}  // namespace SdkDebugDialog
