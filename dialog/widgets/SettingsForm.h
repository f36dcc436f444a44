// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Configuration.h>

#include <QPointer>
#include <QTabWidget>
#include <vector>

#include "model/Document.h"
#include "widgets/Mnemonics.h"

class QGridLayout;

namespace qvtdialog {

class AddressPicture;
class ChainEditor;
class Field;

// The settings of a processor: a tab for each group of the catalogue, a row for each setting that applies. Alt and a
// number shows a tab; the letters are left for the fields.
class SettingsForm : public QTabWidget {
  Q_OBJECT

 public:
  // The keys that are taken by other parts of the window.
  SettingsForm(const Mnemonics& taken, QWidget* parent);

  // Null for none.
  void set_document(Document* document);
  // Shows the tab of a setting and gives its field the focus. False if the setting does not apply.
  bool go_to(const SdkDebugDialog::Setting& setting);
  // The setting whose field has the focus, or null.
  const SdkDebugDialog::Setting* current() const;
  // In the colours of the palette as it is now.
  void set_colours();
  // Looks at the document again.
  void refresh();

 private:
  using Page = std::vector<Field*>;

  void make_page(const SdkDebugDialog::SettingGroup& group);
  void add_field(Page& made, const SdkDebugDialog::Setting& setting, QGridLayout& layout);
  void add_chain(const SdkDebugDialog::Setting& setting, QGridLayout& layout);
  void refresh_field(Field& field, const SdkDebugDialog::SettingState& state);
  std::vector<int> visible_tabs() const;

  QPointer<Document> m_document;
  Mnemonics m_taken;
  std::vector<Page> m_pages;  // in the order of setting_groups()
  ChainEditor* m_chain = nullptr;
  std::vector<AddressPicture*> m_pictures;
};

}  // namespace qvtdialog
