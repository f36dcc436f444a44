// SPDX-License-Identifier: MIT
#include "widgets/CommandView.h"

#include <QEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <bitset>
#include <iterator>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "model/library_texts.h"
#include "widgets/Colours.h"

namespace qvtdialog {

using SdkDebugDialog::annotate;
using SdkDebugDialog::Annotation;
using SdkDebugDialog::Finding;
using SdkDebugDialog::Role;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::Severity;
using SdkDebugDialog::TextKind;

namespace {

// --- What characters look like ---

// Each is on or off for a character: first the roles, then these.
constexpr std::size_t kGuess = static_cast<std::size_t>(Role::unknown) + 1;
constexpr std::size_t kChanged = kGuess + 1;
constexpr std::size_t kByte = kChanged + 1;
constexpr std::size_t kSeverity = kByte + 1;  // and the other severities
constexpr std::size_t kTraits = kSeverity + 3;
using Traits = std::bitset<kTraits>;

// Characters that look alike.
struct Span {
  qsizetype begin;
  qsizetype end;
  Traits traits;
};

// Places of traits, which may overlap, and the spans that they make.
class SpanMaker {
 public:
  void add(qsizetype begin, qsizetype end, std::size_t trait) {
    m_edges.push_back({begin, trait, 1});
    m_edges.push_back({end, trait, -1});
  }

  std::vector<Span> spans() && {
    std::ranges::sort(m_edges, {}, &Edge::at);
    std::array<int, kTraits> depth{};
    Traits traits;
    std::vector<Span> spans;
    for (std::size_t i = 0; i < m_edges.size(); ++i) {
      const Edge& edge = m_edges[i];
      depth[edge.trait] += edge.step;
      traits[edge.trait] = depth[edge.trait] > 0;
      if (i + 1 < m_edges.size() && traits.any() && m_edges[i + 1].at > edge.at) {
        spans.push_back({edge.at, m_edges[i + 1].at, traits});
      }
    }
    return spans;
  }

 private:
  struct Edge {
    qsizetype at;
    std::size_t trait;
    int step;
  };
  std::vector<Edge> m_edges;
};

QTextCharFormat format_of(const Traits& traits, const QPalette& palette) {
  QTextCharFormat format;
  for (std::size_t role = 0; role < kGuess; ++role) {
    if (traits[role]) format.setForeground(colour(static_cast<Role>(role), palette));
  }
  if (traits[static_cast<std::size_t>(Role::option)]) format.setFontWeight(QFont::Bold);
  if (traits[kGuess] || traits[static_cast<std::size_t>(Role::ignored)]) format.setFontItalic(true);
  if (traits[kChanged]) format.setBackground(background(Tone::added, palette));
  if (traits[kByte]) {
    format.setBackground(background(Tone::byte, palette));
    format.setForeground(colour(Tone::byte, palette));
  }
  for (const Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    if (!traits[kSeverity + static_cast<std::size_t>(severity)]) continue;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(colour(tone_of(severity), palette));
    break;
  }
  return format;
}

// Whether a line would have to be broken within a word many times: finding where takes quadratic time, unless lines are
// broken anywhere.
bool has_endless_word(const QString& text) {
  constexpr qsizetype kEndless = 2000;
  qsizetype begin = 0;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at].isSpace()) begin = at + 1;
    if (at - begin >= kEndless) return true;
  }
  return false;
}

// An empty place is shown at the character behind it, or at the one before it where a line ends.
std::pair<qsizetype, qsizetype> visible_place(qsizetype begin, qsizetype end, const QString& text) {
  if (begin < end) return {begin, end};
  if (end < text.size() && text[end] != u'\n') return {begin, end + 1};
  if (begin > 0 && text[begin - 1] != u'\n') return {begin - 1, end};
  return {begin, end};
}

// --- What has changed ---

// A word, and how many options for its setting there are up to it: that tells the devices of a chain apart.
struct Word {
  std::string_view text;
  Role role;
  const Setting* setting;
  std::size_t occurrence;

  friend bool operator==(const Word&, const Word&) = default;
};

bool is_same(const Word& a, const Word& b) { return a.text == b.text && a.role == b.role && a.setting == b.setting; }

struct WordHash {
  std::size_t operator()(const Word& word) const {
    return qHashMulti(0, qHash(QByteArrayView(word.text.data(), static_cast<qsizetype>(word.text.size()))),
                      static_cast<int>(word.role), word.setting, word.occurrence);
  }
};

std::vector<Word> words_of(std::string_view text, const std::vector<Annotation>& annotations) {
  std::vector<Word> words;
  words.reserve(annotations.size());
  for (const Annotation& annotation : annotations) {
    words.push_back(
        {text.substr(annotation.begin, annotation.end - annotation.begin), annotation.role, annotation.setting, 0});
  }
  return words;
}

void number_options(std::vector<Word>::iterator word, std::vector<Word>::iterator end) {
  std::unordered_map<const Setting*, std::size_t> options;
  const Setting* option = nullptr;
  for (; word != end; ++word) {
    if (word->role == Role::option) {
      option = word->setting;
      ++options[option];
    }
    word->occurrence = options[option];
  }
}

// Which of the words are not among those before. What both texts begin and end with is the same; in between, each word
// is looked up.
std::vector<bool> changed_words(std::vector<Word> before, std::vector<Word> after) {
  std::vector<bool> changed(after.size());
  const auto [before_begin, after_begin] = std::ranges::mismatch(before, after, is_same);
  auto before_end = before.end();
  auto after_end = after.end();
  while (before_end != before_begin && after_end != after_begin &&
         is_same(*std::prev(before_end), *std::prev(after_end))) {
    --before_end;
    --after_end;
  }
  number_options(before_begin, before_end);
  number_options(after_begin, after_end);
  std::unordered_map<Word, std::size_t, WordHash> known;
  for (auto word = before_begin; word != before_end; ++word) ++known[*word];
  for (auto word = after_begin; word != after_end; ++word) {
    const auto found = known.find(*word);
    const bool is_known = found != known.end() && found->second > 0;
    if (is_known) --found->second;
    changed[static_cast<std::size_t>(word - after.begin())] = !is_known;
  }
  return changed;
}

// Numbers are written in the text without a unit, and addresses in any base.
bool is_number(const Setting& setting) {
  return setting.kind == SettingKind::number || setting.kind == SettingKind::address ||
         setting.kind == SettingKind::frequency || setting.kind == SettingKind::size;
}

bool is_enter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace

// Gives the characters of each line the looks that were found for the whole text.
class CommandHighlighter : public QSyntaxHighlighter {
 public:
  CommandHighlighter(QTextDocument* document, const QWidget& widget) : QSyntaxHighlighter(document), m_widget(widget) {}

  void show(std::vector<Span> spans) {
    m_spans = std::move(spans);
    rehighlight();
  }
  void take_palette() {
    m_formats.clear();
    rehighlight();
  }

 protected:
  void highlightBlock(const QString& text) override {
    const qsizetype from = currentBlock().position();
    const qsizetype to = from + text.size();
    for (auto span = std::ranges::upper_bound(m_spans, from, {}, &Span::end); span != m_spans.end() && span->begin < to;
         ++span) {
      const qsizetype begin = std::max(span->begin, from);
      setFormat(static_cast<int>(begin - from), static_cast<int>(std::min(span->end, to) - begin),
                format(span->traits));
    }
  }

 private:
  using QSyntaxHighlighter::format;
  const QTextCharFormat& format(const Traits& traits) {
    const auto [known, is_new] = m_formats.try_emplace(traits.to_ulong());
    if (is_new) known->second = format_of(traits, m_widget.palette());
    return known->second;
  }

  const QWidget& m_widget;
  std::vector<Span> m_spans;  // in the order of the text, without overlap
  std::unordered_map<unsigned long, QTextCharFormat> m_formats;
};

CommandView::CommandView(QWidget* parent)
    : QPlainTextEdit(parent), m_highlighter(new CommandHighlighter(document(), *this)) {
  setObjectName(QStringLiteral("command_view"));
  setAccessibleName(tr("Connect command"));
  setAccessibleDescription(tr("The content of the option file for the present settings"));
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // lines are wrapped; blanks at their ends need no room
  viewport()->setMouseTracking(true);
  use_fixed_font();
  set_editing(false);
  connect(this, &QPlainTextEdit::textChanged, this, &CommandView::take_typed_text);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CommandView::describe_caret);
}

void CommandView::show_text(const std::string& bytes, const std::vector<Annotation>& annotations,
                            const std::vector<Finding>& findings) {
  if (bytes != m_bytes) {
    m_line_feed_at_end = bytes.ends_with('\n');
    m_changed.clear();
  }
  m_bytes = bytes;
  m_annotations = annotations;
  m_findings = findings;
  m_shown = ShownText(std::string_view(m_bytes).substr(0, m_bytes.size() - (m_line_feed_at_end ? 1 : 0)));
  setWordWrapMode(has_endless_word(m_shown.text()) ? QTextOption::WrapAnywhere
                                                   : QTextOption::WrapAtWordBoundaryOrAnywhere);
  replace_text(m_shown.text());
  colour_text();
  describe_caret();
}

void CommandView::mark_changes(const std::string& before) {
  m_changed = changed_words(words_of(before, annotate(before, TextKind::optionFile)), words_of(m_bytes, m_annotations));
  colour_text();
}

void CommandView::set_editing(bool editing) {
  setTextInteractionFlags(editing ? Qt::TextEditorInteraction
                                  : Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void CommandView::go_to(std::size_t begin, std::size_t end) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(static_cast<int>(m_shown.index_at(begin)));
  cursor.setPosition(static_cast<int>(m_shown.index_at(end)), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  setFocus(Qt::OtherFocusReason);
}

// --- The text ---

void CommandView::take_typed_text() {
  if (m_replacing) return;
  std::string bytes = bytes_of(document()->toRawText().replace(QChar::ParagraphSeparator, u'\n'));
  if (m_line_feed_at_end) bytes += '\n';
  if (bytes == m_bytes) return;
  m_bytes = std::move(bytes);
  m_changed.clear();
  emit text_typed(m_bytes);
}

void CommandView::describe_caret() {
  if (!m_replacing) emit caret_described(descriptions_at(textCursor().position()).join(QStringLiteral("; ")));
}

// Only what differs is replaced: the view stays where it is, and the caret where it was in the text.
void CommandView::replace_text(const QString& text) {
  const QString old = document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
  if (text == old) return;
  qsizetype prefix = std::ranges::mismatch(old, text).in1 - old.begin();
  if (prefix > 0 && old[prefix - 1].isHighSurrogate()) --prefix;
  qsizetype suffix = 0;
  while (suffix < std::min(old.size(), text.size()) - prefix &&
         old[old.size() - 1 - suffix] == text[text.size() - 1 - suffix]) {
    ++suffix;
  }
  if (suffix > 0 && text[text.size() - suffix].isLowSurrogate()) --suffix;
  const auto moved = [&](int position) {
    if (position <= prefix) return position;
    const qsizetype from_end = std::min(old.size() - position, suffix);
    return static_cast<int>(text.size() - from_end);
  };
  const int anchor = moved(textCursor().anchor());
  const int position = moved(textCursor().position());

  m_replacing = true;
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(prefix));
  cursor.setPosition(static_cast<int>(old.size() - suffix), QTextCursor::KeepAnchor);
  cursor.insertText(text.sliced(prefix, text.size() - suffix - prefix));
  cursor.setPosition(anchor);
  cursor.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  m_replacing = false;
}

void CommandView::colour_text() {
  const QString& text = m_shown.text();
  SpanMaker maker;
  for (std::size_t i = 0; i < m_annotations.size(); ++i) {
    const Annotation& word = m_annotations[i];
    const qsizetype begin = m_shown.index_at(word.begin);
    const qsizetype end = m_shown.index_at(word.end);
    maker.add(begin, end, static_cast<std::size_t>(word.role));
    if (word.guess) maker.add(begin, end, kGuess);
    if (i < m_changed.size() && m_changed[i]) maker.add(begin, end, kChanged);
  }
  for (const Finding& finding : m_findings) {
    const auto [begin, end] = visible_place(m_shown.index_at(finding.begin), m_shown.index_at(finding.end), text);
    maker.add(begin, end, kSeverity + static_cast<std::size_t>(finding.severity));
  }
  const auto is_byte = [](QChar character) { return shown_byte(character).has_value(); };
  for (auto at = std::ranges::find_if(text, is_byte); at != text.end();) {
    const auto end = std::find_if_not(at, text.end(), is_byte);
    maker.add(at - text.begin(), end - text.begin(), kByte);
    at = std::find_if(end, text.end(), is_byte);
  }
  m_highlighter->show(std::move(maker).spans());
}

// --- What is where ---

qsizetype CommandView::index_at(const QPoint& point) const {
  const QTextCursor cursor = cursorForPosition(point);
  const QRect caret = cursorRect(cursor);
  const qsizetype index = point.x() < caret.left() ? cursor.position() - 1 : cursor.position();
  const bool is_beside = point.y() > caret.bottom() || point.y() < caret.top() || index < cursor.block().position() ||
                         index >= cursor.block().position() + cursor.block().length() - 1;
  return is_beside ? -1 : index;
}

const Annotation* CommandView::word_at(qsizetype index) const {
  if (index < 0) return nullptr;
  const std::size_t byte = m_shown.byte_at(index);
  const auto word = std::ranges::lower_bound(m_annotations, byte, {}, &Annotation::end);
  // Directly behind a word, where the next one begins, it is the next one.
  if (word != m_annotations.end() && word->end == byte && std::next(word) != m_annotations.end() &&
      std::next(word)->begin == byte) {
    return &*std::next(word);
  }
  return word != m_annotations.end() && word->begin <= byte ? &*word : nullptr;
}

const Setting* CommandView::setting_at(qsizetype index) const {
  const Annotation* const word = word_at(index);
  return word != nullptr ? word->setting : nullptr;
}

const Setting* CommandView::setting_at_caret() const { return setting_at(textCursor().position()); }

// The value that belongs to a word: of the words for the same setting beside it, the first value from the option on.
QString CommandView::value_beside(const Annotation& word) const {
  auto value = m_annotations.begin() + (&word - m_annotations.data());
  while (value != m_annotations.end() && value->role != Role::value && value->setting == word.setting) ++value;
  if (value == m_annotations.end() || value->role != Role::value || value->setting != word.setting) return {};
  const std::string text = m_bytes.substr(value->begin, value->end - value->begin);
  if (is_number(*word.setting)) {
    if (const auto parsed = SdkDebugDialog::parse_value(*word.setting, text)) return value_of(*word.setting, *parsed);
  }
  return shown(text);
}

QStringList CommandView::descriptions_at(qsizetype index) const {
  QStringList descriptions;
  if (index < 0) return descriptions;
  for (const Finding& finding : m_findings) {
    const auto [begin, end] =
        visible_place(m_shown.index_at(finding.begin), m_shown.index_at(finding.end), m_shown.text());
    if (index < begin || index >= end) continue;
    descriptions += tr("%1: %2", "severity, message").arg(severity_of(finding.severity), shown(finding.message));
    if (!finding.remedy.empty()) descriptions += shown(finding.remedy);
  }
  const QString& text = m_shown.text();
  if (const auto byte = index < text.size() ? shown_byte(text[index]) : std::nullopt) {
    descriptions += tr("byte 0x%1").arg(QString::number(*byte, 16).toUpper().rightJustified(2, u'0'));
  }
  const Annotation* const word = word_at(index);
  if (word == nullptr) return descriptions;
  if (word->setting != nullptr) {
    const QString value = value_beside(*word);
    const QString label = label_of(*word->setting);
    descriptions += value.isEmpty() ? label : tr("%1: %2", "setting, value").arg(label, value);
    descriptions += meaning_of(*word->setting);
  } else if (word->role == Role::ignored) {
    descriptions += tr("This word has no effect.");
  }
  return descriptions;
}

// --- Events ---

bool CommandView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    // Left to the window, which has the history.
    if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
      event->ignore();
      return true;
    }
    if (key->key() == Qt::Key_F1 && setting_at_caret() != nullptr) {
      event->accept();
      return true;
    }
  }
  return QPlainTextEdit::event(event);
}

bool CommandView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QPlainTextEdit::viewportEvent(event);
  const auto* const help = static_cast<QHelpEvent*>(event);
  QString tip;
  for (const QString& description : descriptions_at(index_at(help->pos()))) {
    tip += QStringLiteral("<p>%1</p>").arg(description.toHtmlEscaped());
  }
  QToolTip::showText(help->globalPos(), tip, viewport());
  return true;
}

void CommandView::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) m_highlighter->take_palette();
  if (event->type() == QEvent::ApplicationFontChange) use_fixed_font();
}

void CommandView::keyPressEvent(QKeyEvent* event) {
  const Setting* const setting = setting_at_caret();
  if (event->key() == Qt::Key_F1 && setting != nullptr) {
    emit help_wanted(setting);
    return;
  }
  if (is_enter(*event) && (!is_editing() || event->modifiers().testFlag(Qt::ControlModifier))) {
    if (setting != nullptr) emit setting_wanted(setting);
    return;
  }
  if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo)) {
    event->ignore();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void CommandView::mouseMoveEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseMoveEvent(event);
  const bool is_link = !is_editing() || event->modifiers().testFlag(Qt::ControlModifier);
  const bool on_word = is_link && setting_at(index_at(event->position().toPoint())) != nullptr;
  viewport()->setCursor(on_word ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void CommandView::mouseReleaseEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseReleaseEvent(event);
  const bool is_link = !is_editing() || event->modifiers().testFlag(Qt::ControlModifier);
  if (event->button() != Qt::LeftButton || !is_link || textCursor().hasSelection()) return;
  if (const Setting* const setting = setting_at(index_at(event->position().toPoint()))) emit setting_wanted(setting);
}

// --- Size ---

void CommandView::use_fixed_font() {
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPointSizeF(QFontInfo(QGuiApplication::font()).pointSizeF());
  setFont(fixed);
}

int CommandView::height_of_lines(int count) const {
  const QMargins margins = contentsMargins() + viewportMargins();
  return fontMetrics().lineSpacing() * count + static_cast<int>(2 * document()->documentMargin()) + 2 * frameWidth() +
         margins.top() + margins.bottom();
}

QSize CommandView::sizeHint() const { return {fontMetrics().averageCharWidth() * 80, height_of_lines(5)}; }

QSize CommandView::minimumSizeHint() const { return {fontMetrics().averageCharWidth() * 20, height_of_lines(3)}; }

}  // namespace qvtdialog
