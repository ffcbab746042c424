// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/ScreenColors.h"

#include <QTest>
#include <algorithm>
#include <array>
#include <cmath>
#include <lcms2.h>
#include <random>

namespace {

QByteArray saved(cmsHPROFILE profile)
{
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(qsizetype(size), 0);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

/// A screen of those primaries and that curve, which it takes.
QByteArray screen(
    const cmsCIExyYTRIPLE& primaries, cmsToneCurve* curve, cmsProfileClassSignature kind = cmsSigDisplayClass)
{
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    cmsToneCurve* curves[] = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsSetDeviceClass(profile, kind);
    cmsFreeToneCurve(curve);
    return saved(profile);
}

QByteArray screen(const cmsCIExyYTRIPLE& primaries, double gamma, cmsProfileClassSignature kind = cmsSigDisplayClass)
{
    return screen(primaries, cmsBuildGamma(nullptr, gamma), kind);
}

const cmsCIExyYTRIPLE p3 = {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}};
const cmsCIExyYTRIPLE pale = {{0.60, 0.34, 1}, {0.32, 0.56, 1}, {0.16, 0.09, 1}};

/// A measured curve in steps; where it should be dark, a screen may still shine so much.
cmsToneCurve* measuredCurve(double dark = 0)
{
    std::array<cmsUInt16Number, 256> values;
    for (int i = 0; i < 256; i++)
        values[i] = cmsUInt16Number(std::lround(65535 * (dark + (1 - dark) * std::pow(i / 255.0, 2.35))));
    return cmsBuildTabulatedToneCurve16(nullptr, 256, values.data());
}

/// sRGB but for its red and its blue, which are exchanged.
QByteArray exchangingScreen()
{
    const cmsCIExyYTRIPLE primaries = {{0.15, 0.06, 1}, {0.30, 0.60, 1}, {0.64, 0.33, 1}};
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    const double parameters[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    cmsToneCurve* curve = cmsBuildParametricToneCurve(nullptr, 4, parameters);
    cmsToneCurve* curves[] = {curve, curve, curve};
    cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsFreeToneCurve(curve);
    return saved(profile);
}

/// The screen `like` says in tables what it shows; what it says in primaries is another's.
QByteArray screenOfTables(const QByteArray& like)
{
    const auto sample = [](const cmsUInt16Number* in, cmsUInt16Number* out, void* cargo) {
        cmsDoTransform(cargo, in, out, 1);
        return TRUE;
    };
    cmsHPROFILE screen = cmsOpenProfileFromMem(like.constData(), cmsUInt32Number(like.size())),
                lab = cmsCreateLab4Profile(nullptr);
    cmsHTRANSFORM fromLab =
        cmsCreateTransform(lab, TYPE_Lab_16, screen, TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, 33, 3, 3, nullptr);
    cmsStageSampleCLut16bit(table, sample, fromLab, 0);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 3, 3);
    for (cmsStage* stage : {cmsStageAllocToneCurves(nullptr, 3, nullptr), table,
             cmsStageAllocToneCurves(nullptr, 3, nullptr)}) // which leave the values alone
        cmsPipelineInsertStage(pipeline, cmsAT_END, stage);
    cmsHPROFILE profile = cmsCreate_sRGBProfile();
    cmsSetPCS(profile, cmsSigLabData);
    cmsWriteTag(profile, cmsSigBToA1Tag, pipeline);
    cmsPipelineFree(pipeline);
    cmsDeleteTransform(fromLab);
    cmsCloseProfile(lab);
    cmsCloseProfile(screen);
    return saved(profile);
}

/// One pixel for each of many colours of all kinds, and each grey.
QImage manyColours()
{
    QImage picture(256, 33, QImage::Format_ARGB32);
    std::mt19937 random(1);
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++) {
            const QRgb drawn = QRgb(random()), dark = drawn >> 3 & 0x1f1f1f;
            picture.setPixel(x, y, y == 0 ? qRgb(x, x, x) : 0xff000000 | (y < 9 ? dark : drawn));
        }
    return picture;
}

/// Little CMS itself, pixel by pixel.
QImage convertedFor(const QByteArray& icc, const QImage& picture)
{
    cmsHPROFILE sRgb = cmsCreate_sRGBProfile(),
                profile = cmsOpenProfileFromMem(icc.constData(), cmsUInt32Number(icc.size()));
    cmsHTRANSFORM transform = cmsCreateTransform(sRgb, TYPE_RGB_DBL, profile, TYPE_RGB_DBL,
        INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOOPTIMIZE);
    QImage converted = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++) {
            const QRgb pixel = picture.pixel(x, y);
            double rgb[] = {qRed(pixel) / 255.0, qGreen(pixel) / 255.0, qBlue(pixel) / 255.0};
            cmsDoTransform(transform, rgb, rgb, 1);
            const auto byte = [&](int i) { return qRound(255 * std::clamp(rgb[i], 0.0, 1.0)); };
            converted.setPixel(x, y, qRgb(byte(0), byte(1), byte(2)));
        }
    cmsDeleteTransform(transform);
    cmsCloseProfile(profile);
    cmsCloseProfile(sRgb);
    return converted;
}

struct Distance {
    int largest = 0;
    double mean = 0; ///< of all channels
};

Distance distance(const QImage& one, const QImage& other)
{
    Distance found;
    qint64 sum = 0;
    for (int y = 0; y < one.height(); y++)
        for (int x = 0; x < one.width(); x++) {
            const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
            for (const int apart : {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)}) {
                found.largest = qMax(found.largest, qAbs(apart));
                sum += qAbs(apart);
            }
        }
    found.mean = double(sum) / (3.0 * one.width() * one.height());
    return found;
}

} // namespace

class ScreenColorsTest : public QObject {
    Q_OBJECT

private slots:
    void coloursAreThoseOfTheProfile_data();
    void coloursAreThoseOfTheProfile();
    void aPixelIsTheSameWhereverItStands_data();
    void aPixelIsTheSameWhereverItStands();
    void exchangedPrimaries();
    void onlyScreensThatDiffer_data();
    void onlyScreensThatDiffer();
    void brokenProfilesDoNoHarm();
    void withoutColoursNothingChanges();
};

void ScreenColorsTest::coloursAreThoseOfTheProfile_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<int>("tolerance");
    QTest::newRow("P3, gamma 2.2") << screen(p3, 2.2) << 1;
    QTest::newRow("P3, gamma 1.8") << screen(p3, 1.8) << 1;
    QTest::newRow("a pale screen") << screen(pale, 2.2) << 1;
    // Little CMS turns the curve round in 4096 steps, which are wide in the darks.
    QTest::newRow("measured") << screen(p3, measuredCurve()) << 2;
    QTest::newRow("that shines in the dark") << screen(p3, measuredCurve(0.004)) << 2;
    QTest::newRow("P3, of tables") << screenOfTables(screen(p3, 2.2)) << 4;
    QTest::newRow("measured, of tables") << screenOfTables(screen(p3, measuredCurve())) << 4;
    // What such screens cannot show ends in an edge, which lies within cells of the table.
    QTest::newRow("exchanging, of tables") << screenOfTables(exchangingScreen()) << 20;
    QTest::newRow("pale, of tables") << screenOfTables(screen(pale, 2.2)) << 20;
}

void ScreenColorsTest::coloursAreThoseOfTheProfile()
{
    QFETCH(QByteArray, profile);
    QFETCH(int, tolerance);
    const auto colors = ScreenColors::of(profile);
    QVERIFY(colors);
    const QImage picture = manyColours(), shown = colors->shown(picture);
    QCOMPARE(shown.size(), picture.size());
    QCOMPARE(shown.format(), QImage::Format_RGB32);
    const Distance apart = distance(shown, convertedFor(profile, picture));
    QVERIFY2(apart.largest <= tolerance && apart.mean < 0.3,
        qPrintable(QStringLiteral("%1 at most, %2 in the mean").arg(apart.largest).arg(apart.mean)));
    QVERIFY(distance(picture, shown).largest > 8);
}

void ScreenColorsTest::aPixelIsTheSameWhereverItStands_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::newRow("primaries") << screen(p3, 2.2);
    QTest::newRow("tables") << screenOfTables(screen(pale, 2.2));
}

/// Pixels may be converted several at a time: a strip of three is narrower than that.
void ScreenColorsTest::aPixelIsTheSameWhereverItStands()
{
    QFETCH(QByteArray, profile);
    const auto colors = ScreenColors::of(profile);
    QVERIFY(colors);
    const QImage picture = manyColours(), shown = colors->shown(picture);
    for (int x = 0; x < picture.width(); x += 3) {
        const QRect strip = QRect(x, 0, 3, picture.height()) & picture.rect();
        QCOMPARE(colors->shown(picture.copy(strip)), shown.copy(strip));
    }
}

void ScreenColorsTest::exchangedPrimaries()
{
    const auto colors = ScreenColors::of(exchangingScreen());
    QVERIFY(colors);
    const QImage picture = manyColours();
    QVERIFY(distance(colors->shown(picture), picture.rgbSwapped()).largest <= 1);
    QImage corners(2, 1, QImage::Format_RGBA8888);
    corners.setPixel(0, 0, qRgb(255, 0, 0));
    corners.setPixel(1, 0, qRgb(255, 255, 255));
    const QImage shown = colors->shown(corners);
    QCOMPARE(shown.pixel(0, 0), qRgb(0, 0, 255));
    QCOMPARE(shown.pixel(1, 0), qRgb(255, 255, 255));
    QCOMPARE(corners.pixel(0, 0), qRgb(255, 0, 0)); // the caller's stays
}

void ScreenColorsTest::onlyScreensThatDiffer_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no profile") << QByteArray(4000, 'x');
    QTest::newRow("a scanner's") << screen(p3, 2.2, cmsSigInputClass);
    QTest::newRow("a printer's") << screen(p3, 2.2, cmsSigOutputClass);
    QTest::newRow("inks") << saved(cmsCreateInkLimitingDeviceLink(cmsSigCmykData, 300));
    QTest::newRow("Lab") << saved(cmsCreateLab4Profile(nullptr));
    QTest::newRow("too large") << screen(p3, 2.2) + QByteArray(8 << 20, 0);
    QTest::newRow("sRGB") << saved(cmsCreate_sRGBProfile());
    cmsHPROFILE empty = cmsCreateProfilePlaceholder(nullptr);
    cmsSetDeviceClass(empty, cmsSigDisplayClass);
    cmsSetColorSpace(empty, cmsSigRgbData);
    cmsSetPCS(empty, cmsSigXYZData);
    QTest::newRow("a screen without curves") << saved(empty);
}

void ScreenColorsTest::onlyScreensThatDiffer()
{
    QFETCH(QByteArray, profile);
    QVERIFY(!ScreenColors::of(profile));
}

/// What comes out of them is any colour or none at all; the sanitizers look on.
void ScreenColorsTest::brokenProfilesDoNoHarm()
{
    const QImage picture = manyColours().copy(0, 0, 256, 2);
    std::mt19937 random(2);
    for (const QByteArray& whole : {screen(p3, 2.2), screenOfTables(exchangingScreen())}) {
        for (int i = 0; i < 12; i++) // somewhere in the directory of its parts, or a little behind
            QVERIFY(!ScreenColors::of(whole.first(qsizetype(random() % 200))));
        for (int i = 0; i < 40; i++) {
            QByteArray broken = whole;
            for (int j = 0; j < 3; j++)
                broken[qsizetype(random() % std::min<qsizetype>(600, broken.size()))] = char(random());
            if (const auto colors = ScreenColors::of(broken))
                QCOMPARE(colors->shown(picture).size(), picture.size());
        }
    }
}

void ScreenColorsTest::withoutColoursNothingChanges()
{
    const QImage picture = manyColours();
    QCOMPARE(onScreen(picture, nullptr).cacheKey(), picture.cacheKey());
    const auto colors = ScreenColors::of(exchangingScreen());
    QCOMPARE(onScreen(picture, colors), colors->shown(picture));
    QVERIFY(colors->shown(QImage()).isNull());
}

QTEST_GUILESS_MAIN(ScreenColorsTest)
#include "ScreenColorsTest.moc"
