// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolTip>
#include <QUndoStack>
#include <string>

#include "widgets/Colours.h"
#include "widgets/CommandView.h"
#include "widgets/FindingList.h"

using namespace qvtdialog;  // NOLINT(google-build-using-namespace)
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Finding;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Setting;
using SdkDebugDialog::TextKind;

Q_DECLARE_METATYPE(const SdkDebugDialog::Setting*)
Q_DECLARE_METATYPE(const SdkDebugDialog::FindingKind*)
Q_DECLARE_METATYPE(SdkDebugDialog::Fix)

namespace {

const std::string kCommand = "connect ov odm -cable type zarvek_platformusb frequency 3000000 -bscan USER3\n";

void show(CommandView& view, const std::string& bytes) {
  view.show_text(bytes, annotate(bytes, TextKind::optionFile), diagnose(bytes, TextKind::optionFile));
}

// As the window does it: what is typed is shown again with its colours and findings.
void follow_typing(CommandView& view) {
  QObject::connect(&view, &CommandView::text_typed, &view, [&view](const std::string& bytes) { show(view, bytes); });
}

QTextCharFormat format_at(const CommandView& view, qsizetype index) {
  const QTextBlock block = view.document()->findBlock(static_cast<int>(index));
  for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
    const qsizetype at = index - block.position();
    if (range.start <= at && at < range.start + range.length) return range.format;
  }
  return {};
}

QTextCharFormat format_of(const CommandView& view, const QString& word) {
  return format_at(view, view.toPlainText().indexOf(word));
}

QPoint middle_of(const CommandView& view, const QString& word) {
  QTextCursor cursor(view.document());
  cursor.setPosition(static_cast<int>(view.toPlainText().indexOf(word)));
  QRect rect = view.cursorRect(cursor);
  cursor.movePosition(QTextCursor::NextCharacter);
  return rect.united(view.cursorRect(cursor)).center();
}

void put_caret(CommandView& view, const QString& before) {
  QTextCursor cursor = view.textCursor();
  cursor.setPosition(static_cast<int>(view.toPlainText().indexOf(before)));
  view.setTextCursor(cursor);
}

// What the tooltip at a point says; it takes a moment to go.
QString tooltip_at(CommandView& view, const QPoint& point) {
  QToolTip::hideText();
  if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); })) return QStringLiteral("the last tooltip stays");
  QHelpEvent help(QEvent::ToolTip, point, view.viewport()->mapToGlobal(point));
  QApplication::sendEvent(view.viewport(), &help);
  return QToolTip::text();
}

const Setting* wanted(const QSignalSpy& spy) { return spy.last().first().value<const Setting*>(); }

}  // namespace

class CommandViewTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void cleanup();

  void showsTheTextWithoutTheLastLineFeed();
  void keepsEveryByteWhileItIsEdited();
  void coloursWordsByRole();
  void coloursFitEachPalette();
  void marksChangedWords();
  void marksTheChangedDeviceOfAChain();
  void underlinesFindings();
  void marksBytesThatAreNoCharacters();
  void tellsAboutWords();
  void clickAsksForTheSetting();
  void enterAsksForTheSetting();
  void editingNeedsControl();
  void isReadOnlyUntilEdited();
  void keepsTheCaretWhileTyping();
  void keepsTheCaretWhenTheTextChanges();
  void takesPastedText();
  void leavesUndoToTheWindow();
  void asksForHelp();
  void goesToAPlace();
  void showsLongTexts_data();
  void showsLongTexts();

  void listsFindings();
  void hidesWithoutFindings();
  void choosesByKeyAndClick();
  void limitsTheList();

 private:
  std::unique_ptr<CommandView> m_view;
};

void CommandViewTest::initTestCase() {
  qRegisterMetaType<const Setting*>();
  qRegisterMetaType<const FindingKind*>();
  qRegisterMetaType<Fix>();
}

void CommandViewTest::init() {
  m_view = std::make_unique<CommandView>();
  m_view->resize(m_view->sizeHint());
  m_view->show();
  m_view->activateWindow();
  m_view->setFocus();
  QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void CommandViewTest::cleanup() { m_view.reset(); }

void CommandViewTest::showsTheTextWithoutTheLastLineFeed() {
  show(*m_view, kCommand);
  QCOMPARE(m_view->toPlainText().toStdString() + '\n', kCommand);
  QCOMPARE(m_view->bytes(), kCommand);
  show(*m_view, "\n\n");
  QCOMPARE(m_view->blockCount(), 2);
  show(*m_view, "");
  QCOMPARE(m_view->toPlainText(), QString());
}

void CommandViewTest::keepsEveryByteWhileItIsEdited() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  bytes += "\xC2\xA0\xE2\x80\xA9\xEF\xB7\x90\xEE\x80\x80\xF0\x9F\x98\x80\n";
  show(*m_view, bytes);
  m_view->set_editing(true);
  follow_typing(*m_view);
  QSignalSpy typed(m_view.get(), &CommandView::text_typed);
  m_view->moveCursor(QTextCursor::End);
  QTest::keyClick(m_view.get(), Qt::Key_X);
  QCOMPARE(typed.count(), 1);
  bytes.insert(bytes.size() - 1, "x");
  QCOMPARE(m_view->bytes(), bytes);
  QTest::keyClick(m_view.get(), Qt::Key_Return);
  bytes.insert(bytes.size() - 1, "\n");
  QCOMPARE(m_view->bytes(), bytes);
  m_view->moveCursor(QTextCursor::Start);
  QTest::keyClick(m_view.get(), Qt::Key_Delete);
  QCOMPARE(m_view->bytes(), bytes.substr(1));
}

void CommandViewTest::coloursWordsByRole() {
  using SdkDebugDialog::Role;
  show(*m_view, kCommand);
  const QPalette palette = m_view->palette();
  const std::pair<const char*, Role> roles[] = {{"connect", Role::head},      {"ov", Role::target},
                                                {"odm", Role::connection},    {"-cable", Role::option},
                                                {"frequency", Role::keyword}, {"3000000", Role::value}};
  for (const auto& [word, role] : roles) {
    QCOMPARE(format_of(*m_view, QString::fromLatin1(word)).foreground().color(), colour(role, palette));
  }
  QCOMPARE(format_at(*m_view, 7), QTextCharFormat());
}

void CommandViewTest::coloursFitEachPalette() {
  show(*m_view, kCommand);
  QPalette dark = m_view->palette();
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  const QColor before = format_of(*m_view, QStringLiteral("-cable")).foreground().color();
  m_view->setPalette(dark);
  const QColor after = format_of(*m_view, QStringLiteral("-cable")).foreground().color();
  QVERIFY(before != after);
  QVERIFY(contrast(after, Qt::black) >= 4.5);
}

void CommandViewTest::marksChangedWords() {
  const QColor added = background(Tone::added, m_view->palette());
  std::string after = kCommand;
  after.replace(after.find("3000000"), 7, "12000000 port USB22");
  show(*m_view, after);
  m_view->mark_changes(kCommand);
  for (const char* word : {"12000000", "port", "USB22"}) {
    QCOMPARE(format_of(*m_view, QString::fromLatin1(word)).background().color(), added);
  }
  for (const char* word : {"connect", "frequency", "-bscan", "USER3"}) {
    QCOMPARE(format_of(*m_view, QString::fromLatin1(word)).background().style(), Qt::NoBrush);
  }
  // The same text keeps its marks; another one has none.
  show(*m_view, after);
  QCOMPARE(format_of(*m_view, QStringLiteral("port")).background().color(), added);
  show(*m_view, after + "-quiet");
  QCOMPARE(format_of(*m_view, QStringLiteral("port")).background().style(), Qt::NoBrush);
}

void CommandViewTest::marksTheChangedDeviceOfAChain() {
  const auto chain = [](const std::string& first, const std::string& second) {
    return "connect ov odm -configdevice devicenr 1 partname " + first +
           " irlength 10 idcode 0x0a001093 -configdevice devicenr 2 partname " + second +
           " irlength 10 idcode 0x0a001093\n";
  };
  show(*m_view, chain("bbb", "aaa"));
  m_view->mark_changes(chain("aaa", "bbb"));
  const QColor added = background(Tone::added, m_view->palette());
  QCOMPARE(format_of(*m_view, QStringLiteral("bbb")).background().color(), added);
  QCOMPARE(format_of(*m_view, QStringLiteral("aaa")).background().color(), added);
  QCOMPARE(format_of(*m_view, QStringLiteral("devicenr 2")).background().style(), Qt::NoBrush);
}

void CommandViewTest::underlinesFindings() {
  show(*m_view, "connect ov odm -cabel type x\n");
  const QTextCharFormat format = format_of(*m_view, QStringLiteral("-cabel"));
  QCOMPARE(format.underlineStyle(), QTextCharFormat::WaveUnderline);
  QCOMPARE(format.underlineColor(), colour(Tone::error, m_view->palette()));
  QCOMPARE(format_of(*m_view, QStringLiteral("connect")).underlineStyle(), QTextCharFormat::NoUnderline);
  // An empty place at the end of the text is shown at its last character.
  show(*m_view, "connect ov odm -bscan");
  QCOMPARE(format_at(*m_view, 20).underlineStyle(), QTextCharFormat::WaveUnderline);
  // Where findings overlap, the worst one counts.
  const FindingKind& kind = SdkDebugDialog::finding_kinds().front();
  const auto finding = [&](SdkDebugDialog::Severity severity, std::size_t begin, std::size_t end) {
    Finding made;
    made.kind = &kind;
    made.severity = severity;
    made.begin = begin;
    made.end = end;
    return made;
  };
  m_view->show_text("abcdef", {},
                    {finding(SdkDebugDialog::Severity::warning, 0, 6), finding(SdkDebugDialog::Severity::error, 2, 4)});
  QCOMPARE(format_at(*m_view, 1).underlineColor(), colour(Tone::warning, m_view->palette()));
  QCOMPARE(format_at(*m_view, 2).underlineColor(), colour(Tone::error, m_view->palette()));
  QCOMPARE(format_at(*m_view, 5).underlineColor(), colour(Tone::warning, m_view->palette()));
}

void CommandViewTest::marksBytesThatAreNoCharacters() {
  show(*m_view, "connect ov odm\r -bscan USER3 caf\xC3\xA9\xFF\n");
  QCOMPARE(format_at(*m_view, 14).background().color(), background(Tone::byte, m_view->palette()));
  QCOMPARE(format_of(*m_view, QStringLiteral("é")).background().style(), Qt::NoBrush);
  QVERIFY(tooltip_at(*m_view, middle_of(*m_view, QString(QChar(0xE00D)))).contains(QStringLiteral("byte 0x0D")));
  QVERIFY(tooltip_at(*m_view, middle_of(*m_view, QString(QChar(0xE0FF)))).contains(QStringLiteral("byte 0xFF")));
}

void CommandViewTest::tellsAboutWords() {
  show(*m_view, kCommand);
  const Setting& frequency = *find_setting("frequency");
  for (const char* word : {"frequency", "3000000"}) {
    const QString tip = tooltip_at(*m_view, middle_of(*m_view, QString::fromLatin1(word)));
    QVERIFY2(tip.contains(QString::fromUtf8(frequency.label.data()) + QStringLiteral(": 3 MHz")), qPrintable(tip));
    QVERIFY(tip.contains(QString::fromUtf8(frequency.meaning.data()).toHtmlEscaped()));
  }
  QCOMPARE(tooltip_at(*m_view, m_view->viewport()->rect().bottomRight() - QPoint(2, 2)), QString());
  show(*m_view, "connect ov odm -cabel <b> x\n");
  const QString tip = tooltip_at(*m_view, middle_of(*m_view, QStringLiteral("-cabel")));
  QVERIFY2(tip.contains(QStringLiteral("-cable")), qPrintable(tip));
  // The same at the caret, for a status bar.
  QSignalSpy described(m_view.get(), &CommandView::caret_described);
  put_caret(*m_view, QStringLiteral("-cabel"));
  QVERIFY(described.last().first().toString().contains(QStringLiteral("-cable")));
}

void CommandViewTest::clickAsksForTheSetting() {
  show(*m_view, kCommand);
  QSignalSpy spy(m_view.get(), &CommandView::setting_wanted);
  for (const auto& [word, setting] : {std::pair("frequency", "frequency"),
                                      {"3000000", "frequency"},
                                      {"USER3", "bscan"},
                                      {"-bscan", "bscan"},
                                      {"odm", "connection"}}) {
    spy.clear();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, middle_of(*m_view, QString::fromLatin1(word)));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(wanted(spy), find_setting(setting));
  }
  spy.clear();
  QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, middle_of(*m_view, QStringLiteral("connect")));
  QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, m_view->viewport()->rect().bottomRight() - QPoint(2, 2));
  QCOMPARE(spy.count(), 0);
  // A selection is no click.
  QTest::mousePress(m_view->viewport(), Qt::LeftButton, {}, middle_of(*m_view, QStringLiteral("-cable")));
  QTest::mouseMove(m_view->viewport(), middle_of(*m_view, QStringLiteral("frequency")));
  QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, middle_of(*m_view, QStringLiteral("frequency")));
  QVERIFY(m_view->textCursor().hasSelection());
  QCOMPARE(spy.count(), 0);
}

void CommandViewTest::enterAsksForTheSetting() {
  show(*m_view, kCommand);
  QSignalSpy spy(m_view.get(), &CommandView::setting_wanted);
  put_caret(*m_view, QStringLiteral("USER3"));
  QTest::keyClick(m_view.get(), Qt::Key_Return);
  QCOMPARE(wanted(spy), find_setting("bscan"));
  // By keys alone: to the first word that has a setting.
  QTest::keyClick(m_view.get(), Qt::Key_Home, Qt::ControlModifier);
  QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
  QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
  QTest::keyClick(m_view.get(), Qt::Key_Enter);
  QCOMPARE(spy.count(), 2);
  QCOMPARE(wanted(spy), find_setting("connection"));
}

void CommandViewTest::editingNeedsControl() {
  show(*m_view, kCommand);
  m_view->set_editing(true);
  QSignalSpy spy(m_view.get(), &CommandView::setting_wanted);
  const QPoint point = middle_of(*m_view, QStringLiteral("USER3"));
  QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, point);
  QCOMPARE(spy.count(), 0);
  QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::ControlModifier, point);
  QCOMPARE(spy.count(), 1);
  QTest::keyClick(m_view.get(), Qt::Key_Return, Qt::ControlModifier);
  QCOMPARE(spy.count(), 2);
  QCOMPARE(m_view->bytes(), kCommand);
}

void CommandViewTest::isReadOnlyUntilEdited() {
  show(*m_view, kCommand);
  QSignalSpy typed(m_view.get(), &CommandView::text_typed);
  QTest::keyClicks(m_view.get(), QStringLiteral("x"));
  QTest::keyClick(m_view.get(), Qt::Key_Delete);
  QCOMPARE(typed.count(), 0);
  QCOMPARE(m_view->bytes(), kCommand);
  QVERIFY(!m_view->is_editing());
  m_view->set_editing(true);
  QVERIFY(m_view->is_editing());
  QTest::keyClicks(m_view.get(), QStringLiteral("xy"));
  QCOMPARE(typed.count(), 2);
  QCOMPARE(m_view->bytes(), "xy" + kCommand);
}

void CommandViewTest::keepsTheCaretWhileTyping() {
  m_view->set_editing(true);
  follow_typing(*m_view);
  const QString typed = QStringLiteral("connect ov odm -cable type zarvek_platformusb");
  for (const QChar character : typed) {
    QTest::keyClick(m_view.get(), character.toLatin1());
    QCOMPARE(m_view->textCursor().position(), m_view->toPlainText().size());
  }
  QCOMPARE(m_view->bytes(), typed.toStdString());
  // A line feed at the end stays visible while it is typed.
  QTest::keyClick(m_view.get(), Qt::Key_Return);
  QCOMPARE(m_view->blockCount(), 2);
  QCOMPARE(m_view->textCursor().position(), typed.size() + 1);
  QTest::keyClick(m_view.get(), Qt::Key_Backspace);
  put_caret(*m_view, QStringLiteral("odm"));
  QTest::keyClicks(m_view.get(), QStringLiteral("abc "));
  QCOMPARE(m_view->bytes(), std::string("connect ov abc odm -cable type zarvek_platformusb"));
  QCOMPARE(m_view->textCursor().position(), 15);
  QVERIFY(!m_view->document()->isUndoAvailable());
}

void CommandViewTest::keepsTheCaretWhenTheTextChanges() {
  show(*m_view, kCommand);
  put_caret(*m_view, QStringLiteral("-bscan"));
  std::string longer = kCommand;
  longer.replace(longer.find("3000000"), 7, "12000000");
  show(*m_view, longer);
  QCOMPARE(m_view->textCursor().position(), m_view->toPlainText().indexOf(QStringLiteral("-bscan")));
  put_caret(*m_view, QStringLiteral("odm"));
  show(*m_view, kCommand);
  QCOMPARE(m_view->textCursor().position(), m_view->toPlainText().indexOf(QStringLiteral("odm")));
  m_view->moveCursor(QTextCursor::Start);
  show(*m_view, "x" + kCommand);
  QCOMPARE(m_view->textCursor().position(), 0);
  // Characters that differ only in their second half.
  show(*m_view, "a\xF0\x9F\x98\x80z");
  show(*m_view, "a\xF0\x9F\x98\x81z");
  QCOMPARE(m_view->toPlainText(), QStringLiteral("a😁z"));
  QCOMPARE(m_view->bytes(), std::string("a\xF0\x9F\x98\x81z"));
}

void CommandViewTest::takesPastedText() {
  m_view->set_editing(true);
  follow_typing(*m_view);
  show(*m_view, "ab");
  put_caret(*m_view, QStringLiteral("b"));
  // What comes from outside and cannot be seen becomes visible bytes, and the caret stays behind it.
  m_view->textCursor().insertText(QStringLiteral("\u00A0x"));
  QCOMPARE(m_view->bytes(), std::string("a\xC2\xA0xb"));
  QCOMPARE(m_view->toPlainText(), QStringLiteral("a\uE0C2\uE0A0xb"));
  QCOMPARE(m_view->textCursor().position(), 4);
}

void CommandViewTest::leavesUndoToTheWindow() {
  m_view.reset();
  QMainWindow window;
  auto* const view = new CommandView(&window);
  window.setCentralWidget(view);
  QAction undo(&window);
  undo.setShortcut(QKeySequence::Undo);
  window.addAction(&undo);
  QSignalSpy triggered(&undo, &QAction::triggered);
  window.show();
  window.activateWindow();
  // Shortcuts are those of the active window.
  QVERIFY(QTest::qWaitForWindowActive(&window));
  view->setFocus();
  view->set_editing(true);
  QTest::keyClicks(view, QStringLiteral("abc"));
  QTest::keySequence(view, QKeySequence::Undo);
  QCOMPARE(triggered.count(), 1);
  QCOMPARE(view->bytes(), std::string("abc"));
}

void CommandViewTest::asksForHelp() {
  show(*m_view, kCommand);
  QSignalSpy spy(m_view.get(), &CommandView::help_wanted);
  put_caret(*m_view, QStringLiteral("USER3"));
  QTest::keyClick(m_view.get(), Qt::Key_F1);
  QCOMPARE(spy.count(), 1);
  QCOMPARE(wanted(spy), find_setting("bscan"));
  put_caret(*m_view, QStringLiteral("connect"));
  QTest::keyClick(m_view.get(), Qt::Key_F1);
  QCOMPARE(spy.count(), 1);
}

void CommandViewTest::goesToAPlace() {
  show(*m_view, "caf\xC3\xA9 word");
  m_view->go_to(6, 10);
  QCOMPARE(m_view->textCursor().selectedText(), QStringLiteral("word"));
}

void CommandViewTest::showsLongTexts_data() {
  QTest::addColumn<QByteArray>("bytes");
  const auto filled = [](qsizetype size, const QByteArray& part) { return part.repeated(size / part.size()); };
  const QByteArray command = QByteArray::fromStdString(kCommand);
  QTest::newRow("lines") << filled(1'000'000, command);
  QTest::newRow("one line") << filled(300'000, command.chopped(1) + ' ');
  QTest::newRow("one word") << filled(300'000, "a");
  // Characters without a glyph take longer.
  QTest::newRow("no text") << filled(200'000, QByteArray("\x00\xFF\r", 3));
}

// Without a bound, what takes quadratic time takes minutes here; the sanitizers slow everything down.
void CommandViewTest::showsLongTexts() {
  QFETCH(const QByteArray, bytes);
  QElapsedTimer timer;
  timer.start();
  show(*m_view, bytes.toStdString());
  m_view->mark_changes(kCommand);
  m_view->set_editing(true);
  follow_typing(*m_view);
  QTest::keyClick(m_view.get(), Qt::Key_X);
  QApplication::processEvents();
  QCOMPARE(m_view->bytes(), 'x' + bytes.toStdString());
  QVERIFY2(timer.elapsed() < 30'000, qPrintable(QString::number(timer.elapsed())));
}

// --- The list of findings ---

namespace {

// A list with the findings of a text, shown.
struct Listed {
  explicit Listed(const std::string& bytes) : findings(diagnose(bytes, TextKind::optionFile)) {
    list.resize(600, 300);
    list.show_findings(findings);
    rows = list.findChild<QListView*>(QStringLiteral("findings"));
    rows->setFocus();
  }
  int row_of(const QString& text) const {
    for (int row = 0; row < rows->model()->rowCount(); ++row) {
      if (rows->model()->index(row, 0).data().toString().contains(text)) return row;
    }
    return -1;
  }
  void choose(int row) { rows->setCurrentIndex(rows->model()->index(row, 0)); }

  FindingList list;
  QListView* rows = nullptr;
  std::vector<Finding> findings;
};

const std::string kMistakes = "connect ov odm -cabel type x -bscan USER9 -debugdevice devicenr 010\n";

}  // namespace

void CommandViewTest::listsFindings() {
  const Listed listed(kMistakes);
  QVERIFY(listed.list.isVisible());
  QVERIFY(listed.row_of(QStringLiteral("error: no option '-cabel'; did you mean '-cable'?")) >= 0);
  QCOMPARE(listed.row_of(QStringLiteral("'-cable'")), 0);
  QVERIFY(listed.row_of(QStringLiteral("Fix: write '-cable'")) > 0);
  QVERIFY(listed.row_of(QStringLiteral("(a guess)")) > 0);
}

void CommandViewTest::hidesWithoutFindings() {
  Listed listed(kMistakes);
  listed.list.show_findings({});
  QVERIFY(!listed.list.isVisible());
  listed.list.show_findings(listed.findings);
  QVERIFY(listed.list.isVisible());
}

void CommandViewTest::choosesByKeyAndClick() {
  Listed listed(kMistakes);
  QSignalSpy fix(&listed.list, &FindingList::fix_wanted);
  QSignalSpy place(&listed.list, &FindingList::place_wanted);
  QSignalSpy help(&listed.list, &FindingList::help_wanted);
  QSignalSpy all(&listed.list, &FindingList::all_fixes_wanted);

  listed.choose(0);
  QTest::keyClick(listed.rows, Qt::Key_Return);
  QCOMPARE(place.count(), 1);
  QCOMPARE(place.last()[0].toULongLong(), qulonglong{kMistakes.find("-cabel")});
  QCOMPARE(place.last()[1].toULongLong(), qulonglong{kMistakes.find(" type")});

  QTest::keyClick(listed.rows, Qt::Key_F1);
  QCOMPARE(help.last().first().value<const FindingKind*>(), SdkDebugDialog::find_finding_kind("unknown-option"));

  QTest::keyClick(listed.rows, Qt::Key_Down);
  QTest::keyClick(listed.rows, Qt::Key_Enter);
  QCOMPARE(fix.count(), 1);
  QCOMPARE(fix.last().first().value<Fix>().title, std::string("write '-cable'"));
  QCOMPARE(place.count(), 1);

  const QModelIndex guess = listed.rows->model()->index(listed.row_of(QStringLiteral("(a guess)")), 0);
  listed.rows->scrollTo(guess);
  QTest::mouseClick(listed.rows->viewport(), Qt::LeftButton, {}, listed.rows->visualRect(guess).center());
  QCOMPARE(fix.count(), 2);
  QVERIFY(!fix.last().first().value<Fix>().safe);

  auto* const fix_all = listed.list.findChild<QPushButton*>(QStringLiteral("fix-all"));
  QVERIFY(fix_all->isEnabled());
  QTest::mouseClick(fix_all, Qt::LeftButton);
  QCOMPARE(all.count(), 1);
  for (Finding& finding : listed.findings) finding.fixes.clear();
  listed.list.show_findings(listed.findings);
  QVERIFY(!fix_all->isEnabled());
}

void CommandViewTest::limitsTheList() {
  Finding finding;
  finding.kind = &SdkDebugDialog::finding_kinds().front();
  finding.severity = SdkDebugDialog::Severity::note;
  finding.message = "many";
  std::vector<Finding> findings(30'000, finding);
  findings.back().severity = SdkDebugDialog::Severity::error;
  findings.back().message = "the error";
  FindingList list;
  list.show_findings(findings);
  const auto* const model = list.findChild<QListView*>(QStringLiteral("findings"))->model();
  QCOMPARE(model->rowCount(), 101);
  QVERIFY(model->index(0, 0).data().toString().contains(QStringLiteral("the error")));
  QVERIFY(model->index(100, 0).data().toString().contains(QStringLiteral("29900")));
}

QTEST_MAIN(CommandViewTest)
#include "command_view_test.moc"
