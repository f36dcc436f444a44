// SPDX-License-Identifier: MIT
// The window: its buttons and keys, the command as text, and option files that others touch.

#include <SdkDebugDialog/Configuration.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTreeView>
#include <QTreeWidget>

#include "model/Bytes.h"
#include "support.h"
#include "widgets/ApplyDialog.h"
#include "widgets/ChainPicture.h"
#include "widgets/CommandView.h"
#include "widgets/SettingsForm.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;

namespace {

const QString kFile = QStringLiteral("etc/qvt_ovrin_0.opt");
constexpr const char* kByHand = "Connect OV odm -quiet  -BSCAN user3 -debugdevice deviceNr 2\n";

// A window on ovrin_0 of the large design, whose file holds this.
struct Opened {
  explicit Opened(const std::optional<std::string>& content = kByHand) : folder(QStringLiteral("large")) {
    if (content) write_file(kFile, *content);
    person = std::make_unique<Person>();
    person->select("ovrin_0");
  }
  Person* operator->() { return person.get(); }
  QString message() { return person->find<QLabel>(QStringLiteral("message")).text(); }
  bool has_banner() { return person->find(QStringLiteral("banner")).isVisible(); }
  // A cell of the chain, opened with F2, its text selected.
  QLineEdit* open_cell(int row, int column) {
    auto& table = person->find<QTableView>(QStringLiteral("chain-table"));
    table.setFocus();
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_F2);
    auto* const cell = table.findChild<QLineEdit*>(QStringLiteral("cell"));
    if (cell == nullptr) qFatal("no cell is open");
    cell->selectAll();
    return cell;
  }
  CommandView& command() { return person->find<CommandView>(QStringLiteral("command")); }

  Folder folder;
  std::unique_ptr<Person> person;
};

// A file system on a folder, until it is destroyed.
class Mount {
 public:
  Mount(const char* source, const QByteArray& folder, const char* type, unsigned long flags, const char* data)
      : m_folder(folder), m_isMounted(::mount(source, folder.constData(), type, flags, data) == 0) {}
  ~Mount() {
    if (m_isMounted) ::umount(m_folder.constData());
  }
  Mount(const Mount&) = delete;
  Mount& operator=(const Mount&) = delete;
  explicit operator bool() const { return m_isMounted; }

 private:
  QByteArray m_folder;
  bool m_isMounted;
};

// The texts of a tree, a line for each row.
QStringList lines_of(const QTreeWidgetItem& item) {
  QStringList texts;
  for (int column = 0; column < item.columnCount(); ++column) texts += item.text(column);
  QStringList lines = {texts.join(QLatin1Char('|'))};
  for (int i = 0; i < item.childCount(); ++i) lines += lines_of(*item.child(i));
  return lines;
}

}  // namespace

class WindowTest : public QObject {
  Q_OBJECT

 private slots:
  // --- Buttons ---

  void undo_and_redo_by_button_and_by_key() {
    Opened opened;
    const Draft before = opened->document().draft();
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER1"));
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("5"));
    const Draft after = opened->document().draft();
    opened->click(QStringLiteral("undo"));
    opened->click(QStringLiteral("undo"));
    QVERIFY(opened->document().draft() == before);
    QVERIFY(!opened->find<QAbstractButton>(QStringLiteral("undo")).isEnabled());
    opened->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    opened->click(QStringLiteral("redo"));
    QVERIFY(opened->document().draft() == after);
  }

  void at_first_there_is_nothing_to_undo_and_to_apply() {
    Opened opened;
    for (const char* const button : {"undo", "redo", "apply-changes"}) {
      QVERIFY2(!opened->find<QAbstractButton>(QString::fromLatin1(button)).isEnabled(), button);
    }
    QVERIFY(opened->find<QAbstractButton>(QStringLiteral("reset")).isEnabled());
  }

  void undo_while_a_field_is_typed_into() {
    Opened opened;
    opened->type(QStringLiteral("debug-device"), QStringLiteral("77"));
    opened->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(opened->find<QLineEdit>(QStringLiteral("field:debug-device")).text(), QStringLiteral("2"));
    opened->press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(opened->find<QLineEdit>(QStringLiteral("field:debug-device")).text(), QStringLiteral("77"));
  }

  void every_processor_has_a_history_of_its_own() {
    Opened opened;
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("5"));
    opened->select("ovrin_1");
    QVERIFY(!opened->find<QAbstractButton>(QStringLiteral("undo")).isEnabled());
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("6"));
    opened->select("ovrin_0");
    opened->click(QStringLiteral("undo"));
    QVERIFY(!opened->document().has_changes());
    QVERIFY(opened->session.document("ovrin_1")->has_changes());
  }

  void reset_puts_everything_back_and_can_be_undone() {
    Opened opened;
    opened->click(QStringLiteral("reset"));
    const Configuration defaults(opened->document().processor());
    QVERIFY(differences(defaults, opened->document().configuration()).empty());
    // What sets nothing stays.
    QVERIFY(opened->document().content()->find("-quiet") != std::string::npos);
    opened->click(QStringLiteral("undo"));
    QVERIFY(!opened->document().has_changes());
  }

  void apply_shows_what_changes_and_stores_it() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    QStringList lines;
    in_next_dialog([&](QWidget& dialog) {
      lines = lines_of(*dialog.findChild<QTreeWidget*>()->topLevelItem(0));
      QVERIFY(!dialog.findChild<QCheckBox*>(QStringLiteral("apply-go-on"))->isVisible());
      QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("apply-store")), Qt::LeftButton);
    });
    opened->click(QStringLiteral("apply-changes"));
    QVERIFY(lines.contains(QStringLiteral("BSCAN register|USER3|USER4")));
    QCOMPARE(*content_of(kFile), std::string("Connect OV odm -quiet  -BSCAN USER4 -debugdevice deviceNr 2\n"));
    QVERIFY(!opened->window.isWindowModified());
    QVERIFY(!opened->find<QAbstractButton>(QStringLiteral("apply-changes")).isEnabled());
  }

  void apply_can_be_cancelled() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    in_next_dialog([&](QWidget& dialog) {
      QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("apply-cancel")), Qt::LeftButton);
    });
    opened->click(QStringLiteral("apply-changes"));
    QCOMPARE(*content_of(kFile), std::string(kByHand));
    QVERIFY(opened->document().has_changes());
  }

  void what_would_be_lost_is_named_and_not_stored_unless_asked_for() {
    Opened opened;
    opened->enter(QStringLiteral("connection"), QStringLiteral("simulator"));
    QVERIFY(!opened->apply(false));
    QCOMPARE(*content_of(kFile), std::string(kByHand));
    QStringList lines;
    in_next_dialog([&](QWidget& dialog) {
      lines = lines_of(*dialog.findChild<QTreeWidget*>()->topLevelItem(0));
      auto& store = *dialog.findChild<QAbstractButton*>(QStringLiteral("apply-store"));
      QVERIFY(!store.isEnabled());
      QTest::keyClick(dialog.findChild<QCheckBox*>(QStringLiteral("apply-go-on")), Qt::Key_Space);
      QVERIFY(store.isEnabled());
      QTest::mouseClick(&store, Qt::LeftButton);
    });
    opened->press(Qt::Key_S, Qt::ControlModifier);
    const QString all = lines.join(QLatin1Char('\n'));
    for (const char* const lost : {"bscan USER3", "debug-device 2", "-quiet"}) {
      QVERIFY2(all.contains(QLatin1String(lost)), qPrintable(all));
    }
    QCOMPARE(*content_of(kFile), std::string("connect ov sim\n"));
  }

  void one_of_several_processors_can_be_left_out() {
    Opened opened;
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("5"));
    opened->select("ovrin_1");
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("6"));
    in_next_dialog([&](QWidget& dialog) {
      auto& tree = *dialog.findChild<QTreeWidget*>();
      QCOMPARE(tree.topLevelItemCount(), 2);
      tree.setFocus();
      QTest::keyClick(&tree, Qt::Key_Space);
      QCOMPARE(tree.topLevelItem(0)->checkState(0), Qt::Unchecked);
      QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("apply-store")), Qt::LeftButton);
    });
    opened->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(*content_of(kFile), std::string(kByHand));
    QVERIFY(content_of(QStringLiteral("etc/qvt_ovrin_1.opt"))->find("deviceNr 6") != std::string::npos);
    QVERIFY(opened->session.document("ovrin_0")->has_changes());
  }

  void cancel_without_changes_closes() {
    Opened opened;
    opened->click(QStringLiteral("cancel"));
    QVERIFY(!opened->window.isVisible());
  }

  void cancel_with_changes_asks_first_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<bool>("stores");
    QTest::newRow("go on") << QStringLiteral("cancel-back") << false << false;
    QTest::newRow("discard") << QStringLiteral("cancel-discard") << true << false;
    QTest::newRow("apply") << QStringLiteral("cancel-apply") << true << true;
  }

  void cancel_with_changes_asks_first() {
    QFETCH(QString, button);
    QFETCH(bool, closes);
    QFETCH(bool, stores);
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    in_next_dialog([&](QWidget& question) {
      // The second dialog is that of Apply.
      if (stores) {
        in_next_dialog([](QWidget& dialog) {
          auto* const store = dialog.findChild<QAbstractButton*>(QStringLiteral("apply-store"));
          if (store != nullptr) QTest::mouseClick(store, Qt::LeftButton);
        });
      }
      QTest::mouseClick(question.findChild<QAbstractButton*>(button), Qt::LeftButton);
    });
    opened->press(Qt::Key_Escape);
    QCOMPARE(!opened->window.isVisible(), closes);
    QCOMPARE(content_of(kFile)->find("USER4") != std::string::npos, stores);
  }

  void copy_to_others_tells_what_is_not_taken() {
    Opened opened("connect ov stub -cable type zarvek_platformusb frequency 12000000 -debugdevice deviceNr 2");
    QString told;
    in_next_dialog([&](QWidget& dialog) {
      auto& list = *dialog.findChild<QListView*>(QStringLiteral("copy-targets"));
      auto& copy = *dialog.findChild<QAbstractButton*>(QStringLiteral("copy-copy"));
      QVERIFY(!copy.isEnabled());
      list.setFocus();
      list.setCurrentIndex(list.model()->index(0, 0));
      QCOMPARE(list.currentIndex().data().toString(), QStringLiteral("ppc405_0"));
      QTest::keyClick(&list, Qt::Key_Space);
      told = dialog.findChild<QPlainTextEdit*>(QStringLiteral("copy-preview"))->toPlainText();
      QTest::mouseClick(&copy, Qt::LeftButton);
    });
    opened->click(QStringLiteral("copy-to"));
    QVERIFY2(told.contains(QStringLiteral("connection stub")), qPrintable(told));
    Document& other = *opened->session.document("ppc405_0");
    QCOMPARE(other.configuration().cable().frequency, 12000000U);
    QCOMPARE(other.history().count(), 1);
    QVERIFY(!QFile::exists(QStringLiteral("etc/qvt_ppc405_0.opt")));
  }

  // --- The list ---

  void the_filter_leaves_the_selected_processor_alone() {
    Opened opened;
    opened->press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ppc4"));
    auto& view = opened->find<QTreeView>(QStringLiteral("processors"));
    QCOMPARE(view.model()->rowCount(), 2);
    QCOMPARE(opened->document().processor().name(), std::string("ovrin_0"));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(1, 0)).center());
    QCOMPARE(opened->document().processor().name(), std::string("ppc440_0"));
  }

  void the_list_tells_files_findings_and_changes() {
    Opened opened;
    write_file(QStringLiteral("etc/qvt_ovrin_1.opt"), "connect ov odm -cabel");
    opened->session.look_at_files();
    auto& view = opened->find<QTreeView>(QStringLiteral("processors"));
    const auto told = [&](int row) { return view.model()->index(row, 2).data().toString(); };
    QCOMPARE(told(0), QStringLiteral("no file"));
    QVERIFY(told(4) == QStringLiteral("stored") || told(4).contains(QStringLiteral("warning")));
    QVERIFY(told(5).contains(QStringLiteral("error")));
    QCOMPARE(told(8), QString());
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("5"));
    QVERIFY(told(4).contains(QStringLiteral("not stored")));
  }

  // --- The command ---

  void the_command_is_that_of_the_settings() {
    Opened opened;
    opened->enter(QStringLiteral("debug-device"), QStringLiteral("7"));
    QCOMPARE(opened.command().toPlainText(), shown("Connect OV odm -quiet  -BSCAN user3 -debugdevice deviceNr 7"));
  }

  void a_click_on_a_word_goes_to_its_field() {
    Opened opened;
    auto& command = opened.command();
    QTextCursor cursor(command.document());
    cursor.setPosition(static_cast<int>(std::string(kByHand).find("user3")) + 2);
    QTest::mouseClick(command.viewport(), Qt::LeftButton, {}, command.cursorRect(cursor).center());
    QVERIFY(opened->field(QStringLiteral("bscan")).hasFocus());
  }

  void a_file_that_is_not_understood_has_no_form_until_it_is() {
    Opened opened("connect ov odm -cabel type zarvek_platformusb\n");
    auto& form = opened->find<SettingsForm>(QStringLiteral("settings"));
    QVERIFY(!form.isVisible());
    opened->click(QStringLiteral("fix-all"));
    QVERIFY(form.isVisible());
    // The tabs are those of this processor, side by side.
    const QTabBar& tabs = *form.tabBar();
    int right = tabs.tabRect(0).right();
    for (int tab = 1; tab < tabs.count(); ++tab) {
      if (!tabs.isTabVisible(tab)) continue;
      QVERIFY2(tabs.tabRect(tab).left() <= right + 1, qPrintable(tabs.tabText(tab)));
      right = tabs.tabRect(tab).right();
    }
    // It does not come and go while somebody types.
    opened->document().type_content("connect ov odm -cabel");
    QVERIFY(form.isVisible());
    opened->select("ovrin_1");
    QVERIFY(form.isVisible());
    opened->select("ovrin_0");
    QVERIFY(!form.isVisible());
  }

  void the_form_follows_a_typed_command_when_it_is_understood() {
    Opened opened;
    opened->press(Qt::Key_E, Qt::ControlModifier);
    auto& command = opened.command();
    QVERIFY(command.hasFocus());
    command.selectAll();
    QTest::keyClicks(&command, QStringLiteral("connect ov odm -debugdevice deviceN"));
    QVERIFY(!opened->document().is_understood());
    QVERIFY(!opened->find(QStringLiteral("settings")).isEnabled());
    QVERIFY(opened.has_banner());
    QVERIFY(opened->find(QStringLiteral("findings")).isVisible());
    QTest::keyClicks(&command, QStringLiteral("r 9"));
    QVERIFY(opened->document().is_understood());
    QVERIFY(opened->find(QStringLiteral("settings")).isEnabled());
    QCOMPARE(opened->find<QLineEdit>(QStringLiteral("field:debug-device")).text(), QStringLiteral("9"));
    QCOMPARE(command.toPlainText(), QStringLiteral("connect ov odm -debugdevice deviceNr 9"));
    // What was typed in one go is one step.
    opened->press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!opened->document().has_changes());
    QCOMPARE(*opened->document().content(), std::string(kByHand));
  }

  void a_fix_is_taken_from_the_list() {
    Opened opened("connect ov odm -cabel type zarvek_platformusb frequency 12000000");
    auto& findings = opened->find<QListView>(QStringLiteral("findings"));
    findings.setFocus();
    while (!findings.currentIndex().data().toString().contains(QStringLiteral("Fix"))) {
      const int before = findings.currentIndex().row();
      QTest::keyClick(&findings, Qt::Key_Down);
      QVERIFY(findings.currentIndex().row() != before);
    }
    QTest::keyClick(&findings, Qt::Key_Return);
    QVERIFY(opened->document().is_understood());
    QCOMPARE(*opened->document().content(),
             std::string("connect ov odm -cable type zarvek_platformusb frequency 12000000"));
    opened->click(QStringLiteral("undo"));
    QVERIFY(!opened->document().is_understood());
  }

  void all_that_is_safe_is_fixed_at_once() {
    Opened opened("connect ov odm –cable type zarvek_platformusb frequency 12000000 —debugdevice deviceNr 2");
    opened->click(QStringLiteral("fix-all"));
    QVERIFY(opened->document().is_understood());
    QCOMPARE(opened->document().history().count(), 1);
  }

  // --- The chain ---

  void devices_are_added_moved_changed_and_removed() {
    Opened opened;
    opened->open_tab_of(QStringLiteral("cpu-jtag"));
    const auto chain = [&] { return opened->document().configuration().chain(); };
    for (int i = 0; i < 3; ++i) opened->click(QStringLiteral("device-add"));
    QCOMPARE(chain().size(), std::size_t{3});
    auto& table = opened->find<QTableView>(QStringLiteral("chain-table"));
    const auto type = [&](int row, int column, const char* text) {
      auto* const cell = opened.open_cell(row, column);
      QTest::keyClicks(cell, QString::fromLatin1(text));
      QTest::keyClick(cell, Qt::Key_Return);
      QTest::qWait(0);  // the cell is closed behind the key
    };
    type(0, 1, "prom32");
    type(0, 2, "0xa5059093");
    type(0, 3, "16");
    type(1, 1, "fpga");
    QCOMPARE(chain()[0].partname, std::string("prom32"));
    QCOMPARE(chain()[0].idcode, 0xa5059093U);
    QCOMPARE(int{chain()[0].irlength}, 16);
    // The debug device is 2, the fpga. It goes with its device.
    table.setCurrentIndex(table.model()->index(1, 0));
    opened->click(QStringLiteral("device-up"));
    QCOMPARE(chain()[0].partname, std::string("fpga"));
    QCOMPARE(int{chain()[0].devicenr}, 1);
    QCOMPARE(int{opened->document().configuration().record().debugDevice}, 1);
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(chain()[1].partname, std::string("fpga"));
    table.setCurrentIndex(table.model()->index(0, 0));
    QTest::keyClick(&table, Qt::Key_Delete);
    QCOMPARE(chain().size(), std::size_t{2});
    QCOMPARE(chain()[0].partname, std::string("fpga"));
    QCOMPARE(int{opened->document().configuration().record().debugDevice}, 1);
    while (opened->document().history().canUndo()) opened->press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!opened->document().has_changes());
  }

  void a_wrong_cell_is_marked_and_not_left_with_enter() {
    Opened opened;
    opened->open_tab_of(QStringLiteral("cpu-jtag"));
    opened->click(QStringLiteral("device-add"));
    auto* const cell = opened.open_cell(0, 3);
    QTest::keyClicks(cell, QStringLiteral("x"));
    QVERIFY(!opened->note(QStringLiteral("devices")).isEmpty());
    QTest::keyClick(cell, Qt::Key_Return);
    QTest::qWait(0);
    QVERIFY(cell->isVisible());
    // Nor is anything applied meanwhile.
    QVERIFY(!opened->apply());
    QVERIFY(cell->isVisible());
    QTest::keyClick(cell, Qt::Key_Backspace);
    QTest::keyClicks(cell, QStringLiteral("8"));
    QTest::keyClick(cell, Qt::Key_Return);
    QTest::qWait(0);
    QCOMPARE(int{opened->document().configuration().chain()[0].irlength}, 8);
  }

  void a_wrong_cell_stays_when_it_is_left_with_a_click() {
    Opened opened;
    opened->open_tab_of(QStringLiteral("cpu-jtag"));
    opened->click(QStringLiteral("device-add"));
    auto* const cell = opened.open_cell(0, 1);
    QTest::keyClicks(cell, QStringLiteral("two words"));
    QVERIFY(!opened->note(QStringLiteral("devices")).isEmpty());
    opened->find(QStringLiteral("filter")).setFocus();
    QTest::qWait(0);
    QVERIFY(cell->isVisible());
    QCOMPARE(cell->text(), QStringLiteral("two words"));
    opened->click(QStringLiteral("apply-changes"));
    QCOMPARE(*content_of(kFile), std::string(kByHand));
    opened->select("ovrin_1");
    QCOMPARE(opened->document().processor().name(), std::string("ovrin_0"));
    opened->click(QStringLiteral("cancel"));
    QVERIFY(opened->window.isVisible());
    QTest::keyClick(cell, Qt::Key_Escape);
  }

  void apply_takes_the_cell_that_is_open() {
    Opened opened;
    opened->open_tab_of(QStringLiteral("cpu-jtag"));
    opened->click(QStringLiteral("device-add"));
    auto* const cell = opened.open_cell(0, 1);
    QTest::keyClicks(cell, QStringLiteral("prom32"));
    QVERIFY(opened->apply());
    QVERIFY(content_of(kFile)->find("prom32") != std::string::npos);
  }

  void a_click_in_the_picture_selects_the_row() {
    Opened opened;
    opened->open_tab_of(QStringLiteral("cpu-jtag"));
    opened->click(QStringLiteral("device-add"));
    opened->click(QStringLiteral("device-add"));
    auto& picture = *opened->window.findChild<ChainPicture*>();
    QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, picture.device_rect(0).center());
    QCOMPARE(opened->find<QTableView>(QStringLiteral("chain-table")).currentIndex().row(), 0);
  }

  // --- Help ---

  void f1_opens_the_documentation_of_the_field() {
    Opened opened;
    opened->open_tab_of(QStringLiteral("bscan"));
    opened->field(QStringLiteral("bscan")).setFocus();
    opened->press(Qt::Key_F1);
    auto& help = opened->find<QTextBrowser>(QStringLiteral("help-text"));
    QVERIFY(help.isVisible());
    QVERIFY(help.toPlainText().contains(QStringLiteral("JTAG user register")));
    QVERIFY(help.toPlainText().contains(QStringLiteral("USER4")));
  }

  // --- Files ---

  void a_file_that_is_not_understood_opens_as_text_with_its_findings() {
    Opened opened("connect ov odm -cabel type zarvek_platformusb\n");
    QVERIFY(opened.command().is_editing());
    QCOMPARE(opened.command().toPlainText(), QStringLiteral("connect ov odm -cabel type zarvek_platformusb"));
    QVERIFY(opened->find(QStringLiteral("findings")).isVisible());
    QVERIFY(!opened->find(QStringLiteral("settings")).isEnabled());
    QVERIFY(opened.message().contains(QStringLiteral("not understood")));
    QVERIFY(!opened->find<QAbstractButton>(QStringLiteral("apply-changes")).isEnabled());
    QVERIFY(!opened->find<QAbstractButton>(QStringLiteral("copy-to")).isEnabled());
  }

  void a_file_that_another_program_changed_is_shown_and_never_overwritten_unseen() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    write_file(kFile, "connect ov odm -debugdevice deviceNr 9");
    QTRY_VERIFY(opened.has_banner());
    QVERIFY(opened.message().contains(QStringLiteral("deviceNr 9")));
    QVERIFY(!opened->apply());
    QCOMPARE(*content_of(kFile), std::string("connect ov odm -debugdevice deviceNr 9"));
    opened->click(QStringLiteral("keep-mine"));
    QVERIFY(opened->apply());
    QCOMPARE(*content_of(kFile), std::string("Connect OV odm -quiet  -BSCAN USER4 -debugdevice deviceNr 2\n"));
  }

  void a_file_that_changes_while_apply_is_open_is_not_overwritten() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    QString failure;
    in_next_dialog([&](QWidget& dialog) {
      write_file(kFile, "connect ov sim");
      QTest::mouseClick(dialog.findChild<QAbstractButton*>(QStringLiteral("apply-store")), Qt::LeftButton);
      failure = dialog.findChild<QLabel*>(QStringLiteral("apply-failure"))->text();
      static_cast<QDialog&>(dialog).reject();
    });
    opened->press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(*content_of(kFile), std::string("connect ov sim"));
    QVERIFY2(failure.contains(QStringLiteral("changed by another program")), qPrintable(failure));
    QVERIFY(opened.has_banner());
  }

  void the_file_of_the_other_program_can_be_loaded() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    write_file(kFile, "connect ov odm -debugdevice deviceNr 9");
    QTRY_VERIFY(opened.has_banner());
    opened->click(QStringLiteral("take-theirs"));
    QCOMPARE(opened->find<QLineEdit>(QStringLiteral("field:debug-device")).text(), QStringLiteral("9"));
    QVERIFY(!opened.has_banner());
    opened->click(QStringLiteral("undo"));
    QVERIFY(opened->document().content()->find("USER4") != std::string::npos);
  }

  void a_file_that_vanishes_is_told() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    QFile::remove(kFile);
    QTRY_VERIFY(opened.has_banner());
    QVERIFY(opened.message().contains(QStringLiteral("removed")));
    opened->click(QStringLiteral("keep-mine"));
    QVERIFY(opened->apply());
    QVERIFY(QFile::exists(kFile));
  }

  void without_changes_here_the_file_is_read_again() {
    Opened opened;
    write_file(kFile, "connect ov odm -debugdevice deviceNr 9");
    QTRY_COMPARE(opened->find<QLineEdit>(QStringLiteral("field:debug-device")).text(), QStringLiteral("9"));
    QVERIFY(opened.message().contains(QStringLiteral("read again")));
  }

  void a_file_that_is_read_again_and_not_understood_is_text() {
    Opened opened;
    write_file(kFile, "connect ov odm -cabel");
    QTRY_VERIFY(!opened->document().is_understood());
    QVERIFY(opened.command().is_editing());
    QVERIFY(!opened->find(QStringLiteral("settings")).isVisible());
    opened->click(QStringLiteral("undo"));
    QVERIFY(opened->find(QStringLiteral("settings")).isVisible());
  }

  void changes_are_asked_about_when_the_file_cannot_be_read_any_more() {
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    QFile::remove(kFile);
    QDir().mkdir(kFile);
    opened->session.look_at_files();
    QCOMPARE(opened.command().toPlainText(), QString());
    bool asked = false;
    in_next_dialog([&](QWidget& question) {
      asked = true;
      QTest::mouseClick(question.findChild<QAbstractButton*>(QStringLiteral("cancel-back")), Qt::LeftButton);
    });
    opened->click(QStringLiteral("cancel"));
    QVERIFY(asked);
    QVERIFY(opened->window.isVisible());
  }

  void there_is_nothing_to_undo_at_first() {
    Opened opened;
    for (const char* const button : {"undo", "redo", "apply-changes"}) {
      QVERIFY2(!opened->find<QAbstractButton>(QString::fromLatin1(button)).isEnabled(), button);
    }
  }

  void a_file_that_cannot_be_read_shows_no_settings() {
    Folder folder(QStringLiteral("large"));
    QDir().mkdir(kFile);
    Person person;
    person.select("ovrin_0");
    QVERIFY(!person.find(QStringLiteral("settings")).isEnabled());
    QVERIFY(person.find<QLabel>(QStringLiteral("message")).text().contains(QStringLiteral("directory")));
    QVERIFY(!person.find<QAbstractButton>(QStringLiteral("reset")).isEnabled());
  }

  void a_folder_that_may_not_be_written_is_told_and_nothing_is_lost() {
    if (::geteuid() == 0) QSKIP("root may write everything");
    Opened opened;
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    QFile::setPermissions(QStringLiteral("etc"), QFile::ReadOwner | QFile::ExeOwner);
    QVERIFY(!opened->apply());
    QFile::setPermissions(QStringLiteral("etc"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(*content_of(kFile), std::string(kByHand));
    QVERIFY(opened->apply());
  }

  // As root too: a file system that is mounted for reading.
  void a_read_only_file_system_is_told_and_nothing_is_lost() {
    Opened opened;
    const QByteArray etc = QDir(QStringLiteral("etc")).absolutePath().toLocal8Bit();
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    bool stored = true;
    {
      const Mount mount(etc.constData(), etc, nullptr, MS_BIND, nullptr);
      if (!mount) QSKIP("only root can mount");
      QVERIFY(::mount(nullptr, etc.constData(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0);
      stored = opened->apply();
    }
    QVERIFY(!stored);
    QCOMPARE(*content_of(kFile), std::string(kByHand));
    QVERIFY(opened->document().has_changes());
    QVERIFY(opened->apply());
  }

  void a_full_disk_is_told_and_nothing_is_lost() {
    Opened opened(std::nullopt);
    const QByteArray etc = QDir(QStringLiteral("etc")).absolutePath().toLocal8Bit();
    const Mount mount("tmpfs", etc, "tmpfs", 0, "size=4k");
    if (!mount) QSKIP("only root can mount");
    write_file(kFile, kByHand);
    opened->session.look_at_files();
    opened->enter(QStringLiteral("bscan"), QStringLiteral("USER4"));
    const bool stored = opened->apply();
    const auto content = content_of(kFile);
    QVERIFY(!stored);
    QCOMPARE(*content, std::string(kByHand));
    QVERIFY(opened->document().has_changes());
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QApplication application(argc, argv);
  qvtdialog::WindowTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "window_test.moc"
