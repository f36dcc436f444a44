// SPDX-License-Identifier: MIT
// Every field of the catalogue, for every processor of the three designs and each of its connections.

#include <SdkDebugDialog/Configuration.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <algorithm>

#include "model/Bytes.h"
#include "support.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;

namespace {

QString name_of(const Setting& setting) { return shown(setting.name); }

// Texts to enter into a field, one of which is not its value and is accepted; none if there is no other value.
std::string another_value(const Configuration& configuration, const Setting& setting) {
  const SettingState state = configuration.state(setting);
  std::vector<std::string> texts = state.choices;
  for (const char* const text : {"7", "0x70000000", "64K", "word", "unset"}) texts.emplace_back(text);
  const bool chosenOnly = setting.kind == SettingKind::word || setting.kind == SettingKind::flag;
  for (const std::string& text : texts) {
    if (chosenOnly && std::find(state.choices.begin(), state.choices.end(), text) == state.choices.end()) continue;
    Configuration tried = configuration;
    if (tried.set(setting.name, text) && tried.value(setting) != state.value) return text;
  }
  return {};
}

bool is_shown(Person& person, const Setting& setting) {
  const bool isChain = setting.kind == SettingKind::devices;
  const QWidget& editor = isChain ? person.find(QStringLiteral("chain")) : person.field(name_of(setting));
  return editor.isVisibleTo(editor.parentWidget());
}

void check_field(Person& person, const Setting& setting, int& entered) {
  const QString name = name_of(setting);
  const Configuration before = person.document().configuration();
  const SettingState state = before.state(setting);
  QVERIFY2(is_shown(person, setting) == state.applies, qPrintable(name));
  if (!state.applies || setting.kind == SettingKind::devices) return;
  QWidget& editor = person.field(name);
  QVERIFY2(!editor.accessibleName().isEmpty(), qPrintable(name));
  QCOMPARE(person.find<QLabel>(QStringLiteral("unit:") + name).text(), shown(setting.unit));
  if (!state.changeable) {
    person.open_tab_of(name);
    QVERIFY2(!person.note(name).isEmpty(), qPrintable(name));
    QVERIFY2(qobject_cast<QLineEdit*>(&editor)->isReadOnly(), qPrintable(name));
    return;
  }
  if (auto* const box = qobject_cast<QComboBox*>(&editor)) {
    QStringList choices;
    for (int i = 0; i < box->count(); ++i) choices += box->itemText(i);
    QStringList wanted;
    for (const std::string& choice : state.choices) wanted += shown(choice);
    QCOMPARE(choices, wanted);
  }
  const std::string text = another_value(before, setting);
  if (text.empty()) return;
  Configuration wanted = before;
  wanted.set(setting.name, text).value();
  person.enter(name, shown(text));
  ++entered;
  QVERIFY2(person.document().configuration() == wanted, qPrintable(name + QStringLiteral(" = ") + shown(text)));
  QCOMPARE(person.document().history().count(), person.document().history().index());
  person.press(Qt::Key_Z, Qt::ControlModifier);
  QVERIFY2(person.document().configuration() == before, qPrintable(name));
}

}  // namespace

class FormTest : public QObject {
  Q_OBJECT

 private slots:
  void every_field_takes_a_value_and_undo_takes_it_back_data() {
    QTest::addColumn<QString>("design");
    for (const char* const design : {"small", "old-bus", "large"}) QTest::newRow(design) << QString::fromLatin1(design);
  }

  void every_field_takes_a_value_and_undo_takes_it_back() {
    QFETCH(QString, design);
    Folder folder(design);
    Person person;
    int entered = 0;
    for (const std::string& processor : person.session.names()) {
      if (person.session.document(processor) == nullptr) continue;
      person.select(processor.c_str());
      const Setting& connection = *find_setting("connection");
      for (const std::string& choice : person.document().configuration().state(connection).choices) {
        // What it is by default can be one that is not offered.
        const auto offered = person.document().configuration().state(connection).choices;
        if (std::find(offered.begin(), offered.end(), choice) == offered.end()) continue;
        person.enter(QStringLiteral("connection"), shown(choice));
        // With a cable that has everything, and with what else makes fields appear.
        for (const char* const cable : {"none", "zarvek_platformusb", "zarvek_plugin"}) {
          if (person.document().configuration().state(*find_setting("cable")).applies) {
            person.enter(QStringLiteral("cable"), QString::fromLatin1(cable));
          }
          for (const Setting& setting : settings()) {
            check_field(person, setting, entered);
            if (QTest::currentTestFailed()) return;
          }
          if (!person.document().configuration().state(*find_setting("cable")).applies) break;
        }
      }
    }
    QVERIFY(entered > 50);
    qInfo("%d values entered", entered);
  }

  void fields_that_others_bring_appear_and_go() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ovrin_0");
    const auto appears = [&](const char* setting) { return is_shown(person, *find_setting(setting)); };
    QVERIFY(!appears("hardware-simulator-host"));
    person.enter(QStringLiteral("enabled"), QStringLiteral("on"));
    QVERIFY(appears("hardware-simulator-host"));
    person.enter(QStringLiteral("hardware-simulator-host"), QStringLiteral("there"));
    person.enter(QStringLiteral("connection"), QStringLiteral("stub"));
    QVERIFY(!appears("stub-port"));
    person.enter(QStringLiteral("stub"), QStringLiteral("serial"));
    QVERIFY(appears("stub-port"));
    person.enter(QStringLiteral("stub-baud"), QStringLiteral("115200"));
    QVERIFY(person.document().configuration().record().stubBaudRate == 115200);
  }

  void numbers_take_units_and_hexadecimal_and_are_shown_as_the_library_writes_them() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ovrin_0");
    person.enter(QStringLiteral("cable"), QStringLiteral("zarvek_platformusb"));
    person.type(QStringLiteral("frequency"), QStringLiteral("12M"));
    auto& box = person.find<QComboBox>(QStringLiteral("field:frequency"));
    QCOMPARE(box.currentText(), QStringLiteral("12M"));
    QCOMPARE(person.document().configuration().cable().frequency, 12000000U);
    person.press(Qt::Key_Tab);
    QCOMPARE(box.currentText(), QStringLiteral("12 MHz"));
    person.enter(QStringLiteral("rom"), QStringLiteral("0x1000"));
    person.enter(QStringLiteral("rom-size"), QStringLiteral("64K"));
    QCOMPARE(person.document().configuration().record().romemStartAddr, 0x1000U);
    QCOMPARE(person.document().configuration().record().romemSize, 0x10000U);
  }

  void a_wrong_value_is_marked_while_it_is_typed_with_what_is_accepted() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ppc405_0");
    person.type(QStringLiteral("icache"), QStringLiteral("0x7000800"));
    QVERIFY(person.note(QStringLiteral("icache")).contains(QStringLiteral("64 KB")));
    QVERIFY(!person.document().why_not_stored().isEmpty());
    QVERIFY(person.window.isWindowModified());
    // It stays, also while another processor is looked at.
    person.select("ovrin_0");
    person.select("ppc405_0");
    QCOMPARE(person.find<QLineEdit>(QStringLiteral("field:icache")).text(), QStringLiteral("0x7000800"));
    QVERIFY(!person.apply());
    person.enter(QStringLiteral("icache"), QStringLiteral("0x70010000"));
    QVERIFY(person.note(QStringLiteral("icache")).isEmpty());
    QCOMPARE(person.document().why_not_stored(), QString());
    QVERIFY(person.apply());
  }

  void a_value_back_to_its_default() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ovrin_0");
    person.enter(QStringLiteral("debug-device"), QStringLiteral("3"));
    person.click(QStringLiteral("default:debug-device"));
    QVERIFY(!person.session.document("ovrin_0")->has_changes());
    QCOMPARE(person.document().history().count(), 2);
  }

  void the_wheel_changes_nothing() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ovrin_0");
    person.open_tab_of(QStringLiteral("bscan"));
    QWidget& box = person.field(QStringLiteral("bscan"));
    box.setFocus();
    const QPointF place = box.rect().center();
    QWheelEvent wheel(place, box.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    QVERIFY(!person.document().has_changes());
  }

  void keys_alone_reach_every_field() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ppc405_0");
    for (const Setting& setting : settings()) {
      if (setting.kind == SettingKind::devices || !is_shown(person, setting)) continue;
      person.open_tab_of(name_of(setting));
      QWidget& editor = person.field(name_of(setting));
      person.find(QStringLiteral("settings")).setFocus();
      bool reached = false;
      for (int i = 0; i < 80 && !reached; ++i) {
        person.press(Qt::Key_Tab);
        reached = editor.hasFocus() || (editor.focusProxy() != nullptr && editor.focusProxy()->hasFocus());
      }
      QVERIFY2(reached, qPrintable(name_of(setting)));
    }
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QApplication application(argc, argv);
  qvtdialog::FormTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "form_test.moc"
