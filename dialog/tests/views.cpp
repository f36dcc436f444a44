// SPDX-License-Identifier: MIT
#include "views.h"

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLibraryInfo>
#include <QTest>
#include <set>

#include "model/Bytes.h"
#include "support.h"
#include "widgets/ApplyDialog.h"
#include "widgets/CopyDialog.h"
#include "widgets/HelpDialog.h"
#include "widgets/SettingsForm.h"

namespace qvtdialog {

using SdkDebugDialog::find_finding_kind;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::SettingState;

Language::Language(const QString& name) {
  for (const QString& file : {QStringLiteral(":/i18n/qvtdialog_") + name,
                              QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") + name}) {
    m_translators.push_back(std::make_unique<QTranslator>());
    if (m_translators.back()->load(file)) QCoreApplication::installTranslator(m_translators.back().get());
  }
  if (m_translators.front()->isEmpty()) qFatal("there are no texts in %s", qPrintable(name));
}

Language::~Language() {
  for (const auto& translator : m_translators) QCoreApplication::removeTranslator(translator.get());
}

namespace {

void look_at(QWidget& window, const QString& view, const Look& look) {
  QCoreApplication::processEvents();  // the layout
  look(window, view);
}

void set(Person& person, const char* setting, const std::string& text) {
  person.document().type(*find_setting(setting), text);
  person.document().end_typing();
}

void look_at_tabs(Person& person, const QString& view, const Look& look) {
  auto& form = person.find<SettingsForm>(QStringLiteral("settings"));
  for (int tab = 0; tab < form.count(); ++tab) {
    if (!form.isTabVisible(tab)) continue;
    form.setCurrentIndex(tab);
    look_at(person.window, view + QStringLiteral(", ") + form.tabText(tab), look);
  }
}

void look_at_processors(const QString& design, std::set<QString>& kinds, const Look& look) {
  Folder folder(design);
  Person person;
  for (std::size_t place = 0; place < person.session.names().size(); ++place) {
    const Overview& overview = person.session.overview(place);
    if (!overview.debuggable || !kinds.insert(overview.kind + overview.connections).second) continue;
    const std::string& name = person.session.names()[place];
    person.select(name.c_str());
    for (const std::string& connection : person.document().configuration().state(*find_setting("connection")).choices) {
      set(person, "connection", connection);
      // With what makes fields appear.
      set(person, "enabled", "on");
      if (connection == "stub") set(person, "stub", "serial");
      set(person, "cable", "zarvek_plugin");
      set(person, "icache", "0x70000000");
      set(person, "devices", "1,prom32,16,0x05059093:2,fpga,10,0x0a001093");
      look_at_tabs(person, design + QLatin1Char('/') + shown(name) + QLatin1Char('/') + shown(connection), look);
    }
  }
}

void show(QWidget& dialog, const QString& view, const Look& look) {
  dialog.show();
  if (!QTest::qWaitForWindowExposed(&dialog)) qFatal("a dialog does not appear");
  look_at(dialog, view, look);
  dialog.hide();
}

void look_at_dialogs(Person& person, const Look& look) {
  ApplyDialog apply(person.session.with_changes(), &person.window);
  show(apply, QStringLiteral("apply"), look);
  CopyDialog copy(person.session, person.document(), &person.window);
  show(copy, QStringLiteral("copy"), look);
  HelpDialog help(&person.window);
  const SettingState state = person.document().configuration().state(*find_setting("frequency"));
  help.show_setting(*find_setting("frequency"), &state);
  show(help, QStringLiteral("help on a setting"), look);
  help.show_kind(*find_finding_kind("unknown-option"));
  show(help, QStringLiteral("help on a finding"), look);
  help.show_keys();
  show(help, QStringLiteral("help on keys"), look);
  bool asked = false;
  const QPointer<QTimer> waiting = in_next_dialog([&](QWidget& question) {
    asked = true;
    look_at(question, QStringLiteral("question"), look);
    static_cast<QDialog&>(question).reject();
  });
  person.window.close();
  delete waiting.data();
  if (!asked) qFatal("changes are lost without a question");
}

}  // namespace

void look_at_all_views(const Look& look) {
  std::set<QString> kinds;
  for (const char* const design : {"small", "old-bus", "large"}) {
    look_at_processors(QString::fromLatin1(design), kinds, look);
  }
  Folder folder(QStringLiteral("large"));
  const QString file = folder.path(QStringLiteral("etc/qvt_ovrin_0.opt"));
  write_file(file,
             "connect ov odm -cable type zarvek_platformusb frequency 6000000 -quiet -bscan USER3 -debugdevice "
             "deviceNr 2\n");
  Person person;
  person.select("ovrin_0");
  look_at_tabs(person, QStringLiteral("warnings"), look);
  set(person, "frequency", "5M");  // refused
  set(person, "connection", "simulator");
  look_at_dialogs(person, look);
  write_file(file, "connect ov odm -debugdevice deviceNr 3\n");
  person.document().look_at_file();
  look_at(person.window, QStringLiteral("conflict"), look);
  person.document().keep_mine();
  person.find<QCheckBox>(QStringLiteral("edit-command")).click();
  person.document().type_content("conect ov odm -cabel type zarvek_platformusb 2");
  look_at(person.window, QStringLiteral("not understood"), look);
}

QList<QWidget*> visible_widgets(const QWidget& window) {
  QList<QWidget*> found;
  for (QWidget* const widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == &window) found += widget;
  }
  return found;
}

QString name_of(const QWidget& widget) {
  return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
}

}  // namespace qvtdialog
