// SPDX-License-Identifier: MIT
// The model without a window: drafts, history, option files.

#include "model/Document.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "model/Session.h"
#include "support.h"

namespace qvtdialog {

using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::OnLoss;

namespace {

constexpr const char* kFile = "etc/qvt_ovrin_0.opt";
const QString kFilePath = QString::fromLatin1(kFile);
constexpr const char* kByHand = "Connect OV odm -quiet  -BSCAN user3 -debugdevice deviceNr 2\n";

const SdkDebugDialog::Setting& setting(const char* name) { return *find_setting(name); }

// A document of ovrin_0 whose file holds this.
struct Opened {
  explicit Opened(const std::optional<std::string>& content) : folder(QStringLiteral("large")) {
    if (content) write_file(kFilePath, *content);
    document = std::make_unique<Document>(example(QStringLiteral("large")).find("ovrin_0").value(), kFile);
  }
  Folder folder;
  std::unique_ptr<Document> document;
};

}  // namespace

class DocumentTest : public QObject {
  Q_OBJECT

 private slots:
  void a_file_that_is_missing_gives_the_defaults_and_no_changes() {
    Opened opened(std::nullopt);
    QVERIFY(opened.document->is_understood());
    QVERIFY(!opened.document->has_changes());
    QVERIFY(!opened.document->stored());
    QCOMPARE(*opened.document->command_text(), std::string("connect ov odm -debugdevice cpunr 1"));
    QVERIFY(opened.document->store());
    QVERIFY(!QFile::exists(kFilePath));
  }

  void a_change_is_made_in_the_text_of_the_file() {
    Opened opened(kByHand);
    opened.document->type(setting("bscan"), "USER4");
    QCOMPARE(*opened.document->content(), std::string("Connect OV odm -quiet  -BSCAN USER4 -debugdevice deviceNr 2\n"));
    QVERIFY(opened.document->store());
    QCOMPARE(*content_of(kFilePath), std::string("Connect OV odm -quiet  -BSCAN USER4 -debugdevice deviceNr 2\n"));
    QVERIFY(!opened.document->has_changes());
  }

  void what_is_typed_into_a_field_is_one_step_and_counts_from_the_state_before_it() {
    Folder folder(QStringLiteral("large"));
    write_file(QStringLiteral("etc/qvt_ppc405_0.opt"), "connect ppc sim -ipcport somewhere:7000");
    Document document(example(QStringLiteral("large")).find("ppc405_0").value(), "etc/qvt_ppc405_0.opt");
    const Draft before = document.draft();
    // An empty host also unsets the port, which must not be lost on the way to another host.
    for (const char* const text : {"", "n", "ne", "new"}) document.type(setting("sim-host"), text);
    QCOMPARE(*document.content(), std::string("connect ppc sim -ipcport new:7000"));
    QCOMPARE(document.history().count(), 1);
    document.history().undo();
    QVERIFY(document.draft() == before);
  }

  void typing_back_to_what_was_there_is_no_step() {
    Opened opened(kByHand);
    opened.document->type(setting("debug-device"), "23");
    opened.document->type(setting("debug-device"), "2");
    QCOMPARE(opened.document->history().count(), 0);
    QVERIFY(!opened.document->has_changes());
  }

  void another_field_is_another_step_and_so_is_the_same_one_later() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    document.type(setting("debug-device"), "3");
    document.type(setting("bscan"), "USER4");
    document.type(setting("debug-device"), "4");
    document.end_typing();
    document.type(setting("debug-device"), "5");
    QCOMPARE(document.history().count(), 4);
    document.history().undo();
    document.type(setting("debug-device"), "6");
    document.history().undo();
    QCOMPARE(std::get<std::int64_t>(document.configuration().value(setting("debug-device"))), 4);
  }

  void a_text_that_is_not_accepted_is_kept_and_not_stored() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    document.type(setting("debug-device"), "12x");
    QCOMPARE(document.draft().refused.at(&setting("debug-device")), std::string("12x"));
    QVERIFY(document.has_changes());
    QVERIFY(document.why_not_stored().contains(QStringLiteral("Debug device")));
    const auto stored = document.store(OnLoss::goOn);
    QVERIFY(!stored);
    QCOMPARE(stored.error().code, ErrorCode::refused);
    QCOMPARE(*content_of(kFilePath), std::string(kByHand));
    document.history().undo();
    QVERIFY(document.draft().refused.empty());
  }

  void a_text_that_is_not_accepted_goes_with_its_field() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    document.type(setting("debug-device"), "x");
    document.type(setting("connection"), "simulator");
    QVERIFY(document.draft().refused.empty());
    document.history().undo();
    QCOMPARE(document.draft().refused.size(), std::size_t{1});
  }

  void a_file_that_is_not_understood_is_text_and_no_defaults() {
    Opened opened("connect ov odm -cabel type zarvek_platformusb\n");
    auto& document = *opened.document;
    QVERIFY(!document.is_understood());
    QVERIFY(!document.has_changes());
    QCOMPARE(*document.content(), std::string("connect ov odm -cabel type zarvek_platformusb\n"));
    document.type_content("connect ov odm -cable type zarvek_platformusb\n");
    QVERIFY(document.is_understood());
    QVERIFY(document.store());
    QCOMPARE(*content_of(kFilePath), std::string("connect ov odm -cable type zarvek_platformusb\n"));
  }

  void a_typed_command_is_kept_as_it_was_typed() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    const std::string typed = "connect  OV odm -debugdevice   deviceNr 7";
    document.type_content(typed);
    QCOMPARE(*document.content(), typed);
    QCOMPARE(std::get<std::int64_t>(document.configuration().value(setting("debug-device"))), 7);
    const auto refused = document.store();
    QVERIFY(!refused);
    QCOMPARE(refused.error().code, ErrorCode::wouldLose);
    QVERIFY(document.store(OnLoss::goOn));
    QCOMPARE(*content_of(kFilePath), typed);
  }

  void what_nobody_reads_is_named_when_it_goes() {
    Opened opened(kByHand);
    opened.document->type_content("connect ov odm -BSCAN user3 -debugdevice deviceNr 2\n");
    const auto plan = opened.document->plan();
    QCOMPARE(plan->losses.size(), std::size_t{1});
    QCOMPARE(plan->losses[0].what, std::string("-quiet"));
    QVERIFY(!plan->is_safe());
  }

  void nothing_is_lost_where_only_settings_change() {
    Opened opened("connect ov odm -cable type zarvek_platformusb frequency 12000000 -debugdevice deviceNr 2");
    for (const auto& s : SdkDebugDialog::settings()) opened.document->reset(s);
    const auto plan = opened.document->plan();
    QVERIFY(plan->is_safe());
    QVERIFY(plan->differences.size() > 2);
  }

  void a_file_that_is_not_understood_is_not_replaced_by_defaults_unasked() {
    Opened opened("conect ov sim -x\n");
    opened.document->reset_all();
    QVERIFY(opened.document->is_understood());
    const auto stored = opened.document->store();
    QVERIFY(!stored);
    QCOMPARE(stored.error().code, ErrorCode::wouldLose);
    QVERIFY(!opened.document->plan()->losses.empty());
    QVERIFY(opened.document->store(OnLoss::goOn));
  }

  void an_incomplete_command_is_not_stored() {
    Opened opened(kByHand);
    opened.document->type_content("connect o");
    QVERIFY(!opened.document->is_understood());
    QVERIFY(!opened.document->store(OnLoss::goOn));
    opened.document->type_content("");
    QVERIFY(!opened.document->is_understood());
    QVERIFY(!opened.document->store(OnLoss::goOn));
    QCOMPARE(*content_of(kFilePath), std::string(kByHand));
  }

  void undo_goes_beyond_what_was_stored() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    document.type(setting("bscan"), "USER4");
    QVERIFY(document.store());
    document.history().undo();
    QVERIFY(document.has_changes());
    QVERIFY(document.store());
    QCOMPARE(*content_of(kFilePath), std::string(kByHand));
    document.history().redo();
    QVERIFY(document.store());
    QVERIFY(content_of(kFilePath)->find("USER4") != std::string::npos);
  }

  void everything_can_be_undone() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    const Draft before = document.draft();
    for (int i = 0; i < 2000; ++i) {
      document.type(setting("debug-device"), std::to_string(1 + i % 120));
      document.end_typing();
    }
    document.reset(setting("bscan"));
    document.reset_all();
    document.type_content("connect ov sim");
    document.replace_content("not a command", QStringLiteral("test"));
    while (document.history().canUndo()) document.history().undo();
    QVERIFY(document.draft() == before);
    QVERIFY(!document.has_changes());
  }

  void a_changed_file_is_read_again_if_nothing_was_changed_here() {
    Opened opened(kByHand);
    QSignalSpy reloaded(opened.document.get(), &Document::reloaded);
    write_file(kFilePath, "connect ov odm -debugdevice deviceNr 9");
    opened.document->look_at_file();
    QCOMPARE(reloaded.count(), 1);
    QVERIFY(!opened.document->has_changes());
    QCOMPARE(std::get<std::int64_t>(opened.document->configuration().value(setting("debug-device"))), 9);
    opened.document->history().undo();
    QCOMPARE(*opened.document->content(), std::string(kByHand));
    QVERIFY(opened.document->has_changes());
  }

  void a_changed_file_is_not_overwritten_before_somebody_has_chosen() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    document.type(setting("bscan"), "USER1");
    const std::string theirs = "connect ov odm -debugdevice deviceNr 9";
    write_file(kFilePath, theirs);
    const auto stored = document.store(OnLoss::goOn);
    QVERIFY(!stored);
    QCOMPARE(stored.error().code, ErrorCode::changedMeanwhile);
    QCOMPARE(*content_of(kFilePath), theirs);
    QVERIFY(document.conflict());
    QCOMPARE(*document.conflict()->content, theirs);
    document.keep_mine();
    QVERIFY(document.store(OnLoss::goOn));
    QCOMPARE(*content_of(kFilePath), std::string("Connect OV odm -quiet  -BSCAN USER1 -debugdevice deviceNr 2\n"));
  }

  void the_other_programs_content_can_be_taken_and_undone() {
    Opened opened(kByHand);
    auto& document = *opened.document;
    document.type(setting("bscan"), "USER1");
    write_file(kFilePath, "connect ov sim");
    document.look_at_file();
    document.take_theirs();
    QVERIFY(!document.has_changes());
    QCOMPARE(*document.content(), std::string("connect ov sim"));
    document.history().undo();
    QVERIFY(document.has_changes());
    QVERIFY(document.content()->find("USER1") != std::string::npos);
  }

  void a_file_that_changes_back_is_no_conflict() {
    Opened opened(kByHand);
    opened.document->type(setting("bscan"), "USER1");
    write_file(kFilePath, "connect ov sim");
    opened.document->look_at_file();
    QVERIFY(opened.document->conflict());
    write_file(kFilePath, kByHand);
    opened.document->look_at_file();
    QVERIFY(!opened.document->conflict());
    QVERIFY(opened.document->store());
  }

  void a_file_that_vanishes_is_noticed() {
    Opened opened(kByHand);
    opened.document->type(setting("bscan"), "USER1");
    QFile::remove(kFilePath);
    opened.document->look_at_file();
    QVERIFY(opened.document->conflict());
    QVERIFY(!opened.document->conflict()->content);
    opened.document->keep_mine();
    QVERIFY(opened.document->store());
    QVERIFY(content_of(kFilePath)->find("USER1") != std::string::npos);
  }

  void a_file_that_cannot_be_read_is_not_taken_for_missing() {
    Folder folder(QStringLiteral("large"));
    QDir().mkdir(kFilePath);
    Document document(example(QStringLiteral("large")).find("ovrin_0").value(), kFile);
    QVERIFY(!document.unreadable().isEmpty());
    document.type(setting("bscan"), "USER1");
    QVERIFY(!document.has_changes());
    QVERIFY(!document.store(OnLoss::goOn));
    QDir().rmdir(kFilePath);
    write_file(kFilePath, kByHand);
    document.look_at_file();
    QVERIFY(document.unreadable().isEmpty());
    QVERIFY(document.is_understood());
  }

  void changes_are_there_still_when_the_file_cannot_be_read_any_more() {
    Opened opened(kByHand);
    opened.document->type(setting("bscan"), "USER1");
    QFile::remove(kFilePath);
    QDir().mkdir(kFilePath);
    opened.document->look_at_file();
    QVERIFY(!opened.document->unreadable().isEmpty());
    QVERIFY(opened.document->has_changes());
    QVERIFY(!opened.document->store(OnLoss::goOn));
  }

  void the_folder_of_the_option_files_is_made() {
    Opened opened(std::nullopt);
    QDir().rmdir(QStringLiteral("etc"));
    opened.document->type(setting("debug-device"), "2");
    QVERIFY(opened.document->store());
    QCOMPARE(*content_of(kFilePath), std::string("connect ov odm -debugdevice deviceNr 2 cpunr 1"));
  }

  void settings_are_copied_as_one_step() {
    Opened opened(kByHand);
    Document other(example(QStringLiteral("large")).find("ppc405_0").value(), "etc/qvt_ppc405_0.opt");
    other.type(setting("debug-device"), "5");
    const auto left = other.copy_from(opened.document->configuration());
    QVERIFY(left.empty());
    QCOMPARE(std::get<std::int64_t>(other.configuration().value(setting("debug-device"))), 2);
    QCOMPARE(other.history().count(), 2);
  }

  void a_session_knows_what_is_in_the_files() {
    Folder folder(QStringLiteral("large"));
    write_file(QStringLiteral("etc/qvt_ovrin_1.opt"), "connect ov odm -cabel");
    Session session(example(QStringLiteral("large")));
    const auto at = [&](const char* name) { return *session.place_of(name); };
    QVERIFY(!session.overview(at("ovrin_0")).hasFile);
    QVERIFY(session.overview(at("ovrin_1")).hasFile);
    QCOMPARE(session.overview(at("ovrin_1")).errors, 1);
    QVERIFY(!session.overview(at("vecdsp_0")).debuggable);
    QCOMPARE(session.document("vecdsp_0"), nullptr);
    QVERIFY(session.why_none("vecdsp_0").contains(QStringLiteral("cannot be debugged")));
    QVERIFY(session.why_none("ovrin_00").contains(QStringLiteral("ovrin_0")));
    QVERIFY(!session.place_of("nobody"));
    session.document("ovrin_0")->type(setting("debug-device"), "3");
    QVERIFY(session.overview(at("ovrin_0")).hasChanges);
    QCOMPARE(session.with_changes().size(), std::size_t{1});
  }

  void a_session_is_told_of_changed_files() {
    Folder folder(QStringLiteral("large"));
    write_file(kFilePath, kByHand);
    Session session(example(QStringLiteral("large")));
    Document& document = *session.document("ovrin_0");
    QSignalSpy reloaded(&document, &Document::reloaded);
    write_file(kFilePath, "connect ov odm -debugdevice deviceNr 9");
    QVERIFY(reloaded.wait());
    // A file that is replaced is another one for the system.
    write_file(QStringLiteral("etc/new"), "connect ov odm -debugdevice deviceNr 10");
    QVERIFY(std::rename("etc/new", kFile) == 0);
    QVERIFY(reloaded.wait());
    QCOMPARE(std::get<std::int64_t>(document.configuration().value(setting("debug-device"))), 10);
    write_file(kFilePath, "connect ov odm -debugdevice deviceNr 11");
    QVERIFY(reloaded.wait());
    QFile::remove(kFilePath);
    QVERIFY(reloaded.wait());
    QVERIFY(!document.stored());
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QGuiApplication application(argc, argv);
  qvtdialog::DocumentTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "document_test.moc"
