// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/PhotoReader.h"
#include "photo/PhotoLoader.h"
#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"

#include <QColorSpace>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <poll.h>
#include <unistd.h>

using End = PhotoReader::End;

namespace {

constexpr int longest = 90'000; ///< milliseconds, many times what a reader may take for a small file

QByteArray contentsOf(const QString& systemFile)
{
    QFile file(systemFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The processes that this one has started, and that have not ended or were not waited for.
QList<QByteArray> unwaitedProcesses()
{
    QList<QByteArray> found = contentsOf(QStringLiteral("/proc/self/task/%1/children").arg(getpid())).split(' ');
    found.removeAll(QByteArray());
    return found;
}

/// Those of them that have not ended.
QList<pid_t> startedProcesses()
{
    QList<pid_t> found;
    for (const QByteArray& number : unwaitedProcesses())
        if (contentsOf(QStringLiteral("/proc/%1/status").arg(number.toInt())).contains("VmSize"))
            found << number.toInt();
    return found;
}

/// Whether the pixels stand in memory that was shared by a reader.
bool isShared(const QImage& image)
{
    const auto address = quintptr(image.constBits());
    for (const QByteArray& line : contentsOf("/proc/self/maps").split('\n')) {
        const QList<QByteArray> range = line.split(' ').first().split('-');
        if (range.size() == 2 && range[0].toULongLong(nullptr, 16) <= address
            && address < range[1].toULongLong(nullptr, 16))
            return line.contains("/memfd:photo");
    }
    return false;
}

} // namespace

class PhotoReaderTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QByteArray write(const QByteArray& name, const QByteArray& data)
    {
        const QByteArray path = m_folder.path().toLocal8Bit() + '/' + name;
        samples::writeFile(path, data);
        return path;
    }

    static LoadedPhoto read(PhotoReader& reader, const QByteArray& path)
    {
        reader.begin(path);
        return reader.take();
    }

private slots:
    void init() { PhotoReader::setProgram(READER); }

    void photosAreThoseOfTheDecoder_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QImage noise = samples::noise(311, 401); // large enough to be converted in several threads
        QTest::newRow("png") << samples::encoded(noise, "png");
        QTest::newRow("one pixel") << samples::encoded(samples::noise(1, 1), "png");
        QTest::newRow("jpeg") << samples::encoded(noise, "jpeg");
        QTest::newRow("jpeg, cut off") << samples::encoded(noise, "jpeg").chopped(20000);
        QTest::newRow("jpeg, a broken profile")
            << samples::jpeg(samples::JpegKind::Colour, 8, 8, QByteArray(192, '\x55'), "icc");
        QTest::newRow("jpeg, grey") << samples::jpeg(samples::JpegKind::Grey, 64, 32, QByteArray(64 * 32, '\x55'));
        QTest::newRow("tiff") << samples::encoded(noise, "tiff");
        QTest::newRow("webp") << samples::encoded(noise, "webp");
        QTest::newRow("bmp") << samples::encoded(noise, "bmp");
        QTest::newRow("exif, turned") << samples::withCameraExif(samples::encoded(noise, "jpeg"), 6);
        QImage wide = noise;
        wide.setColorSpace(QColorSpace::DisplayP3);
        QTest::newRow("colour profile") << samples::encoded(wide, "png");
        QTest::newRow("transparent") << samples::encoded(
            noise.convertToFormat(QImage::Format_RGBA64).mirrored(), "png");
        QTest::newRow("cmyk") << samples::jpeg(samples::JpegKind::Cmyk, 64, 32, QByteArray(64 * 32 * 4, '\x55'));
        const QImage transparent = noise.convertToFormat(QImage::Format_RGBA8888).mirrored();
#ifdef LUMORA_HEIF
        QTest::newRow("heic") << samples::heif(noise, samples::HeifKind::Hevc);
        QTest::newRow("heic, transparent") << samples::heif(transparent, samples::HeifKind::Hevc);
        QTest::newRow("avif") << samples::heif(noise, samples::HeifKind::Av1);
        QTest::newRow("avif, transparent") << samples::heif(transparent, samples::HeifKind::Av1);
#endif
#ifdef LUMORA_JXL
        QTest::newRow("jpeg xl") << samples::jxl(noise);
        QTest::newRow("jpeg xl, transparent") << samples::jxl(transparent);
#endif
#ifdef LUMORA_RAW
        QTest::newRow("camera raw") << samples::dng(QSize(64, 48), {0.2, 0.5, 0.3}, {0.5, 1, 0.6});
#endif
        QTest::newRow("not a picture") << QByteArray("Dear diary");
        QTest::newRow("damaged") << samples::encoded(noise, "png").left(3000);
    }
    void photosAreThoseOfTheDecoder()
    {
        QFETCH(QByteArray, file);
        const QByteArray path = write("photo", file);
        const LoadedPhoto expected = loadPhoto(path);
        // A process that waited has all decoders there, and one that is asked at once only those that it needs.
        for (const PhotoReader::Reads reads : {PhotoReader::Reads::Many, PhotoReader::Reads::One}) {
            PhotoReader reader(reads);
            const LoadedPhoto photo = read(reader, path);
            QCOMPARE(reader.end(), End::Answered);
            QCOMPARE(photo.reason, expected.reason);
            QCOMPARE(photo.image, expected.image);
            QCOMPARE(photo.image.format(), expected.image.format());
            QCOMPARE(photo.image.colorSpace(), expected.image.colorSpace());
            QCOMPARE(photo.restIsMissing, expected.restIsMissing);
            QVERIFY(photo.metadata == expected.metadata);
        }
    }

    void whatCannotBeOpenedIsRefused()
    {
        PhotoReader reader;
        for (const QByteArray& path :
            {QByteArray("/nowhere"), QByteArray("/"), QByteArray("/dev/zero"), write("empty", "")})
            QCOMPARE(read(reader, path).reason, loadPhoto(path).reason);
        QVERIFY(!read(reader, write("photo", samples::encoded(samples::noise(3, 2), "png"))).image.isNull());
    }

    void thePictureIsNotCopied()
    {
        PhotoReader reader;
        LoadedPhoto photo = read(reader, write("photo", samples::encoded(samples::noise(300, 200), "png")));
        QVERIFY(isShared(photo.image));
        const QImage kept = photo.image.copy();
        photo.image.setPixelColor(7, 5, Qt::red); // it can be worked on
        QVERIFY(isShared(photo.image));
        QVERIFY(photo.image != kept);
    }

    void thePictureOutlivesItsReader()
    {
        const QByteArray path = write("photo", samples::encoded(samples::noise(300, 200), "png"));
        QImage image;
        {
            PhotoReader reader;
            image = read(reader, path).image;
        }
        QCOMPARE(image, loadPhoto(path).image);
    }

    void eachPhotoHasAProcessOfItsOwn()
    {
        const QByteArray path = write("photo", samples::encoded(samples::noise(3, 2), "png"));
        PhotoReader reader;
        QTRY_COMPARE(startedProcesses().size(), 1);
        const QList<pid_t> first = startedProcesses();
        QVERIFY(!read(reader, path).image.isNull());
        QTRY_COMPARE(startedProcesses().size(), 1); // the former one has ended, the next one waits
        QVERIFY(startedProcesses() != first);
    }

    void noneIsLeftUnwaitedFor()
    {
        const QByteArray path = write("photo", samples::encoded(samples::noise(300, 200), "png"));
        PhotoReader reader;
        QVERIFY(!read(reader, path).image.isNull());
        QTRY_COMPARE(unwaitedProcesses().size(), 1); // the next one waits
        reader.begin(path);
        reader.cancel();
        QTRY_COMPARE(unwaitedProcesses().size(), 0);
    }

    void oneThatIsGoneIsReplaced()
    {
        PhotoReader reader;
        QTRY_COMPARE(startedProcesses().size(), 1);
        QVERIFY(kill(startedProcesses().first(), SIGKILL) == 0);
        QTRY_COMPARE(startedProcesses().size(), 0);
        QVERIFY(!read(reader, write("photo", samples::encoded(samples::noise(3, 2), "png"))).image.isNull());
    }

    void withoutTheProgramNothingIsRead()
    {
        PhotoReader::setProgram("/nowhere");
        PhotoReader reader;
        const LoadedPhoto photo = read(reader, write("photo", samples::encoded(samples::noise(3, 2), "png")));
        QVERIFY(photo.image.isNull());
        QVERIFY(photo.reason.contains("cannot be started"));
        QCOMPARE(reader.end(), End::NotStarted);
    }

    void aProgramThatIsNoReaderIsRefused()
    {
        for (const char* program : {"/bin/true", "/bin/false"}) {
            PhotoReader::setProgram(program);
            PhotoReader reader;
            QVERIFY(!read(reader, write("photo", samples::encoded(samples::noise(3, 2), "png"))).reason.isEmpty());
            QVERIFY(reader.end() == End::BrokeDown || reader.end() == End::NotStarted);
        }
    }

    void harmIsARefusedFile_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<End>("end");
        QTest::newRow("breaks down") << QByteArray("HARM break") << End::BrokeDown;
        QTest::newRow("never ends") << QByteArray("HARM loop") << End::TookTooLong;
        QTest::newRow("takes all memory") << QByteArray("HARM memory") << End::Answered; // the decoder was told no
        QTest::newRow("takes all memory for its header") << QByteArray("HARM header memory") << End::Answered;
        QTest::newRow("waits for ever in its header") << QByteArray("HARM header wait") << End::TookTooLong;
        QTest::newRow("opens a file") << QByteArray("HARM file") << End::TriedFiles;
        QTest::newRow("opens a socket") << QByteArray("HARM socket") << End::TriedNetwork;
    }
    void harmIsARefusedFile()
    {
        QFETCH(QByteArray, file);
        QFETCH(End, end);
        PhotoReader::setProgram(HARMFUL_READER);
        PhotoReader reader;
        reader.begin(write("photo", file));
        QVERIFY(reader.isDone(longest));
        const LoadedPhoto photo = reader.take();
        QVERIFY(photo.image.isNull());
        QCOMPARE(reader.end(), end);
        m_reasons << photo.reason;
        QVERIFY(!read(reader, write("photo", "HARM none")).image.isNull()); // the next one is none the worse
    }
    void eachHarmHasItsReason()
    {
        QCOMPARE(m_reasons.size(), 7);
        QVERIFY(!m_reasons.contains(QString()));
        QCOMPARE(QSet<QString>(m_reasons.begin(), m_reasons.end()).size(), 5); // two of them in two places
    }

    void whatNobodyWatchesEndsItself()
    {
        PhotoReader::setProgram(HARMFUL_READER);
        PhotoReader reader;
        reader.begin(write("photo", "HARM loop"));
        pollfd ended = {reader.descriptor(), POLLIN, 0};
        QCOMPARE(poll(&ended, 1, longest), 1);
        QVERIFY(reader.take().image.isNull());
        QCOMPARE(reader.end(), End::TookTooLong);
    }

    void readingCanBeCancelled()
    {
        PhotoReader::setProgram(HARMFUL_READER);
        PhotoReader reader;
        reader.begin(write("photo", "HARM loop"));
        QVERIFY(!reader.isDone(50));
        QVERIFY(reader.descriptor() >= 0);
        reader.cancel();
        QVERIFY(reader.isDone());
        QCOMPARE(reader.descriptor(), -1);
        QVERIFY(reader.take().image.isNull());
        QCOMPARE(reader.end(), End::Cancelled);
        QTRY_COMPARE(startedProcesses().size(), 1); // the one that waits
    }

    void anotherPhotoCancelsTheFormer()
    {
        PhotoReader::setProgram(HARMFUL_READER);
        PhotoReader reader;
        reader.begin(write("photo", "HARM loop"));
        QVERIFY(!read(reader, write("photo", "HARM none")).image.isNull());
    }

    void noProcessIsLeft()
    {
        {
            PhotoReader::setProgram(HARMFUL_READER);
            PhotoReader reader;
            reader.begin(write("photo", "HARM loop"));
        }
        QTRY_COMPARE(startedProcesses().size(), 0);
    }

private:
    QStringList m_reasons;
};

QTEST_GUILESS_MAIN(PhotoReaderTest)
#include "PhotoReaderTest.moc"
