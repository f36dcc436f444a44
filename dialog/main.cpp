// SPDX-License-Identifier: MIT
// qvtdialog: the debug configuration of the processors of a design, in a window.

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/platform/DesignFile.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>
#include <QTranslator>
#include <cstdio>
#include <memory>

#include "model/Bytes.h"
#include "model/Session.h"
#include "widgets/MainWindow.h"
#include "widgets/Style.h"

namespace {

constexpr int kUsage = 2;

void translate(QApplication& application) {
  auto* const ours = new QTranslator(&application);
  // English needs its file too: for the plural forms.
  if (ours->load(QLocale(), QStringLiteral("qvtdialog"), QStringLiteral("_"), QStringLiteral(":/i18n")) ||
      ours->load(QStringLiteral(":/i18n/qvtdialog_en.qm"))) {
    QCoreApplication::installTranslator(ours);
  }
  auto* const qts = new QTranslator(&application);
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (qts->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"), folder)) {
    QCoreApplication::installTranslator(qts);
  }
}

// On the terminal for scripts, in a window for people who have started it from a menu.
int fail(const QString& message, bool isScript) {
  std::fprintf(stderr, "qvtdialog: %s\n", qPrintable(message));
  if (!isScript) QMessageBox::critical(nullptr, QStringLiteral("qvtdialog"), message);
  return 1;
}

int run(QApplication& application) {
  QCommandLineParser options;
  options.setApplicationDescription(
      QCoreApplication::translate("main", "The debug configuration of the processors of a design, in a window"));
  options.addHelpOption();
  options.addVersionOption();
  options.addPositionalArgument(QStringLiteral("PROC"),
                                QCoreApplication::translate("main", "the processor to show first"),
                                QStringLiteral("[PROC]"));
  const QCommandLineOption folder(QStringLiteral("C"), QCoreApplication::translate("main", "work in this folder"),
                                  QStringLiteral("DIR"));
  const QCommandLineOption design(QStringLiteral("design"), QCoreApplication::translate("main", "the design file"),
                                  QStringLiteral("FILE"), QStringLiteral("design.json"));
  const QCommandLineOption picture(
      QStringLiteral("picture"),
      QCoreApplication::translate("main", "store a picture of the window in a file, and end"), QStringLiteral("FILE"));
  options.addOptions({folder, design, picture});
  if (!options.parse(QApplication::arguments())) {
    std::fprintf(stderr, "qvtdialog: %s\n", qPrintable(options.errorText()));
    return kUsage;
  }
  options.process(application);  // --help and --version
  const bool isScript = options.isSet(picture);
  const QStringList processors = options.positionalArguments();
  if (processors.size() > 1) {
    std::fprintf(stderr, "qvtdialog: %s\n",
                 qPrintable(QCoreApplication::translate("main", "one processor can be named, not more")));
    return kUsage;
  }
  // A picture goes where the caller is.
  const QString picturePath = QFileInfo(options.value(picture)).absoluteFilePath();
  if (options.isSet(folder) && !QDir::setCurrent(options.value(folder))) {
    return fail(QCoreApplication::translate("main", "the folder %1 cannot be used").arg(options.value(folder)),
                isScript);
  }
  const auto path = QFile::encodeName(options.value(design)).toStdString();
  std::unique_ptr<qvtdialog::Session> session;
  try {
    session = std::make_unique<qvtdialog::Session>(
        SdkDebugDialog::Design(std::make_shared<DesignFile>(DesignFile::load(path))));
  } catch (const DesignFileError& error) {
    return fail(
        qvtdialog::shown(error.what()) + QCoreApplication::translate("main", "; --design FILE names another design"),
        isScript);
  }
  qvtdialog::MainWindow window(*session, QFileInfo(options.value(design)).fileName());
  if (processors.isEmpty()) {
    window.select_first();
  } else {
    const auto name = qvtdialog::bytes_of(processors.front());
    if (session->document(name) == nullptr) return fail(session->why_none(name), isScript);
    window.select(name);
  }
  window.show();
  if (!isScript) return QApplication::exec();
  QTimer pause;  // until all is painted
  pause.setSingleShot(true);
  QObject::connect(&pause, &QTimer::timeout, &window, [&] {
    const bool stored = window.grab().save(picturePath);
    if (!stored) fail(QCoreApplication::translate("main", "%1 cannot be written").arg(picturePath), true);
    QApplication::exit(stored ? 0 : 1);
  });
  pause.start(500);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("qvtdialog"));
  QApplication::setApplicationVersion(QStringLiteral(QVTDIALOG_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("qvtdialog"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("qvtdialog")));
  QApplication::setStyle(new qvtdialog::Style);
  // The application deletes its style. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
  translate(application);
  return run(application);
}
