// SPDX-License-Identifier: MIT
// Random walks: what a person does in the window, and the same with qvtcfg in a twin folder. After every step both
// folders hold the same bytes. WALK_STEPS says how many steps, WALK_SEED which.

#include <SdkDebugDialog/Configuration.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QListView>
#include <QProcess>
#include <QRandomGenerator>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <array>

#include "model/Bytes.h"
#include "support.h"

namespace qvtdialog {

using SdkDebugDialog::find_setting;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::value_text;

namespace {

struct Change {
  const Setting* setting;
  QString text;

  QString argument() const { return shown(setting->name) + QLatin1Char('=') + text; }
};

// Of qvtcfg.
enum ExitCode { kDone = 0, kRefused = 1, kUsage = 2, kNotUnderstood = 3 };

class Walk {
 public:
  Walk(const QString& design, quint32 seed) : m_twin(design), m_folder(design), m_random(seed) {}

  // One thing that a person does, stored; or nothing, if what was drawn cannot be done.
  void step();

  int compared = 0;   // steps after which the folders were compared
  int changed = 0;    // by both
  int refused = 0;    // by both
  int copied = 0;     // to another processor
  int unset = 0;      // with the button of a field
  int chains = 0;     // with the buttons of the chain
  int foreign = 0;    // by another program
  int forgotten = 0;  // files that were removed since they cannot be read back

 private:
  void set();
  void unset_one();
  void change_chain();
  void copy();
  void change_behind_its_back();

  int below(int bound) { return static_cast<int>(m_random.bounded(bound)); }
  template <class List>
  const auto& one_of(const List& list) {
    return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
  }
  // Shows a processor.
  void select();
  std::optional<Change> random_change();
  // Its exit code; the test ends for one that is not expected.
  ExitCode tool(const QString& folder, const QStringList& arguments);
  void undo_to(int index);
  void store_and_compare(const QStringList& arguments);

  Folder m_twin;
  Folder m_folder;  // in which the process works
  QRandomGenerator m_random;
  Person m_person;
  QString m_processor;
};

void Walk::select() {
  const std::string* name = nullptr;
  do {
    name = &one_of(m_person.session.names());
  } while (m_person.session.document(*name) == nullptr);
  m_person.select(name->c_str());
  m_processor = shown(*name);
  // What was stored although it is not read back is of no use to either.
  if (!m_person.document().stored()) return;
  if (tool(m_twin.path({}), {QStringLiteral("show"), m_processor}) != kNotUnderstood) return;
  const QString file = QFile::decodeName(m_person.document().path().c_str());
  QVERIFY(QFile::remove(m_folder.path(file)) && QFile::remove(m_twin.path(file)));
  m_person.session.look_at_files();
  ++forgotten;
}

ExitCode Walk::tool(const QString& folder, const QStringList& arguments) {
  QProcess process;
  process.start(QStringLiteral(QVTCFG), QStringList{QStringLiteral("-C"), folder} + arguments);
  if (!process.waitForFinished()) qFatal("qvtcfg does not end");
  // A text that no value has is an error of the command line to the tool.
  const int code = process.exitCode() == kUsage ? kRefused : process.exitCode();
  if (code != kDone && code != kRefused && code != kNotUnderstood) {
    qFatal("qvtcfg %s: %s", qPrintable(arguments.join(QLatin1Char(' '))), process.readAllStandardError().constData());
  }
  return static_cast<ExitCode>(code);
}

void Walk::undo_to(int index) {
  while (m_person.document().history().index() > index) m_person.press(Qt::Key_Z, Qt::ControlModifier);
}

// The tool does in the twin folder what was done in the window; then the window stores.
void Walk::store_and_compare(const QStringList& arguments) {
  const ExitCode code = tool(m_twin.path({}), arguments);
  ++compared;
  const QByteArray what = arguments.join(QLatin1Char(' ')).toUtf8();
  QVERIFY2(code == kDone, what.constData());
  const bool hasChanges = !m_person.session.with_changes().empty();
  QVERIFY2(m_person.apply() == hasChanges, what.constData());
  const auto mine = contents_of(m_folder.path(QStringLiteral("etc")));
  const auto twin = contents_of(m_twin.path(QStringLiteral("etc")));
  if (mine == twin) return;
  for (const auto& [name, content] : twin) {
    if (mine.count(name) != 0 && mine.at(name) == content) continue;
    QFAIL((what + "\ntool:   " + content.c_str() +
           "\nwindow: " + (mine.count(name) != 0 ? mine.at(name).c_str() : "no file"))
              .constData());
  }
  QFAIL((what + ": the window has stored a file that the tool has not").constData());
}

// --- What a person does ---

// None if the setting that was drawn cannot be changed now.
std::optional<Change> Walk::random_change() {
  constexpr std::array kTexts = {"0",     "1",         "2",          "7",         "16",    "127",     "128",
                                 "0x10",  "64K",       "0x70000000", "12M",       "200k",  "-1",      "9999999999",
                                 "word",  "a;b",       "host",       "two words", "-dash", "1.5 MHz", "0x70010000",
                                 "unset", "localhost", "/dev/ttyS1", "115200",    "x:y",   "1_000",   "010"};
  const Setting& setting = one_of(settings());
  const SettingState state = m_person.document().configuration().state(setting);
  if (!state.applies || !state.changeable || setting.kind == SettingKind::devices) return std::nullopt;
  const bool isChosen = setting.kind == SettingKind::word || setting.kind == SettingKind::flag;
  if (isChosen || (!state.choices.empty() && below(3) != 0)) return Change{&setting, shown(one_of(state.choices))};
  return Change{&setting, QString::fromLatin1(one_of(kTexts))};
}

// One to three settings at once. The tool takes all or none.
void Walk::set() {
  std::vector<Change> changes;
  for (int tries = 1 + below(3); tries > 0; --tries) {
    const auto change = random_change();
    const auto isSame = [&](const Change& other) { return change && other.setting == change->setting; };
    if (change && std::none_of(changes.begin(), changes.end(), isSame)) changes.push_back(*change);
  }
  if (changes.empty()) return;
  // In the order of the catalogue, as the tool makes them.
  std::sort(changes.begin(), changes.end(), [](const Change& a, const Change& b) { return a.setting < b.setting; });
  const int before = m_person.document().history().index();
  const auto back = [&] {
    m_person.document().end_typing();
    undo_to(before);
  };
  bool isRefused = false;
  QStringList arguments = {QStringLiteral("set"), m_processor, QStringLiteral("--force")};
  std::vector<SettingValue> meant;
  for (const Change& change : changes) {
    const SettingState state = m_person.document().configuration().state(*change.setting);
    const bool isChoice = change.setting->kind == SettingKind::word;
    const bool isOffered =
        std::find(state.choices.begin(), state.choices.end(), bytes_of(change.text)) != state.choices.end();
    // One before it has taken it away.
    if (!state.applies || !state.changeable || (isChoice && !isOffered)) return back();
    m_person.enter(shown(change.setting->name), change.text);
    arguments += change.argument();
    // To the tool these two come together, and the second goes if it is not told.
    for (const auto& [first, second] : {std::pair("module", "module-arguments"), std::pair("rom", "rom-size")}) {
      const Setting& other = *find_setting(second);
      const auto isOther = [&](const Change& given) { return given.setting == &other; };
      if (change.setting->name != first || std::any_of(changes.begin(), changes.end(), isOther)) continue;
      QString kept = shown(value_text(other, m_person.document().configuration().value(other)));
      const bool isUnset = m_person.document().configuration().state(*change.setting).value == SettingValue();
      const bool isDropped = change.setting->name == "module" || isUnset;
      if (isDropped && !kept.isEmpty())
        arguments.back() += QLatin1Char(',') + kept.replace(QLatin1Char(';'), QLatin1Char(','));
    }
    isRefused |= m_person.document().draft().refused.count(change.setting) != 0;
    meant.push_back(m_person.document().configuration().value(*change.setting));
  }
  if (isRefused) {
    QVERIFY(!m_person.apply());
    QVERIFY2(tool(m_twin.path({}), arguments) == kRefused, qPrintable(arguments.join(QLatin1Char(' '))));
    ++refused;
    ++compared;
    return back();
  }
  for (std::size_t i = 0; i < changes.size(); ++i) {
    // One behind it has brought another value, which the tool refuses.
    if (m_person.document().configuration().value(*changes[i].setting) != meant[i]) return back();
  }
  if (!m_person.document().content()) {
    QVERIFY(!m_person.apply());
    QVERIFY(tool(m_twin.path({}), arguments) == kRefused);
    ++refused;
    return back();
  }
  ++changed;
  store_and_compare(arguments);
}

void Walk::unset_one() {
  const auto change = random_change();
  if (!change) return;
  const QString name = shown(change->setting->name);
  m_person.open_tab_of(name);
  auto& button = m_person.find<QAbstractButton>(QStringLiteral("default:") + name);
  if (!button.isEnabled()) return;
  const int before = m_person.document().history().index();
  QTest::mouseClick(&button, Qt::LeftButton);
  if (!m_person.document().content()) return undo_to(before);
  ++unset;
  store_and_compare({QStringLiteral("unset"), m_processor, name, QStringLiteral("--force")});
}

void Walk::change_chain() {
  const Setting& devices = *find_setting("devices");
  if (!m_person.document().configuration().state(devices).applies) return;
  m_person.open_tab_of(QStringLiteral("cpu-jtag"));
  auto& table = m_person.find<QTableView>(QStringLiteral("chain-table"));
  const int rows = table.model()->rowCount();
  if (rows > 0) table.setCurrentIndex(table.model()->index(below(rows), 0));
  const char* const buttons[] = {"device-add", "device-add", "device-remove", "device-up", "device-down"};
  auto& button = m_person.find<QAbstractButton>(QString::fromLatin1(buttons[below(5)]));
  if (!button.isEnabled() || rows > 6) return;
  const int before = m_person.document().history().index();
  QTest::mouseClick(&button, Qt::LeftButton);
  const auto& configuration = m_person.document().configuration();
  if (!m_person.document().content() || m_person.document().history().index() == before) return undo_to(before);
  ++chains;
  store_and_compare({QStringLiteral("set"), m_processor, QStringLiteral("--force"),
                     QStringLiteral("devices=") + shown(value_text(devices, configuration.value(devices))),
                     QStringLiteral("debug-device=%1").arg(configuration.record().debugDevice)});
}

void Walk::copy() {
  const QString from = m_processor;
  select();
  const QString to = m_processor;
  if (from == to) return;
  m_person.select(bytes_of(from).c_str());
  m_processor = from;
  in_next_dialog([&](QWidget& dialog) {
    auto& list = *dialog.findChild<QListView*>(QStringLiteral("copy-targets"));
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      const QModelIndex index = list.model()->index(row, 0);
      if (index.data().toString() != to) continue;
      list.setCurrentIndex(index);
      list.setFocus();
      QTest::keyClick(&list, Qt::Key_Space);
    }
    QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("copy-copy")), Qt::LeftButton);
  });
  m_person.click(QStringLiteral("copy-to"));
  m_person.select(bytes_of(to).c_str());
  m_processor = to;
  if (!m_person.document().content()) return m_person.document().history().undo();
  ++copied;
  store_and_compare({QStringLiteral("copy"), from, to, QStringLiteral("--force")});
}

// Another program changes the file; the window, which has no changes, takes that over.
void Walk::change_behind_its_back() {
  const auto change = random_change();
  if (!change) return;
  const QStringList arguments = {QStringLiteral("set"), m_processor, QStringLiteral("--force"), change->argument()};
  const ExitCode code = tool(m_folder.path({}), arguments);
  QCOMPARE(tool(m_twin.path({}), arguments), code);
  m_person.session.look_at_files();
  QVERIFY(m_person.session.with_changes().empty());
  if (code == kDone) ++foreign;
}

void Walk::step() {
  select();
  switch (below(10)) {
    case 0:
      return unset_one();
    case 1:
    case 2:
      return change_chain();
    case 3:
      return copy();
    case 4:
      return change_behind_its_back();
    default:
      return set();
  }
}

}  // namespace

class WalkTest : public QObject {
  Q_OBJECT

 private slots:
  void the_window_stores_what_the_tool_stores_data() {
    QTest::addColumn<QString>("design");
    for (const char* const design : {"small", "old-bus", "large"}) QTest::newRow(design) << QString::fromLatin1(design);
  }

  void the_window_stores_what_the_tool_stores() {
    QFETCH(QString, design);
    const int steps =
        qEnvironmentVariableIntValue("WALK_STEPS") > 0 ? qEnvironmentVariableIntValue("WALK_STEPS") : 1000;
    const auto seed = static_cast<quint32>(qEnvironmentVariableIntValue("WALK_SEED"));
    Walk walk(design, seed);
    while (walk.compared < steps && !QTest::currentTestFailed()) walk.step();
    qInfo(
        "seed %u, %d steps: %d times set, %d refused, %d unset, %d chains, %d copied, %d by another program, %d not "
        "read back",
        seed, walk.compared, walk.changed, walk.refused, walk.unset, walk.chains, walk.copied, walk.foreign,
        walk.forgotten);
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QApplication application(argc, argv);
  qvtdialog::WalkTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "walk_test.moc"
