// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/photo/Samples.h"
#include "tests/photo/TiffSample.h"

#include <QColorSpace>
#include <QTest>
#include <cmath>
#include <lcms2.h>

namespace {

using samples::JpegKind;

const QRgb tones[] = {qRgb(200, 100, 50), qRgb(128, 128, 128), qRgb(60, 120, 90), qRgb(20, 30, 160),
    qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(0, 255, 0), qRgb(250, 10, 10)};

double fromSRgb(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double fromAdobe(double value)
{
    return std::pow(value, 563.0 / 256.0);
}

int toSRgbByte(double linear)
{
    linear = std::clamp(linear, 0.0, 1.0);
    return qRound(255 * (linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055));
}

/// The published conversion: to linear light, through the primaries' matrix to XYZ and from there to sRGB.
QRgb converted(QRgb colour, double (*curve)(double), const double (&toXyz)[3][3])
{
    static constexpr double fromXyz[3][3] = {
        {3.2404542, -1.5371385, -0.4985314}, {-0.9692660, 1.8760108, 0.0415560}, {0.0556434, -0.2040259, 1.0572252}};
    const double linear[3] = {curve(qRed(colour) / 255.0), curve(qGreen(colour) / 255.0), curve(qBlue(colour) / 255.0)};
    double xyz[3] = {}, rgb[3] = {};
    for (int i = 0; i < 3; i++)
        for (int j = 0; j < 3; j++)
            xyz[i] += toXyz[i][j] * linear[j];
    for (int i = 0; i < 3; i++)
        for (int j = 0; j < 3; j++)
            rgb[i] += fromXyz[i][j] * xyz[j];
    return qRgb(toSRgbByte(rgb[0]), toSRgbByte(rgb[1]), toSRgbByte(rgb[2]));
}

QRgb fromAdobeRgb(QRgb colour)
{
    return converted(colour, fromAdobe,
        {{0.5767309, 0.1855540, 0.1881852}, {0.2973769, 0.6273491, 0.0752741}, {0.0270343, 0.0706872, 0.9911085}});
}

QRgb fromDisplayP3(QRgb colour)
{
    return converted(colour, fromSRgb,
        {{0.4865709, 0.2656677, 0.1982173}, {0.2289746, 0.6917385, 0.0792869}, {0.0, 0.0451134, 1.0439444}});
}

QByteArray saved(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(qsizetype(size), 0);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

/// A profile that says in a table, as scanners' profiles do, that red and blue are exchanged.
QByteArray profileOfTables()
{
    const auto exchange = [](const cmsUInt16Number* in, cmsUInt16Number* out, void* cargo) {
        const cmsUInt16Number rgb[3] = {in[2], in[1], in[0]};
        cmsDoTransform(cargo, rgb, out, 1);
        return TRUE;
    };
    cmsHPROFILE sRgb = cmsCreate_sRGBProfile(), lab = cmsCreateLab4Profile(nullptr);
    cmsHTRANSFORM toLab = cmsCreateTransform(sRgb, TYPE_RGB_16, lab, TYPE_Lab_16, INTENT_PERCEPTUAL, 0);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, 33, 3, 3, nullptr);
    cmsStageSampleCLut16bit(table, exchange, toLab, 0);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 3, 3);
    for (cmsStage* stage : {cmsStageAllocToneCurves(nullptr, 3, nullptr), table,
             cmsStageAllocToneCurves(nullptr, 3, nullptr)}) // which leave the values alone
        cmsPipelineInsertStage(pipeline, cmsAT_END, stage);
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigInputClass);
    cmsSetColorSpace(profile, cmsSigRgbData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsPipelineFree(pipeline);
    cmsDeleteTransform(toLab);
    cmsCloseProfile(sRgb);
    cmsCloseProfile(lab);
    return saved(profile);
}

/// A table of the profile, from inks to Lab; `paint` tells the sRGB of a colour of four inks, all on 0 .. 1.
void writeInks(cmsHPROFILE profile, cmsTagSignature tag, void (*paint)(const double (&inks)[4], double (&rgb)[3]))
{
    struct Cargo {
        decltype(paint) colourOf;
        cmsHTRANSFORM toLab;
    };
    const auto sample = [](const cmsUInt16Number* in, cmsUInt16Number* out, void* data) {
        const auto* cargo = static_cast<const Cargo*>(data);
        const double inks[4] = {in[0] / 65535.0, in[1] / 65535.0, in[2] / 65535.0, in[3] / 65535.0};
        double rgb[3];
        cargo->colourOf(inks, rgb);
        cmsDoTransform(cargo->toLab, rgb, out, 1);
        return TRUE;
    };
    cmsHPROFILE sRgb = cmsCreate_sRGBProfile(), lab = cmsCreateLab4Profile(nullptr);
    Cargo cargo = {paint, cmsCreateTransform(sRgb, TYPE_RGB_DBL, lab, TYPE_Lab_16, INTENT_RELATIVE_COLORIMETRIC, 0)};
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, 9, 4, 3, nullptr);
    cmsStageSampleCLut16bit(table, sample, &cargo, 0);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 4, 3);
    for (cmsStage* stage :
        {cmsStageAllocToneCurves(nullptr, 4, nullptr), table, cmsStageAllocToneCurves(nullptr, 3, nullptr)})
        cmsPipelineInsertStage(pipeline, cmsAT_END, stage);
    cmsWriteTag(profile, tag, pipeline);
    cmsPipelineFree(pipeline);
    cmsDeleteTransform(cargo.toLab);
    cmsCloseProfile(sRgb);
    cmsCloseProfile(lab);
}

/// A press whose red of magenta and yellow is (237, 51, 55) and whose black is (51, 51, 51). Its perceptual colours are
/// all grey.
QByteArray pressProfile()
{
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 4.3);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsWriteTag(profile, cmsSigMediaWhitePointTag, cmsD50_XYZ());
    writeInks(profile, cmsSigAToB0Tag, [](const double(&)[4], double(&rgb)[3]) { std::ranges::fill(rgb, 0.5); });
    writeInks(profile, cmsSigAToB1Tag, [](const double(&inks)[4], double(&rgb)[3]) {
        const auto [cyan, magenta, yellow, black] = inks;
        rgb[0] = (1 - cyan) * (1 - magenta * 18 / 255) * (1 - black * 0.8);
        rgb[1] = (1 - cyan * 0.3) * (1 - magenta * 0.8) * (1 - black * 0.8);
        rgb[2] = (1 - cyan * 0.1) * (1 - yellow * 200 / 255) * (1 - black * 0.8);
    });
    return saved(profile);
}

QByteArray greyProfile(double gamma)
{
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    const QByteArray profile = saved(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    return profile;
}

QByteArray repeated(std::initializer_list<int> bytes, int count)
{
    QByteArray pixel;
    for (const int byte : bytes)
        pixel += char(byte);
    return pixel.repeated(count);
}

} // namespace

class ColorTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QImage load(const QByteArray& data)
    {
        const LoadedPhoto photo = samples::loaded(m_folder, data);
        if (!photo.reason.isEmpty())
            qWarning("%s", qPrintable(photo.reason));
        return photo.image;
    }

    void compare(const QImage& image, int x, int y, QRgb wanted, int tolerance)
    {
        const QRgb pixel = image.pixel(x, y);
        const bool near = std::abs(qRed(pixel) - qRed(wanted)) <= tolerance
            && std::abs(qGreen(pixel) - qGreen(wanted)) <= tolerance
            && std::abs(qBlue(pixel) - qBlue(wanted)) <= tolerance && image.constScanLine(y)[4 * x + 3] == 255;
        const QString values = QStringLiteral("%1 for %2").arg(pixel, 8, 16).arg(wanted, 8, 16);
        QVERIFY2(near, qPrintable(values));
    }

private slots:
    void rgbProfilesAreConverted_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<bool>("adobe");
        QTest::addColumn<int>("tone");
        for (const char* format : {"png", "jpeg", "tiff"})
            for (const bool adobe : {true, false})
                for (int tone = 0; tone < int(std::size(tones)); tone++)
                    QTest::addRow("%s, %s, %06x", format, adobe ? "Adobe RGB" : "Display P3", tones[tone] & 0xFFFFFF)
                        << QByteArray(format) << adobe << tone;
    }
    void rgbProfilesAreConverted()
    {
        QFETCH(QByteArray, format);
        QFETCH(bool, adobe);
        QFETCH(int, tone);
        QImage source = samples::flat(16, 16, QColor(tones[tone]));
        source.setColorSpace(adobe ? QColorSpace::AdobeRgb : QColorSpace::DisplayP3);
        const QImage image = load(samples::encoded(source, format.constData()));
        const QRgb wanted = adobe ? fromAdobeRgb(tones[tone]) : fromDisplayP3(tones[tone]);
        compare(image, 8, 8, wanted, format == "jpeg" ? 4 : 2);
        QCOMPARE(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }

    void sRgbAndUnmarkedPhotosKeepTheirBytes()
    {
        QImage source = samples::noise(40, 30);
        QCOMPARE(samples::largestDifference(load(samples::encoded(source, "png")), source), 0);
        source.setColorSpace(QColorSpace::SRgb);
        QCOMPARE(samples::largestDifference(load(samples::encoded(source, "png")), source), 0);
    }

    void displayGammaAloneMeansSRgb()
    {
        QImage source = samples::noise(40, 30);
        QByteArray file = samples::encoded(source, "png");
        file.insert(33, samples::pngChunk("gAMA", samples::bigEndian(quint32(45455)))); // after the header
        QCOMPARE(samples::largestDifference(load(file), source), 0);
    }

    void otherGammaIsConverted_data()
    {
        QTest::addColumn<quint32>("gamma"); // its inverse, in hundred thousandths
        QTest::addColumn<int>("tone"); // of 64
        QTest::newRow("linear") << quint32(100000) << 137; // a quarter of the light
        QTest::newRow("1.8, of printers") << quint32(55556) << 81;
    }
    void otherGammaIsConverted()
    {
        QFETCH(quint32, gamma);
        QFETCH(int, tone);
        QByteArray file = samples::encoded(samples::flat(2, 2, QColor(64, 64, 64)), "png");
        file.insert(33, samples::pngChunk("gAMA", samples::bigEndian(gamma)));
        compare(load(file), 0, 0, qRgb(tone, tone, tone), 1);
    }

    void paletteWithAProfile()
    {
        QImage source(2, 1, QImage::Format_Indexed8);
        source.setColorTable({tones[0], tones[2]});
        source.setPixel(0, 0, 0);
        source.setPixel(1, 0, 1);
        source.setColorSpace(QColorSpace::DisplayP3);
        const QImage image = load(samples::encoded(source, "png"));
        compare(image, 0, 0, fromDisplayP3(tones[0]), 2);
        compare(image, 1, 0, fromDisplayP3(tones[2]), 2);
    }

    void transparentWithAProfile()
    {
        QImage source(2, 1, QImage::Format_ARGB32);
        source.setPixel(0, 0, qRgba(0, 0, 0, 0));
        source.setPixel(1, 0, tones[0]);
        source.setColorSpace(QColorSpace::DisplayP3);
        const QImage image = load(samples::encoded(source, "png"));
        compare(image, 0, 0, qRgb(255, 255, 255), 0);
        compare(image, 1, 0, fromDisplayP3(tones[0]), 2);
    }

    void profileOfTablesIsConverted()
    {
        const QImage image =
            load(samples::jpeg(JpegKind::Colour, 16, 16, repeated({200, 100, 50}, 256), profileOfTables()));
        compare(image, 8, 8, qRgb(50, 100, 200), 6);
        QCOMPARE(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }

    void brokenProfileIsLeftOut_data()
    {
        QTest::addColumn<QByteArray>("profile");
        QTest::newRow("nonsense") << QByteArray(300, 'x');
        QTest::newRow("half of one") << profileOfTables().left(500);
        QTest::newRow("of CMYK") << saved(cmsCreateInkLimitingDeviceLink(cmsSigCmykData, 300));
        QByteArray emptied = profileOfTables();
        emptied.replace(200, 3000, QByteArray(3000, char(0xFF)));
        QTest::newRow("overwritten") << emptied;
    }
    void brokenProfileIsLeftOut()
    {
        QFETCH(QByteArray, profile);
        const QImage image = load(samples::jpeg(JpegKind::Colour, 16, 16, repeated({200, 100, 50}, 256), profile));
        compare(image, 8, 8, qRgb(200, 100, 50), 3);
    }

    void greyWithAProfile()
    {
        const QImage image = load(samples::jpeg(JpegKind::Grey, 16, 16, QByteArray(256, 64), greyProfile(1.0)));
        compare(image, 8, 8, qRgb(137, 137, 137), 2); // a quarter of the light
        compare(load(samples::jpeg(JpegKind::Grey, 16, 16, QByteArray(256, 64))), 8, 8, qRgb(64, 64, 64), 1);
    }

    void greyWithAnRgbProfile()
    {
        const QByteArray profile = QColorSpace(QColorSpace::SRgbLinear).iccProfile();
        const QImage image = load(samples::jpeg(JpegKind::Grey, 16, 16, QByteArray(256, 64), profile));
        compare(image, 8, 8, qRgb(137, 137, 137), 2);
    }

    void cmykIsUpright_data()
    {
        QTest::addColumn<QByteArray>("pixel"); // 255 minus each ink, as the files of layout programs hold them
        QTest::addColumn<QColor>("colour");
        QTest::newRow("paper") << repeated({255, 255, 255, 255}, 1) << QColor(255, 255, 255);
        QTest::newRow("black") << repeated({255, 255, 255, 0}, 1) << QColor(0, 0, 0);
        QTest::newRow("cyan") << repeated({0, 255, 255, 255}, 1) << QColor(0, 255, 255);
        QTest::newRow("magenta and yellow") << repeated({255, 0, 0, 255}, 1) << QColor(255, 0, 0);
        QTest::newRow("half of it black") << repeated({255, 255, 255, 128}, 1) << QColor(128, 128, 128);
    }
    void cmykIsUpright()
    {
        QFETCH(QByteArray, pixel);
        QFETCH(QColor, colour);
        const QImage image = load(samples::jpeg(JpegKind::Cmyk, 16, 16, pixel.repeated(256)));
        compare(image, 8, 8, colour.rgb(), 3);
    }

    void inksWithAProfile_data()
    {
        QTest::addColumn<bool>("asColours");
        QTest::addColumn<QByteArray>("pixel"); // 255 minus each ink
        QTest::addColumn<QColor>("colour");
        for (const bool asColours : {false, true}) {
            const auto row = [asColours](const char* name, std::initializer_list<int> pixel, const QColor& colour) {
                QTest::addRow("%s, %s", asColours ? "YCCK" : "CMYK", name) << asColours << repeated(pixel, 1) << colour;
            };
            row("paper", {255, 255, 255, 255}, QColor(255, 255, 255));
            row("red", {255, 0, 0, 255}, QColor(237, 51, 55));
            row("cyan", {0, 255, 255, 255}, QColor(0, 179, 230));
            row("black", {255, 255, 255, 0}, QColor(51, 51, 51));
        }
    }
    void inksWithAProfile()
    {
        QFETCH(bool, asColours);
        QFETCH(QByteArray, pixel);
        QFETCH(QColor, colour);
        const QByteArray profile = pressProfile();
        QVERIFY(!profile.isEmpty());
        const auto kind = asColours ? JpegKind::Ycck : JpegKind::Cmyk;
        const QImage image = load(samples::jpeg(kind, 16, 16, pixel.repeated(256), profile));
        compare(image, 8, 8, colour.rgb(), 3);
        QCOMPARE(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }

    void tiffOfInks_data()
    {
        QTest::addColumn<int>("bits");
        QTest::addColumn<bool>("planar");
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<QColor>("red"); // of magenta and yellow
        QTest::newRow("8 bits") << 8 << false << pressProfile() << QColor(237, 51, 55);
        QTest::newRow("8 bits in planes") << 8 << true << pressProfile() << QColor(237, 51, 55);
        QTest::newRow("16 bits") << 16 << false << pressProfile() << QColor(237, 51, 55);
        QTest::newRow("no profile") << 8 << false << QByteArray() << QColor(255, 0, 0);
        QTest::newRow("half of one") << 8 << false << pressProfile().left(2000) << QColor(255, 0, 0);
    }
    void tiffOfInks()
    {
        QFETCH(int, bits);
        QFETCH(bool, planar);
        QFETCH(QByteArray, profile);
        QFETCH(QColor, red);
        constexpr int count = 16 * 16, inks = 5;
        QList<samples::TiffEntry> entries = samples::tiffPicture(16, 16, bits, 4, inks, planar);
        if (!profile.isEmpty())
            entries << samples::TiffEntry{34675, 7, quint32(profile.size()), profile};
        const auto sample = [bits](int ink) { return QByteArray(bits / 8, char(ink)); };
        QList<QByteArray> strips;
        if (planar)
            for (const int ink : {0, 255, 255, 0})
                strips << sample(ink).repeated(count);
        else
            strips << (sample(0) + sample(255) + sample(255) + sample(0)).repeated(count);
        const QImage image = load(samples::tiff(entries, strips));
        compare(image, 8, 8, red.rgb(), 3);
        QCOMPARE(image.format(), QImage::Format_RGBX8888);
        QCOMPARE(image.colorSpace(), QColorSpace(QColorSpace::SRgb));
    }

    void inksWithAProfileOfOthersStayAsTheyAre()
    {
        for (const QByteArray& profile : {QByteArray(300, 'x'), pressProfile().left(2000), greyProfile(1.0)}) {
            const QImage image = load(samples::jpeg(JpegKind::Cmyk, 16, 16, repeated({255, 0, 0, 255}, 256), profile));
            compare(image, 8, 8, qRgb(255, 0, 0), 3);
        }
    }

    void sixteenBitsBecomeEight()
    {
        QImage source(3, 1, QImage::Format_RGBX64);
        for (int x = 0; x < 3; x++)
            source.setPixelColor(x, 0, QColor::fromRgba64(quint16(257 * 10 * x), quint16(257 * 100), quint16(65535)));
        const QByteArray file = samples::encoded(source, "png");
        QCOMPARE(int(file[24]), 16); // the header's bit depth
        const QImage image = load(file);
        for (int x = 0; x < 3; x++)
            compare(image, x, 0, qRgb(10 * x, 100, 255), 0);
    }

    void sixteenBitsWithAProfile()
    {
        QImage source(1, 1, QImage::Format_RGBX64);
        source.fill(QColor(tones[0]));
        source.setColorSpace(QColorSpace::AdobeRgb);
        compare(load(samples::encoded(source, "png")), 0, 0, fromAdobeRgb(tones[0]), 2);
    }

    void greysOfEveryDepth_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("1 bit") << int(QImage::Format_Mono);
        QTest::newRow("8 bits") << int(QImage::Format_Grayscale8);
        QTest::newRow("16 bits") << int(QImage::Format_Grayscale16);
    }
    void greysOfEveryDepth()
    {
        QFETCH(int, format);
        QImage source = samples::flat(16, 2, Qt::black);
        for (int x = 8; x < 16; x++)
            for (int y = 0; y < 2; y++)
                source.setPixel(x, y, 0xFFFFFFFF);
        const QImage image =
            load(samples::encoded(source.convertToFormat(QImage::Format(format), Qt::MonoOnly), "png"));
        QCOMPARE(samples::largestDifference(image, source), 0);
        QImage grey = samples::flat(4, 4, QColor(77, 77, 77));
        if (format != QImage::Format_Mono)
            QCOMPARE(samples::largestDifference(
                         load(samples::encoded(grey.convertToFormat(QImage::Format(format)), "png")), grey),
                0);
    }

    void transparencyLiesOnWhite_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("8 bits") << int(QImage::Format_ARGB32);
        QTest::newRow("16 bits") << int(QImage::Format_RGBA64);
    }
    void transparencyLiesOnWhite()
    {
        QFETCH(int, format);
        QImage source(3, 1, QImage::Format_ARGB32);
        source.setPixel(0, 0, qRgba(10, 20, 30, 0));
        source.setPixel(1, 0, qRgba(200, 100, 50, 51)); // a fifth
        source.setPixel(2, 0, qRgba(200, 100, 50, 255));
        for (const char* kind : {"png", "webp", "tiff"}) {
            const QImage image = load(samples::encoded(source.convertToFormat(QImage::Format(format)), kind));
            compare(image, 0, 0, qRgb(255, 255, 255), 0);
            compare(image, 1, 0, qRgb(244, 224, 214), 2);
            compare(image, 2, 0, qRgb(200, 100, 50), 0);
        }
    }

    void transparentColourOfAPalette()
    {
        QImage source(2, 1, QImage::Format_Indexed8);
        source.setColorTable({qRgba(0, 0, 0, 0), qRgb(9, 8, 7)});
        source.setPixel(0, 0, 0);
        source.setPixel(1, 0, 1);
        const QImage image = load(samples::encoded(source, "png"));
        compare(image, 0, 0, qRgb(255, 255, 255), 0);
        compare(image, 1, 0, qRgb(9, 8, 7), 0);
    }
};

QTEST_GUILESS_MAIN(ColorTest)
#include "ColorTest.moc"
