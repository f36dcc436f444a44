// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "model/Session.h"
#include "widgets/Mnemonics.h"

class QLineEdit;
class QTreeView;

namespace qvtdialog {

class ProcessorModel;

// The processors with a filter above.
class ProcessorList : public QWidget {
  Q_OBJECT

 public:
  ProcessorList(Session& session, Mnemonics& keys, QWidget* parent);

  // Selects a processor; it is shown even if the filter leaves it out.
  void select(std::size_t place);
  void focus_filter();

  QSize sizeHint() const override;

 signals:
  void selected(const std::string& name);

 private:
  void set_column_widths();
  void set_filter(const QString& text);

  Session& m_session;
  ProcessorModel* m_model;
  QLineEdit* m_filter;
  QTreeView* m_view;
  std::optional<std::size_t> m_selected;
  bool m_isFiltering = false;
  int m_width = 0;  // in which all columns can be read
};

}  // namespace qvtdialog
