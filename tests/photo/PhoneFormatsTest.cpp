#include "tests/photo/PhoneSamples.h"
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QColorSpace>
#include <QTest>
#include <QTransform>
#include <dlfcn.h>
#include <pthread.h>
#include <utility>

// HEIC, AVIF, JPEG XL and raw photos. Where this program is built without the library for one, it says so.

namespace {

bool threadsAreCounted = false;
int threads = 0;

/// A file of the kind with that picture; `kind`: 0 HEIC, 1 AVIF, 2 JPEG XL. Empty without the library.
QByteArray encoded(int kind, const QImage& picture, int orientation = 1)
{
    return kind == 2 ? samples::jxl(picture, orientation)
                     : samples::heif(picture, samples::HeifKind(kind), orientation);
}

/// The head of such a file, enough to tell its kind.
QByteArray headOf(int kind)
{
    const QByteArray heads[] = {QByteArray("\0\0\0\x18"
                                           "ftypheic\0\0\0\0mif1heic",
                                    24),
        QByteArray("\0\0\0\x18"
                   "ftypavif\0\0\0\0mif1avif",
            24),
        QByteArray("\xFF\x0A", 2) + QByteArray(30, '\0'), samples::dng(QSize(2, 2), {1, 1, 1}, {1, 1, 1})};
    return heads[kind];
}

constexpr bool hasLibrary[] = {
#ifdef LUMORA_HEIF
    true,
    true,
#else
    false,
    false,
#endif
#ifdef LUMORA_JXL
    true,
#else
    false,
#endif
#ifdef LUMORA_RAW
    true,
#else
    false,
#endif
};
constexpr const char* names[] = {"HEIC", "AVIF", "JPEG XL", "raw"};

void eachKind(int kinds)
{
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < kinds; kind++)
        QTest::newRow(names[kind]) << kind;
}

int grey(const QImage& image, int x, int y)
{
    return qGray(image.pixel(x, y));
}

} // namespace

/// Takes the place of the C library's, to see who begins threads.
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*), void* argument)
{
    using Create = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "pthread_create"));
    threads += threadsAreCounted;
    return create(thread, attributes, run, argument);
}

class PhoneFormatsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    LoadedPhoto open(const QByteArray& file)
    {
        threadsAreCounted = true;
        const LoadedPhoto photo = samples::loaded(m_folder, file);
        threadsAreCounted = false;
        return photo;
    }

private slots:
    void cleanup() { QCOMPARE(std::exchange(threads, 0), 0); }

    void withoutItsLibraryAFileIsRefusedWithAReason_data() { eachKind(4); }
    void withoutItsLibraryAFileIsRefusedWithAReason()
    {
        QFETCH(int, kind);
        const QString reason = open(headOf(kind)).reason;
        QCOMPARE(reason.contains("This Lumora was built without"), !hasLibrary[kind]);
    }

    void everyPictureOpensUpright_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("orientation");
        for (int kind = 0; kind < 3; kind++)
            for (int orientation : {1, 3, 6, 8})
                if (hasLibrary[kind])
                    QTest::addRow("%s, %d", names[kind], orientation) << kind << orientation;
    }
    void everyPictureOpensUpright()
    {
        QFETCH(int, kind);
        QFETCH(int, orientation);
        const QImage upright = samples::quarters(96, 64);
        const int turns = orientation == 3 ? 180 : orientation == 6 ? -90 : orientation == 8 ? 90 : 0;
        const QImage stored = upright.transformed(QTransform().rotate(turns));
        const LoadedPhoto photo = open(encoded(kind, stored, orientation));
        QCOMPARE(photo.reason, QString());
        QVERIFY(samples::showsQuarters(photo.image, upright.size()));
        if (kind == 2)
            QCOMPARE(samples::largestDifference(photo.image, upright), 0);
    }

    void transparencyLiesOnWhite_data() { eachKind(3); }
    void transparencyLiesOnWhite()
    {
        QFETCH(int, kind);
        if (!hasLibrary[kind])
            return;
        QImage picture(64, 64, QImage::Format_RGBA8888);
        picture.fill(QColor(200, 100, 50, 51));
        const LoadedPhoto photo = open(encoded(kind, picture));
        if (kind == 1)
            threads = 0; // libheif does not choose the decoder of an AVIF's transparency by its name
        QVERIFY(samples::largestDifference(photo.image, samples::flat(64, 64, QColor(244, 224, 214))) <= 3);
    }

    void profilesAreConverted_data() { eachKind(3); }
    void profilesAreConverted()
    {
        QFETCH(int, kind);
        if (!hasLibrary[kind])
            return;
        QImage picture = samples::flat(64, 64, QColor(64, 64, 64));
        picture.setColorSpace(QColorSpace::SRgbLinear);
        const LoadedPhoto photo = open(encoded(kind, picture));
        QVERIFY(samples::largestDifference(photo.image, samples::flat(64, 64, QColor(137, 137, 137))) <= 3);
    }

    void aCutFileIsRefused_data() { eachKind(3); }
    void aCutFileIsRefused()
    {
        QFETCH(int, kind);
        const QByteArray file = encoded(kind, samples::noise(48, 48));
        for (qsizetype size = 1; size < file.size() - 8; size += 1 + file.size() / 40) {
            const LoadedPhoto photo = open(file.first(size));
            QVERIFY2(photo.image.isNull(), qPrintable(QString::number(size)));
            QVERIFY(!photo.reason.isEmpty());
        }
    }

    void aBombIsRefusedAtOnce()
    {
        QByteArray file = encoded(0, samples::quarters(64, 64));
        for (qsizetype at = file.indexOf("ispe"); at >= 0; at = file.indexOf("ispe", at + 4))
            file.replace(at + 8, 8, samples::bigEndian(quint32(20000)) + samples::bigEndian(quint32(20000)));
        if (!file.isEmpty())
            QVERIFY2(open(file).reason.startsWith("The picture is too large: 20000 x 20000 pixels."),
                qPrintable(open(file).reason));
    }

    void aPictureThatIsMadeOfItselfIsRefused()
    {
        // The transparency, a grid as the picture itself, has the picture in place of its tile.
        QImage picture(32, 24, QImage::Format_RGBA8888);
        picture.fill(QColor(200, 100, 50, 51));
        QByteArray file = encoded(0, picture);
        if (file.isEmpty())
            return;
        const qsizetype tile = file.indexOf(QByteArray("dimg\0\4\0\1\0\3", 10));
        QVERIFY(tile > 0);
        file.replace(tile, 10, QByteArray("dimg\0\4\0\1\0\2", 10));
        QVERIFY(open(file).reason.contains("damaged"));
    }

    void rawPhotosAreDevelopedUprightAndWithTheWhiteOfTheMoment()
    {
        if (!hasLibrary[3])
            return;
        // A grey under light of which the sensor sees half as much red, and as much blue again as half the green.
        const QList<double> neutral = {0.5, 1, 0.5};
        const LoadedPhoto photo = open(samples::dng(QSize(96, 64), {0.2, 0.4, 0.2}, neutral, 6));
        QCOMPARE(photo.reason, QString());
        QCOMPARE(photo.image.size(), QSize(64, 96));
        const QColor middle = photo.image.pixelColor(32, 48);
        QVERIFY(std::abs(middle.red() - middle.green()) <= 2 && std::abs(middle.blue() - middle.green()) <= 2);
        QVERIFY(grey(photo.image, 32, 48) > 100);
    }

    void aRawPhotoThatClaimsTooMuchIsRefused()
    {
        if (!hasLibrary[3])
            return;
        QByteArray file = samples::dng(QSize(60000, 2), {0.2, 0.4, 0.2}, {1, 1, 1});
        const qsizetype height = file.indexOf(QByteArray("\1\1\3\0\1\0\0\0\2\0\0\0", 12));
        QVERIFY(height > 0);
        file.replace(height + 8, 2, QByteArray("\x60\xEA", 2));
        QVERIFY(open(file).image.isNull());
    }

    void aTiffWithoutASensorsPicturesIsNoRawPhoto()
    {
        QList<samples::TiffEntry> entries = samples::tiffPicture(8, 8, 8, 3, 2);
        entries << samples::text(271, "Prism");
        const LoadedPhoto photo = open(samples::tiff(entries, {QByteArray(192, 'x')}));
        QCOMPARE(photo.image.size(), QSize(8, 8));
        QCOMPARE(photo.image.pixelColor(4, 4), QColor('x', 'x', 'x'));
    }
};

QTEST_GUILESS_MAIN(PhoneFormatsTest)
#include "PhoneFormatsTest.moc"
