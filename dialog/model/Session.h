// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Configuration.h>

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/Document.h"

namespace qvtdialog {

// What a list of processors shows of one.
struct Overview {
  bool debuggable = false;
  QString kind;         // "ovrin, soft, 1", or why it cannot be debugged
  QString connections;  // "simulator, hardware"
  bool hasFile = false;
  QString unreadable;  // why the file cannot be read; empty if it can
  int errors = 0;      // findings in the file
  int warnings = 0;
  bool hasChanges = false;
  bool hasConflict = false;  // another program has changed the file as well
};

// The processors of a design, and those of their option files that are open. The option files are below the working
// directory.
class Session : public QObject {
  Q_OBJECT

 public:
  explicit Session(SdkDebugDialog::Design design, QObject* parent = nullptr);

  // Every processor, in the order of the design.
  const std::vector<std::string>& names() const { return m_design.names(); }
  bool is_debuggable(std::size_t place) const { return m_debuggable[place]; }
  // Opened when it is first asked for; null for a processor that cannot be debugged.
  Document* document(const std::string& name);
  // Why there is no document for a name: an unknown processor, with the nearest name, or one that cannot be debugged.
  QString why_none(const std::string& name) const;
  // Those that differ from their files, in the order of the design.
  std::vector<Document*> with_changes() const;

  // Looked up when it is first asked for, and again when files change.
  const Overview& overview(std::size_t place);
  // The place of a processor in names().
  std::optional<std::size_t> place_of(const std::string& name) const;

  // Looks at the files again, as it also does by itself when the system tells of changes.
  void look_at_files();

 signals:
  // What a list shows of one processor, or of all.
  void overview_changed(std::size_t place);
  void overviews_changed();

 private:
  void watch(const QStringList& paths);

  SdkDebugDialog::Design m_design;
  std::unordered_map<std::string_view, std::size_t> m_places;
  std::vector<bool> m_debuggable;  // in the order of names()
  std::vector<std::unique_ptr<Overview>> m_overviews;
  std::map<std::size_t, Document*> m_documents;
  QFileSystemWatcher m_watcher;
  QTimer m_pause;
};

}  // namespace qvtdialog
