// SPDX-License-Identifier: MIT
// The texts: all are known to the translators' tools, and translated; keys do not clash in any language.

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>
#include <SdkDebugDialog/Settings.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <QXmlStreamReader>
#include <set>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "support.h"
#include "views.h"
#include "widgets/Mnemonics.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::finding_kinds;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::Loss;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::setting_groups;
using SdkDebugDialog::SettingGroup;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;

namespace {

const QString kFolder = QStringLiteral(DIALOG_FOLDER "/translations/");

// --- The texts of the library ---

class Reasons {
 public:
  std::set<std::string> texts;

  // For every connection and cable of a processor, with settings as they are, with each of them changed alone, and with
  // all of them changed.
  void walk(const Processor& processor) {
    const Configuration initial(processor);
    add(initial);
    for (const std::string& connection : choices(initial, "connection")) {
      for (const char* const stub : {"jtag", "serial"}) {
        Configuration connected = initial;
        if (!connected.set("connection", connection)) continue;
        if (connection == "stub") connected.set("stub", stub);
        for (const std::string& cable : choices(connected, "cable")) {
          Configuration wired = connected;
          if (!wired.set("cable", cable)) continue;
          add(wired);
          change_each(wired);
          change_all(wired, {});
          // A serial number stands for port and frequency.
          change_all(wired, "esn");
        }
      }
    }
  }

  void add(const Configuration& configuration) {
    const auto command = configuration.command();
    if (const auto edit = configuration.written_anew()) {
      for (const Loss& loss : edit->losses) texts.insert(loss.why);
    }
    for (const SettingState& state : configuration.states()) {
      texts.insert(state.whyNot);
      // Why there is no command at all is an error, which is put together.
      if (command || state.whyNotWritten != command.error().message) texts.insert(state.whyNotWritten);
    }
  }

 private:
  static std::vector<std::string> choices(const Configuration& configuration, std::string_view setting) {
    return configuration.state(*find_setting(setting)).choices;
  }

  // Values to try, such as "on" before "off".
  static std::vector<std::string> values(const SettingState& state) {
    std::vector<std::string> texts(state.choices.rbegin(), state.choices.rend());
    for (const char* const text : {"17", "0x10000", "on", "1,p,4,0x1,1,ppc405,2", "x"}) texts.emplace_back(text);
    return texts;
  }

  void change_each(const Configuration& configuration) {
    for (const Setting& setting : settings()) {
      for (const std::string& value : values(configuration.state(setting))) {
        Configuration changed = configuration;
        if (changed.set(setting.name, value)) add(changed);
      }
    }
  }

  void change_all(Configuration configuration, std::string_view but) {
    for (const Setting& setting : settings()) {
      if (setting.name == "connection" || setting.name == "cable" || setting.name == but) continue;
      for (const std::string& value : values(configuration.state(setting))) {
        if (configuration.set(setting.name, value)) break;
      }
      add(configuration);
    }
  }
};

std::set<std::string> texts_of_library() {
  Reasons reasons;
  for (const char* const design : {"small", "old-bus", "large"}) {
    for (const Processor& processor : example(QString::fromLatin1(design)).processors()) reasons.walk(processor);
  }
  reasons.walk({});  // without a design, nothing is fixed
  for (const FindingKind& kind : finding_kinds()) {
    if (const auto read = Configuration::read({}, kind.example)) reasons.add(*read);
  }
  std::set<std::string> texts = std::move(reasons.texts);
  for (const SettingGroup& group : setting_groups()) texts.emplace(group.label);
  for (const Setting& setting : settings()) {
    for (const auto text : {setting.label, setting.meaning, setting.unit, setting.initial}) texts.emplace(text);
  }
  for (const FindingKind& kind : finding_kinds()) {
    for (const auto text : {kind.title, kind.meaning, kind.advice}) texts.emplace(text);
  }
  texts.erase("");
  return texts;
}

// --- Files of translations ---

struct Message {
  QString context;
  QString source;
  QStringList translations;  // several if there are plural forms
  bool hasForms = false;
  bool isFinished = false;
};

std::vector<Message> messages_of(const QString& path) {
  QXmlStreamReader reader(QByteArray::fromStdString(content_of(path).value_or("")));
  std::vector<Message> found;
  QString context;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const auto name = reader.name();
    if (name == QLatin1String("name")) context = reader.readElementText();
    if (name == QLatin1String("message")) {
      found.push_back({context, {}, {}, reader.attributes().hasAttribute(QLatin1String("numerus")), false});
    }
    if (name == QLatin1String("source")) found.back().source = reader.readElementText();
    if (name == QLatin1String("translation")) {
      found.back().isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
      if (!found.back().hasForms) found.back().translations += reader.readElementText();
    }
    if (name == QLatin1String("numerusform")) found.back().translations += reader.readElementText();
  }
  if (reader.hasError()) qFatal("%s: %s", qPrintable(path), qPrintable(reader.errorString()));
  return found;
}

QStringList placeholders_of(const QString& text) {
  static const QRegularExpression placeholder(QStringLiteral("%(n|\\d+)"));
  QStringList found;
  auto matches = placeholder.globalMatch(text);
  while (matches.hasNext()) found += matches.next().captured();
  found.sort();
  return found;
}

void check_message(const Message& message) {
  const QByteArray called = (message.context + QStringLiteral(": ") + message.source).toUtf8();
  const char* const name = called.constData();
  QVERIFY2(message.isFinished, name);
  QVERIFY2(message.translations.size() == (message.hasForms ? 2 : 1), name);
  for (const QString& text : message.translations) {
    QVERIFY2(!text.trimmed().isEmpty(), name);
    QVERIFY2(placeholders_of(text) == placeholders_of(message.source), name);
    QVERIFY2(text.count(QLatin1Char('&')) == message.source.count(QLatin1Char('&')), name);
    QVERIFY2(mnemonic_in(text).isEmpty() == mnemonic_in(message.source).isEmpty(), name);
    QVERIFY2(text.count(QLatin1Char('\n')) == message.source.count(QLatin1Char('\n')), name);
    for (const char* const end : {".", "…", ":"}) {
      const QString ending = QString::fromUtf8(end);
      QVERIFY2(text.endsWith(ending) == message.source.endsWith(ending), name);
    }
  }
}

// --- Keys ---

class Keys {
 public:
  explicit Keys(QString view) : m_view(std::move(view)) {}
  void add(const QString& text) {
    const QString key = mnemonic_in(text);
    if (key.isEmpty()) return;
    const auto [known, isNew] = m_texts.emplace(key, text);
    if (!isNew) {
      QFAIL(qPrintable(m_view + QStringLiteral(": ") + known->second + QStringLiteral(" and ") + text));
    }
  }

 private:
  QString m_view;
  std::map<QString, QString> m_texts;
};

void check_menu(const QMenu& menu, const QString& view) {
  Keys keys(view + QStringLiteral(", menu ") + menu.title());
  for (const QAction* const action : menu.actions()) keys.add(action->text());
}

void check_keys(QWidget& window, const QString& view) {
  Keys keys(view);
  for (QWidget* const widget : visible_widgets(window)) {
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) keys.add(button->text());
    if (auto* const label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr) {
      keys.add(label->text());
    }
    if (auto* const tabs = qobject_cast<QTabBar*>(widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->isTabVisible(i)) keys.add(tabs->tabText(i));
      }
    }
    auto* const bar = qobject_cast<QMenuBar*>(widget);
    if (bar == nullptr) continue;
    for (const QAction* const action : bar->actions()) {
      keys.add(action->text());
      check_menu(*action->menu(), view);
    }
  }
}

}  // namespace

class TranslationTest : public QObject {
  Q_OBJECT

 private slots:
  void knows_every_text_of_the_library() {
    const std::set<std::string> wanted = texts_of_library();
    std::set<std::string> known;
    for (const char* const text : library_strings()) QVERIFY2(known.insert(text).second, text);
    for (const std::string& text : wanted) QVERIFY2(known.count(text) == 1, text.c_str());
    for (const std::string& text : known) QVERIFY2(wanted.count(text) == 1, text.c_str());
  }

  void german_is_complete() {
    const auto messages = messages_of(kFolder + QStringLiteral("qvtdialog_de.ts"));
    std::size_t ofLibrary = 0;
    for (const Message& message : messages) {
      if (message.context == QLatin1String("library")) ++ofLibrary;
      check_message(message);
      if (QTest::currentTestFailed()) return;
    }
    QCOMPARE(ofLibrary, library_strings().size());
    qInfo("%zu texts, %zu of them of the library", messages.size(), ofLibrary);
  }

  void english_has_plural_forms() {
    const auto messages = messages_of(kFolder + QStringLiteral("qvtdialog_en.ts"));
    QVERIFY(!messages.empty());
    for (const Message& message : messages) {
      QVERIFY(message.hasForms);
      check_message(message);
      if (QTest::currentTestFailed()) return;
    }
  }

  void numbers_have_the_right_form() {
    const auto errors = [](int count) {
      return QCoreApplication::translate("qvtdialog::ProcessorModel", "%n error(s)", nullptr, count) +
             QStringLiteral(", ") +
             QCoreApplication::translate("qvtdialog::ProcessorModel", "%n warning(s)", nullptr, count);
    };
    {
      const Language english(QStringLiteral("en"));
      QCOMPARE(errors(1), QStringLiteral("1 error, 1 warning"));
      QCOMPARE(errors(2), QStringLiteral("2 errors, 2 warnings"));
    }
    const Language german(QStringLiteral("de"));
    QCOMPARE(errors(1), QStringLiteral("1 Fehler, 1 Warnung"));
    QCOMPARE(errors(2), QStringLiteral("2 Fehler, 2 Warnungen"));
  }

  // What the target update_translations would write is what is there.
  void files_are_renewed() {
    const QTemporaryDir folder;
    const std::pair<const char*, QStringList> files[] = {{"qvtdialog_de.ts", {}},
                                                         {"qvtdialog_en.ts", {QStringLiteral("-pluralonly")}}};
    for (const auto& [file, options] : files) {
      const QString name = QString::fromLatin1(file);
      const QString copy = folder.filePath(name);
      QVERIFY(QFile::copy(kFolder + name, copy));
      QProcess lupdate;
      lupdate.setWorkingDirectory(QStringLiteral(DIALOG_FOLDER));
      lupdate.start(QStringLiteral(LUPDATE), options +
                                                 QStringLiteral("-silent -no-obsolete -locations none -I . "
                                                                "main.cpp model widgets -ts")
                                                     .split(QLatin1Char(' ')) +
                                                 QStringList{copy});
      QVERIFY(lupdate.waitForFinished());
      QCOMPARE(lupdate.exitCode(), 0);
      QVERIFY2(content_of(copy) == content_of(kFolder + name), file);
    }
  }

  void the_program_speaks_the_language_of_the_locale_data() {
    QTest::addColumn<QString>("lang");
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isGerman");
    QTest::newRow("German") << "de_DE.UTF-8"
                            << "" << true;
    QTest::newRow("Austrian") << "de_AT.UTF-8"
                              << "" << true;
    QTest::newRow("German wanted") << "en_US.UTF-8"
                                   << "de:en" << true;
    QTest::newRow("English wanted") << "de_DE.UTF-8"
                                    << "en" << false;
    QTest::newRow("C") << "C"
                       << "" << false;
    QTest::newRow("no translation") << "fi_FI.UTF-8"
                                    << "" << false;
  }

  void the_program_speaks_the_language_of_the_locale() {
    QFETCH(QString, lang);
    QFETCH(QString, language);
    QFETCH(bool, isGerman);
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANGUAGE"}) environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("LANG"), lang);
    if (!language.isEmpty()) environment.insert(QStringLiteral("LANGUAGE"), language);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(QVTDIALOG), {QStringLiteral("--help")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString text = QString::fromUtf8(program.readAllStandardOutput());
    QCOMPARE(text.contains(QStringLiteral("die Design-Datei")), isGerman);
    QCOMPARE(text.contains(QStringLiteral("the design file")), !isGerman);
  }

  void keys_do_not_clash_data() {
    QTest::addColumn<QString>("language");
    for (const char* const name : {"en", "de"}) QTest::newRow(name) << QString::fromLatin1(name);
  }

  void keys_do_not_clash() {
    QFETCH(QString, language);
    const Language spoken(language);
    int views = 0;
    look_at_all_views([&](QWidget& shown, const QString& view) {
      ++views;
      if (!QTest::currentTestFailed()) check_keys(shown, view);
    });
    QVERIFY(views > 50);
    qInfo("%d views", views);
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QApplication application(argc, argv);
  qvtdialog::TranslationTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "translation_test.moc"
