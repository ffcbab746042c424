// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoDecoder.h"
#include "photo/reader/Message.h"

#include <QTest>
#include <cstring>

namespace {

ReaderAnswer photo(int width = 30, int height = 20, const QList<qint64>& blocks = {})
{
    ReaderAnswer answer;
    answer.size = QSize(width, height);
    answer.format = QImage::Format_RGB32;
    answer.blocks = blocks;
    return answer;
}

ReaderAnswer refusal(const QString& reason)
{
    ReaderAnswer answer;
    answer.reason = reason;
    return answer;
}

/// The message with another number at a place.
template <class Number> QByteArray with(QByteArray message, std::size_t place, Number number)
{
    std::memcpy(message.data() + place, &number, sizeof number);
    return message;
}

// The places of an answer with a photo.
constexpr std::size_t mark = 0, order = 4, width = 8, height = 12, count = 16, missing = 20, blocks = 24;

} // namespace

class ReaderMessageTest : public QObject {
    Q_OBJECT

private slots:
    void answersComeBack_data()
    {
        QTest::addColumn<ReaderAnswer>("answer");
        QTest::newRow("photo") << photo();
        QTest::newRow("one pixel") << photo(1, 1);
        QTest::newRow("as large as may be") << photo(1 << 14, 1 << 14);
        QTest::newRow("blocks") << photo(5, 4, {7, 0, 65536});
        QTest::newRow("as many blocks as may be") << photo(5, 4, QList<qint64>(maxBlocks, 3));
        QTest::newRow("as large a block as may be") << photo(5, 4, {0, maxBlockBytes});
        ReaderAnswer other = photo();
        other.format = QImage::Format_RGBX8888;
        QTest::newRow("other order") << other;
        ReaderAnswer half = photo();
        half.restIsMissing = true;
        QTest::newRow("half of one") << half;
        QTest::newRow("reason") << refusal("It is “broken”.");
    }
    void answersComeBack()
    {
        QFETCH(ReaderAnswer, answer);
        qint64 bytes = answer.reason.isEmpty() ? answer.pictureBytes() : 0;
        for (const qint64 block : answer.blocks)
            bytes += block;
        const auto unpacked = unpackedAnswer(packed(answer), bytes);
        QVERIFY(unpacked);
        QCOMPARE(unpacked->reason, answer.reason);
        QCOMPARE(unpacked->size, answer.size);
        QCOMPARE(unpacked->format, answer.format);
        QCOMPARE(unpacked->blocks, answer.blocks);
        QCOMPARE(unpacked->restIsMissing, answer.restIsMissing);
    }

    void longReasonsAreCut()
    {
        const QByteArray message = packed(refusal(QString(5000, u'☀')));
        const auto unpacked = unpackedAnswer(message, 0);
        QVERIFY(unpacked);
        QCOMPARE(unpacked->reason, QString(maxReasonBytes / 3, u'☀'));
    }

    void badAnswersAreRefused_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<qint64>("shared");
        const QByteArray good = packed(photo(30, 20, {5}));
        const qint64 bytes = 30 * 20 * 4 + 5;
        QVERIFY(unpackedAnswer(good, bytes));
        const auto row = [bytes](const char* name, const QByteArray& message, qint64 shared = -1) {
            QTest::newRow(name) << message << (shared < 0 ? bytes : shared);
        };
        row("nothing", {});
        row("a byte", "x");
        row("a byte less", good.chopped(1));
        row("a byte more", good + '\0');
        row("zeros", QByteArray(good.size(), '\0'));
        row("another mark", with(good, mark, quint32(1)));
        row("a byte of memory less", good, bytes - 1);
        row("a byte of memory more", good, bytes + 1);
        row("no memory", good, 0);
        row("no order", with(good, order, quint32(0)));
        row("unknown order", with(good, order, quint32(3)));
        row("no width", with(good, width, qint32(0)), 5);
        row("no height", with(good, height, qint32(0)), 5);
        row("both sides below none", with(with(good, width, qint32(-30)), height, qint32(-20)));
        row("width beyond the memory", with(good, width, qint32(31)));
        row("height that makes as much by overflow", with(good, height, qint32(20 + (1 << 30))));
        row("more pixels than may be", packed(photo((1 << 14) + 1, 1 << 14)), ((qint64(1) << 14) + 1) * (1 << 14) * 4);
        QCOMPARE(maxPhotoPixels, qint64(1) << 28);
        row("a block not counted", with(good, count, quint32(0)));
        row("more blocks than there are", with(good, count, quint32(maxBlocks + 1)));
        row("a number of blocks beyond all", with(good, count, ~quint32(0)));
        row("a block below none", with(with(good, blocks, qint64(-5)), count, quint32(2)), 30 * 20 * 4 - 5);
        row("two blocks that level out",
            with(with(with(good, blocks, qint64(10)), blocks + 8, qint64(-5)), count, quint32(2)));
        row("a block beyond all", with(good, blocks, maxBlockBytes + 1), 30 * 20 * 4 + maxBlockBytes + 1);
        row("blocks beyond all",
            with(with(with(good, blocks, maxBlockBytes), blocks + 8, qint64(1)), count, quint32(2)),
            30 * 20 * 4 + maxBlockBytes + 1);
        row("more than the rest missing", with(good, missing, quint32(2)));

        const QByteArray text = packed(refusal("no"));
        row("a reason beside memory", text, bytes);
        row("an empty reason", text.left(4), 0);
        row("a reason that is no text", text + '\xFF', 0);
        row("a reason that begins with a mark of its order", text.left(4) + "\xEF\xBB\xBFno", 0);
        row("a reason cut within a character", text + '\xE2', 0);
        row("a reason longer than may be", text + QByteArray(maxReasonBytes - 1, 'x'), 0);
    }
    void badAnswersAreRefused()
    {
        QFETCH(QByteArray, message);
        QFETCH(qint64, shared);
        QVERIFY(!unpackedAnswer(message, shared));
    }

    void limitsComeBack()
    {
        const QByteArray message = packed(ReadingLimits{qint64(5) << 40, 7});
        const auto limits = unpackedLimits(message);
        QVERIFY(limits);
        QCOMPARE(limits->memory, qint64(5) << 40);
        QCOMPARE(limits->seconds, 7);
        for (const QByteArray& bad : {QByteArray(), message.chopped(1), message + 'x', with(message, 0, quint32(1)),
                 with(message, 4, quint32(1)), packed(ReadingLimits{-1, 7}), packed(ReadingLimits{1, 0})})
            QVERIFY(!unpackedLimits(bad));
    }
};

QTEST_GUILESS_MAIN(ReaderMessageTest)
#include "ReaderMessageTest.moc"
