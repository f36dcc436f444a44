// SPDX-License-Identifier: MIT
#include "widgets/SettingsForm.h"

#include <SdkDebugDialog/Regions.h>

#include <QApplication>
#include <QGridLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QTabBar>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "widgets/AddressPicture.h"
#include "widgets/ChainEditor.h"
#include "widgets/Field.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::regions;
using SdkDebugDialog::Setting;
using SdkDebugDialog::setting_groups;
using SdkDebugDialog::SettingGroup;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;

namespace {

QString joined(const std::vector<std::string>& texts) {
  QStringList parts;
  for (const std::string& text : texts) parts += shown(text);
  return parts.join(QLatin1Char('\n'));
}

bool has_picture(const SettingGroup& group) { return group.name == "address-map" || group.name == "memories"; }

}  // namespace

SettingsForm::SettingsForm(const Mnemonics& taken, QWidget* parent) : QTabWidget(parent), m_taken(taken) {
  setObjectName(QStringLiteral("settings"));
  setAccessibleName(tr("Settings"));
  setAccessibleDescription(tr("A tab for each group of settings"));
  setUsesScrollButtons(true);
  for (const SettingGroup& group : setting_groups()) make_page(group);
  for (int number = 1; number <= 9; ++number) {
    auto* const shortcut = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + number)), this);
    connect(shortcut, &QShortcut::activated, this, [this, number] {
      const auto tabs = visible_tabs();
      if (number <= static_cast<int>(tabs.size())) setCurrentIndex(tabs[static_cast<std::size_t>(number - 1)]);
    });
  }
  setEnabled(false);
}

void SettingsForm::make_page(const SettingGroup& group) {
  auto* const page = new QWidget;
  auto* const layout = new QGridLayout(page);
  layout->setColumnStretch(1, 1);
  Page made;
  bool isFilled = has_picture(group);
  for (const Setting& setting : settings()) {
    if (setting.group != group.name) continue;
    if (setting.kind == SettingKind::devices) {
      add_chain(setting, *layout);
      isFilled = true;
    } else {
      add_field(made, setting, *layout);
    }
  }
  if (has_picture(group)) {
    auto* const picture = new AddressPicture(page);
    layout->addWidget(picture, layout->rowCount(), 0, 1, 4);
    connect(picture, &AddressPicture::setting_wanted, this, [this](const Setting* setting) { go_to(*setting); });
    m_pictures.push_back(picture);
  }
  // A chain or a picture takes the rest of the page; fields leave it empty.
  layout->setRowStretch(layout->rowCount() - (isFilled ? 1 : 0), 1);
  auto* const area = new QScrollArea(this);
  area->setObjectName(QStringLiteral("page:") + shown(group.name));
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(page);
  addTab(area, label_of(group).replace(QLatin1Char('&'), QStringLiteral("&&")));
  m_pages.push_back(std::move(made));
}

void SettingsForm::add_field(Page& made, const Setting& setting, QGridLayout& layout) {
  auto* const field = new Field(setting, layout, layout.rowCount());
  made.push_back(field);
  connect(field, &Field::typed, this, [this, &setting](const std::string& text) {
    if (m_document) m_document->type(setting, text);
  });
  connect(field, &Field::finished, this, [this] {
    if (m_document) m_document->end_typing();
  });
  connect(field, &Field::default_wanted, this, [this, &setting] {
    if (m_document) m_document->reset(setting);
  });
}

void SettingsForm::add_chain(const Setting& setting, QGridLayout& layout) {
  m_chain = new ChainEditor(setting, layout.parentWidget());
  layout.addWidget(m_chain, layout.rowCount(), 0, 1, 4);
}

void SettingsForm::set_document(Document* document) {
  if (m_document) m_document->disconnect(this);
  const bool isFirst = !m_document;
  m_document = document;
  m_chain->set_document(document);
  if (document != nullptr) connect(document, &Document::changed, this, &SettingsForm::refresh);
  refresh();
  // The first group has nothing to change: the identity of the processor.
  if (isFirst) setCurrentIndex(1);
}

void SettingsForm::refresh() {
  const bool hasSettings = m_document && m_document->is_understood() && m_document->unreadable().isEmpty();
  setEnabled(hasSettings);
  if (!hasSettings) return;
  const std::vector<SettingState> states = m_document->configuration().states();
  for (std::size_t i = 0; i < m_pages.size(); ++i) {
    bool isEmpty = true;
    Mnemonics keys = m_taken;
    for (Field* const field : m_pages[i]) {
      const auto& state = states[static_cast<std::size_t>(&field->setting() - settings().data())];
      if (!state.applies) {
        field->hide();
        continue;
      }
      isEmpty = false;
      field->set_label(keys.with_key(label_of(field->setting())));
      refresh_field(*field, state);
    }
    // A tab bar does not lay out its tabs anew if the last one that is told has been visible before.
    if (isTabVisible(static_cast<int>(i)) == isEmpty) setTabVisible(static_cast<int>(i), !isEmpty);
  }
  const auto tabs = visible_tabs();
  for (std::size_t i = 0; i < tabs.size(); ++i) {
    setTabToolTip(tabs[i], i < 9 ? tr("Alt+%1").arg(i + 1) : QString());
  }
  m_chain->setVisible(states[static_cast<std::size_t>(find_setting("devices") - settings().data())].applies);
  m_chain->refresh();
  std::vector<AddressRegion> areas;
  for (const auto& region : regions(m_document->configuration())) {
    areas.push_back({label_of(*region.setting), region.begin, region.end, region.overlaps, region.setting});
  }
  for (AddressPicture* const picture : m_pictures) picture->show_regions(areas);
}

std::vector<int> SettingsForm::visible_tabs() const {
  std::vector<int> tabs;
  for (int i = 0; i < count(); ++i) {
    if (isTabVisible(i)) tabs.push_back(i);
  }
  return tabs;
}

void SettingsForm::refresh_field(Field& field, const SettingState& state) {
  const Setting& setting = field.setting();
  FieldContent content{state, {}, {}, joined(m_document->configuration().warnings(setting))};
  const auto& refused = m_document->draft().refused;
  if (const auto typed = refused.find(&setting); typed != refused.end()) {
    content.refused = typed->second;
    Configuration tried = m_document->configuration();
    if (const auto set = tried.set(setting.name, typed->second); !set) content.error = shown(set.error().message);
  }
  field.show(content);
}

void SettingsForm::set_colours() {
  for (const Page& page : m_pages) {
    for (Field* const field : page) {
      if (field->is_shown()) field->set_note();
    }
  }
}

bool SettingsForm::go_to(const Setting& setting) {
  if (!m_document || !isEnabled() || !m_document->configuration().state(setting).applies) return false;
  for (std::size_t i = 0; i < m_pages.size(); ++i) {
    if (setting_groups()[i].name != setting.group) continue;
    setCurrentIndex(static_cast<int>(i));
    if (setting.kind == SettingKind::devices) m_chain->focus();
    for (Field* const field : m_pages[i]) {
      if (&field->setting() != &setting) continue;
      qobject_cast<QScrollArea*>(widget(static_cast<int>(i)))->ensureWidgetVisible(field->editor());
      field->focus();
    }
  }
  return true;
}

const Setting* SettingsForm::current() const {
  for (const QWidget* widget = QApplication::focusWidget(); widget != nullptr; widget = widget->parentWidget()) {
    const QString name = widget->property("setting").toString();
    if (!name.isEmpty()) return find_setting(bytes_of(name));
  }
  return nullptr;
}

}  // namespace qvtdialog
