// SPDX-License-Identifier: MIT
// The program qvtdialog: its command line, and the picture that it leaves.

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>

#include "support.h"

namespace qvtdialog {

namespace {

struct Ended {
  int code;
  QString output;  // both streams
};

Ended run(const QStringList& arguments) {
  QProcess program;
  program.setProcessChannelMode(QProcess::MergedChannels);
  program.start(QStringLiteral(QVTDIALOG), arguments);
  if (!program.waitForFinished()) qFatal("qvtdialog does not end");
  return {program.exitCode(), QString::fromUtf8(program.readAll())};
}

}  // namespace

class ProgramTest : public QObject {
  Q_OBJECT

 private slots:
  void it_leaves_a_picture_of_a_processor() {
    Folder folder(QStringLiteral("large"));
    const Ended ended = run({QStringLiteral("--picture"), QStringLiteral("window.png"), QStringLiteral("ppc440_0")});
    QVERIFY2(ended.code == 0, qPrintable(ended.output));
    QVERIFY(QImage(QStringLiteral("window.png")).width() > 300);
  }

  void the_picture_is_stored_where_the_caller_is() {
    Folder folder(QStringLiteral("large"));
    const Folder elsewhere(QStringLiteral("small"));
    const Ended ended = run({QStringLiteral("-C"), folder.path({}), QStringLiteral("--picture"),
                             QStringLiteral("window.png"), QStringLiteral("ppc440_0")});
    QVERIFY2(ended.code == 0, qPrintable(ended.output));
    QVERIFY(QFile::exists(elsewhere.path(QStringLiteral("window.png"))));
  }

  void what_is_wrong_is_told_with_an_exit_code_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    const QStringList picture = {QStringLiteral("--picture"), QStringLiteral("window.png")};
    const auto row = [&](const char* name, const QStringList& arguments, int code, const char* message) {
      QTest::newRow(name) << arguments << code << QString::fromLatin1(message);
    };
    row("unknown option", {QStringLiteral("--foo")}, 2, "foo");
    row("two processors", {QStringLiteral("a"), QStringLiteral("b")}, 2, "one processor");
    row("no such processor", picture + QStringList{QStringLiteral("ovrin_00")}, 1, "did you mean 'ovrin_0'");
    row("cannot be debugged", picture + QStringList{QStringLiteral("vecdsp_0")}, 1, "cannot be debugged");
    row("no design", picture + QStringList{QStringLiteral("--design"), QStringLiteral("no.json")}, 1, "no.json");
    row("no folder", picture + QStringList{QStringLiteral("-C"), QStringLiteral("nowhere")}, 1, "nowhere");
    row("no place for the picture", {QStringLiteral("--picture"), QStringLiteral("nowhere/window.png")}, 1, "nowhere");
  }

  void what_is_wrong_is_told_with_an_exit_code() {
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, message);
    Folder folder(QStringLiteral("large"));
    const Ended ended = run(arguments);
    QCOMPARE(ended.code, code);
    QVERIFY2(ended.output.contains(message), qPrintable(ended.output));
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QCoreApplication application(argc, argv);
  qvtdialog::ProgramTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "program_test.moc"
