// SPDX-License-Identifier: MIT
#include "model/Session.h"

#include <SdkDebugDialog/Diagnosis.h>
#include <SdkDebugDialog/OptionFile.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringList>

#include "model/Bytes.h"
#include "model/library_texts.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::diagnose;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Finding;
using SdkDebugDialog::option_file_path;
using SdkDebugDialog::Processor;
using SdkDebugDialog::read_option_file;
using SdkDebugDialog::Severity;
using SdkDebugDialog::TextKind;

namespace {

const QString kHere = QStringLiteral(".");
const QString kFolder = QStringLiteral("etc");

}  // namespace

Session::Session(Design design, QObject* parent) : QObject(parent), m_design(std::move(design)) {
  m_places.reserve(names().size());
  for (std::size_t i = 0; i < names().size(); ++i) m_places.emplace(names()[i], i);
  m_overviews.resize(names().size());
  m_debuggable.resize(names().size());
  for (const Processor& processor : m_design.processors()) m_debuggable[m_places.at(processor.name())] = true;
  // A program that writes a file is told in several messages.
  m_pause.setSingleShot(true);
  m_pause.setInterval(50);
  connect(&m_pause, &QTimer::timeout, this, &Session::look_at_files);
  connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_pause, qOverload<>(&QTimer::start));
  connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_pause, qOverload<>(&QTimer::start));
  watch({kHere, kFolder});
}

std::optional<std::size_t> Session::place_of(const std::string& name) const {
  const auto found = m_places.find(name);
  if (found == m_places.end()) return std::nullopt;
  return found->second;
}

Document* Session::document(const std::string& name) {
  const auto place = place_of(name);
  if (!place || !m_debuggable[*place]) return nullptr;
  if (const auto open = m_documents.find(*place); open != m_documents.end()) return open->second;
  auto* const document = new Document(m_design.find(name).value(), option_file_path(name), this);
  m_documents.emplace(*place, document);
  connect(document, &Document::changed, this, [this, at = *place] {
    m_overviews[at].reset();
    emit overview_changed(at);
  });
  const QString path = QFile::decodeName(document->path().c_str());
  if (QFileInfo::exists(path)) m_watcher.addPath(path);
  return document;
}

QString Session::why_none(const std::string& name) const {
  const auto processor = m_design.find(name);
  return processor ? QString() : shown(processor.error().message);
}

std::vector<Document*> Session::with_changes() const {
  std::vector<Document*> found;
  for (const auto& [place, document] : m_documents) {
    if (document->has_changes()) found.push_back(document);
  }
  return found;
}

namespace {

QString text_of(const Processor& processor, std::initializer_list<const char*> names) {
  const Configuration defaults(processor);
  QStringList parts;
  for (const char* const name : names) {
    const auto& setting = *find_setting(name);
    parts += value_of(setting, defaults.value(setting));
  }
  return parts.join(QStringLiteral(", "));
}

}  // namespace

const Overview& Session::overview(std::size_t place) {
  auto& known = m_overviews[place];
  if (known) return *known;
  known = std::make_unique<Overview>();
  const std::string& name = names()[place];
  known->debuggable = m_debuggable[place];
  if (!known->debuggable) {
    known->kind = tr("cannot be debugged");
    return *known;
  }
  const Processor processor = m_design.find(name).value();
  known->kind = text_of(processor, {"family", "variant", "cpu"});
  known->connections = text_of(processor, {"connections"});
  const auto file = read_option_file(option_file_path(name));
  if (!file) {
    known->unreadable = shown(file.error().message);
  } else if (*file) {
    known->hasFile = true;
    for (const Finding& finding : diagnose(**file, TextKind::optionFile, processor)) {
      if (finding.severity == Severity::error) ++known->errors;
      if (finding.severity == Severity::warning) ++known->warnings;
    }
  }
  const auto open = m_documents.find(place);
  if (open != m_documents.end()) {
    known->hasChanges = open->second->has_changes();
    known->hasConflict = open->second->conflict().has_value();
  }
  return *known;
}

// Those that are there and are not watched already. A file that is replaced is another one for the system, so that the
// folder is watched as well.
void Session::watch(const QStringList& paths) {
  const QStringList files = m_watcher.files();
  const QStringList folders = m_watcher.directories();
  const QSet<QString> watched(files.begin(), files.end());
  QStringList added;
  for (const QString& path : paths) {
    if (!watched.contains(path) && !folders.contains(path) && QFileInfo::exists(path)) added += path;
  }
  if (!added.isEmpty()) m_watcher.addPaths(added);
}

void Session::look_at_files() {
  for (const auto& [place, document] : m_documents) document->look_at_file();
  for (auto& overview : m_overviews) overview.reset();
  QStringList paths = {kHere, kFolder};
  for (const auto& [place, document] : m_documents) paths += QFile::decodeName(document->path().c_str());
  watch(paths);
  emit overviews_changed();
}

}  // namespace qvtdialog
