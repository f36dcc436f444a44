// SPDX-License-Identifier: MIT
#include "model/Bytes.h"

#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>
#include <string>

using qvtdialog::bytes_of;
using qvtdialog::shown;
using qvtdialog::shown_byte;
using qvtdialog::ShownText;

namespace {

// Bytes of which many are parts of characters, valid or broken, that a text edit treats in its own way.
std::string random_bytes(QRandomGenerator& random) {
  static const std::string kParts[] = {
      "a",
      " ",
      "\t",
      "\n",
      "\r",
      "\r\n",
      std::string(1, '\0'),
      "\x7F",
      "\xC3\xA9",          // é
      "\xC2\x85",          // next line
      "\xC2\xA0",          // no-break space
      "\xC2\xAD",          // soft hyphen
      "\xE2\x80\x8B",      // zero width space
      "\xE2\x80\xA8",      // line separator
      "\xE2\x80\xA9",      // paragraph separator
      "\xE2\x80\xAE",      // right-to-left override
      "\xE3\x80\x80",      // ideographic space
      "\xED\xA0\x80",      // a surrogate
      "\xEE\x80\x80",      // U+E000
      "\xEE\x83\xBF",      // U+E0FF
      "\xEF\xB7\x90",      // U+FDD0
      "\xEF\xB7\x91",      // U+FDD1
      "\xEF\xBB\xBF",      // byte-order mark
      "\xEF\xBF\xBC",      // object replacement character
      "\xEF\xBF\xBD",      // replacement character
      "\xEF\xBF\xBF",      // no character
      "\xF0\x9F\x98\x80",  // 😀
      "\xF4\x90\x80\x80",  // beyond the last character
      "\xC0\x80",          // a longer form than needed
      "\xE0\x80\x80",
  };
  std::string bytes;
  const int parts = random.bounded(40);
  for (int i = 0; i < parts; ++i) {
    if (random.bounded(3) == 0) {
      bytes += static_cast<char>(random.bounded(256));
    } else {
      const std::string& part = kParts[random.bounded(static_cast<quint32>(std::size(kParts)))];
      bytes += random.bounded(5) == 0 ? part.substr(0, part.size() - 1) : part;
    }
  }
  return bytes;
}

std::string held_by(const QTextDocument& document) {
  return bytes_of(document.toRawText().replace(QChar::ParagraphSeparator, u'\n'));
}

}  // namespace

class BytesTest : public QObject {
  Q_OBJECT

 private slots:
  void keepsEveryByte();
  void keepsRandomBytesInADocument();
  void keepsWhatAPersonTypes();
  void showsWhatCanBeSeenAsItself();
  void showsOtherBytesAsPrivateCharacters_data();
  void showsOtherBytesAsPrivateCharacters();
  void findsPlaces();
  void findsPlacesOfRandomBytes();
  void isLinear();
};

void BytesTest::keepsEveryByte() {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes = {static_cast<char>(first), static_cast<char>(second)};
      if (bytes_of(shown(bytes)) != bytes) QFAIL(qPrintable(QStringLiteral("%1 %2").arg(first).arg(second)));
    }
  }
}

void BytesTest::keepsRandomBytesInADocument() {
  QRandomGenerator random(20261122);
  QTextDocument set;
  set.setDocumentLayout(new QPlainTextDocumentLayout(&set));
  QTextDocument inserted;
  for (int run = 0; run < 20000; ++run) {
    const std::string bytes = random_bytes(random);
    const QString text = shown(bytes);
    QCOMPARE(bytes_of(text), bytes);
    set.setPlainText(text);
    QCOMPARE(held_by(set), bytes);
    QCOMPARE(set.characterCount() - 1, text.size());
    inserted.clear();
    QTextCursor(&inserted).insertText(text);
    QCOMPARE(held_by(inserted), bytes);
  }
}

void BytesTest::keepsWhatAPersonTypes() {
  for (const QString& typed : {QStringLiteral("connect ov odm"), QStringLiteral("é ß 日本 😀"),
                               QStringLiteral("a\u00A0b\u200B\uFEFF"), QStringLiteral("\uE100\uF8FF")}) {
    QCOMPARE(QString::fromStdString(bytes_of(typed)), typed);
  }
}

void BytesTest::showsWhatCanBeSeenAsItself() {
  QCOMPARE(shown("-cable type\tx\nmore"), QStringLiteral("-cable type\tx\nmore"));
  QCOMPARE(shown("caf\xC3\xA9 \xF0\x9F\x98\x80 \xEF\xBF\xBD"), QStringLiteral("café 😀 \uFFFD"));
}

void BytesTest::showsOtherBytesAsPrivateCharacters_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("NUL") << QByteArray(1, '\0');
  QTest::newRow("carriage return") << QByteArray("\r");
  QTest::newRow("escape") << QByteArray("\x1B");
  QTest::newRow("no UTF-8") << QByteArray("\xFF\xC3");
  QTest::newRow("next line") << QByteArray("\xC2\x85");
  QTest::newRow("no-break space") << QByteArray("\xC2\xA0");
  QTest::newRow("paragraph separator") << QByteArray("\xE2\x80\xA9");
  QTest::newRow("right-to-left override") << QByteArray("\xE2\x80\xAE");
  QTest::newRow("a surrogate") << QByteArray("\xED\xA0\x80");
  QTest::newRow("a private character") << QByteArray("\xEE\x80\x8D");
  QTest::newRow("U+FDD0") << QByteArray("\xEF\xB7\x90");
  QTest::newRow("object replacement character") << QByteArray("\xEF\xBF\xBC");
  QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF");
  QTest::newRow("too long a form") << QByteArray("\xC0\xAF");
}

void BytesTest::showsOtherBytesAsPrivateCharacters() {
  QFETCH(const QByteArray, bytes);
  const QString text = shown(bytes.toStdString());
  QCOMPARE(text.size(), bytes.size());
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    QCOMPARE(text[i].unicode(), char16_t(0xE000 + static_cast<unsigned char>(bytes[i])));
    QCOMPARE(shown_byte(text[i]), std::optional(static_cast<unsigned char>(bytes[i])));
  }
}

void BytesTest::findsPlaces() {
  // Bytes:   0 a, 1-2 é, 3 b, 4-7 😀, 8 an invalid byte, 9 c. Indices: 0, 1, 2, 3-4, 5, 6.
  const ShownText text(
      "a\xC3\xA9"
      "b\xF0\x9F\x98\x80\xFF"
      "c");
  QCOMPARE(text.text().size(), 7);
  const qsizetype indices[] = {0, 1, 1, 2, 3, 3, 3, 3, 5, 6, 7};
  for (std::size_t byte = 0; byte < std::size(indices); ++byte) QCOMPARE(text.index_at(byte), indices[byte]);
  const std::size_t bytes[] = {0, 1, 3, 4, 4, 8, 9, 10};
  for (qsizetype index = 0; index < 8; ++index) QCOMPARE(text.byte_at(index), bytes[index]);
  QCOMPARE(text.index_at(1000), 7);
  QCOMPARE(text.byte_at(1000), std::size_t{10});
  QCOMPARE(text.byte_at(-1), std::size_t{0});
  QCOMPARE(ShownText().index_at(3), 0);
}

void BytesTest::findsPlacesOfRandomBytes() {
  QRandomGenerator random(7);
  for (int run = 0; run < 2000; ++run) {
    const std::string bytes = random_bytes(random);
    const ShownText text(bytes);
    for (qsizetype index = 0; index <= text.text().size(); ++index) {
      const bool is_inside = index < text.text().size() && text.text()[index].isLowSurrogate();
      const qsizetype first = is_inside ? index - 1 : index;
      QCOMPARE(text.byte_at(index), bytes_of(QStringView(text.text()).first(first)).size());
      QCOMPARE(text.index_at(text.byte_at(index)), first);
    }
  }
}

// Ten times as much must not take a hundred times as long; the figures are those of the fastest of several runs.
void BytesTest::isLinear() {
  const auto fastest = [](qsizetype megabytes) {
    const std::string bytes = QByteArray("a\xC3\xA9\xFF\xF0\x9F\x98\x80", 8).repeated(megabytes * 131072).toStdString();
    qint64 least = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 3; ++run) {
      QElapsedTimer timer;
      timer.start();
      const ShownText text(bytes);
      if (bytes_of(text.text()) != bytes) return qint64{-1};
      least = std::min(least, timer.nsecsElapsed());
    }
    return least;
  };
  const qint64 one = fastest(1);
  const qint64 eight = fastest(8);
  QVERIFY(one > 0 && eight > 0);
  QVERIFY2(eight < 40 * one, qPrintable(QStringLiteral("%1 ns, %2 ns").arg(one).arg(eight)));
}

QTEST_MAIN(BytesTest)
#include "bytes_test.moc"
