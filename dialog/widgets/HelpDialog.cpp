// SPDX-License-Identifier: MIT
#include "widgets/HelpDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "model/Bytes.h"
#include "model/library_texts.h"

namespace qvtdialog {

using SdkDebugDialog::find_setting;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::SettingState;

namespace {

QString code(const QString& text) {
  return QStringLiteral("<code>") + text.toHtmlEscaped() + QStringLiteral("</code>");
}

QString paragraph(const QString& text) { return QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>"); }

QString row(const QString& name, const QString& html) {
  return QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>").arg(name.toHtmlEscaped(), html);
}

QString table(const QString& rows) {
  return QStringLiteral("<table cellpadding='3' cellspacing='0'>") + rows + QStringLiteral("</table>");
}

// What can be entered, by the kind of value.
QString typed_as(SettingKind kind) {
  switch (kind) {
    case SettingKind::flag:
      return HelpDialog::tr("on or off");
    case SettingKind::number:
      return HelpDialog::tr("a number: 16, 1_000, 0x10, 12e6");
    case SettingKind::address:
      return HelpDialog::tr("an address: 0x70000000, 64K, 1M; empty for \"not set\"");
    case SettingKind::frequency:
      return HelpDialog::tr("a frequency: 12000000, 12M, 12 MHz, 200k, 1.5 MHz");
    case SettingKind::size:
      return HelpDialog::tr("a size: 65536, 64K, 64 KB, 1M");
    case SettingKind::text:
      return HelpDialog::tr("a text");
    case SettingKind::word:
      return HelpDialog::tr("one of the words");
    case SettingKind::words:
      return HelpDialog::tr("several of the words");
    case SettingKind::devices:
      return HelpDialog::tr("devices, each with number, part name, register length and IDCODE");
  }
  return {};
}

QString listed(const std::vector<std::string>& texts) {
  QStringList parts;
  for (const std::string& text : texts) parts += code(shown(text));
  return parts.join(QStringLiteral(", "));
}

}  // namespace

HelpDialog::HelpDialog(QWidget* parent) : QDialog(parent), m_text(new QTextBrowser(this)) {
  setObjectName(QStringLiteral("help"));
  m_text->setObjectName(QStringLiteral("help-text"));
  m_text->setAccessibleName(tr("Documentation"));
  m_text->setOpenLinks(false);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_text, 1);
  layout->addWidget(buttons);
  const int em = fontMetrics().horizontalAdvance(QLatin1Char('m'));
  resize(40 * em, 28 * em);
}

void HelpDialog::show_page(const QString& title, const QString& html) {
  setWindowTitle(title);
  m_text->setHtml(QStringLiteral("<h3>%1</h3>%2").arg(title.toHtmlEscaped(), html));
  show();
  raise();
  activateWindow();
  m_text->setFocus();
}

void HelpDialog::show_setting(const Setting& setting, const SettingState* state) {
  QString rows = row(tr("Name in scripts"), code(shown(setting.name)));
  rows += row(tr("Accepted"), typed_as(setting.kind).toHtmlEscaped());
  if (!setting.unit.empty()) rows += row(tr("Unit"), unit_of(setting).toHtmlEscaped());
  if (!setting.initial.empty()) rows += row(tr("Default"), translated(setting.initial).toHtmlEscaped());
  if (state != nullptr) {
    if (!state->choices.empty()) rows += row(tr("Choices now"), listed(state->choices));
    if (setting.initial.empty()) rows += row(tr("Default"), value_of(setting, state->initial).toHtmlEscaped());
    rows += row(tr("Value now"), value_of(setting, state->value).toHtmlEscaped());
    if (!state->whyNot.empty()) {
      const QString name = state->applies ? tr("Cannot be changed") : tr("Does not apply");
      rows += row(name, translated(state->whyNot).toHtmlEscaped());
    }
    if (!state->written) rows += row(tr("Not in the command"), translated(state->whyNotWritten).toHtmlEscaped());
  }
  QStringList followers;
  for (const QString& name : shown(setting.follows).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    if (const Setting* const follower = find_setting(bytes_of(name))) followers += label_of(*follower);
  }
  if (!followers.isEmpty()) rows += row(tr("May change as well"), followers.join(QStringLiteral(", ")).toHtmlEscaped());
  show_page(label_of(setting), paragraph(meaning_of(setting)) + table(rows));
}

void HelpDialog::show_kind(const FindingKind& kind) {
  QString rows = row(tr("Name"), code(shown(kind.code)));
  rows += row(tr("Severity"), severity_of(kind.severity).toHtmlEscaped());
  rows += row(tr("Example"), code(shown(kind.example)));
  show_page(translated(kind.title),
            paragraph(translated(kind.meaning)) + paragraph(translated(kind.advice)) + table(rows));
}

void HelpDialog::show_keys() {
  const std::vector<std::pair<QString, QString>> keys = {
      {tr("Ctrl+F"), tr("filter the processors")},
      {tr("Alt and a number"), tr("the group of settings in this place")},
      {tr("Alt and a letter"), tr("the field or button with this letter underlined")},
      {tr("F1"), tr("what the field, the word or the finding means")},
      {tr("Ctrl+E"), tr("edit the command as text, and back")},
      {tr("Ctrl+Z, Ctrl+Shift+Z"), tr("undo, redo")},
      {tr("Ctrl+S"), tr("apply: see what is stored, and store it")},
      {tr("Insert, Delete, F2"), tr("in the JTAG chain: add or remove a device, change a cell")},
      {tr("Alt+Up, Alt+Down"), tr("in the JTAG chain: move the device")},
      {tr("Esc"), tr("cancel")},
  };
  QString rows;
  for (const auto& [key, what] : keys) rows += row(key, what.toHtmlEscaped());
  show_page(tr("Keys"), table(rows));
}

}  // namespace qvtdialog
