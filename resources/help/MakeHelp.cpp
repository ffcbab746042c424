// SPDX-License-Identifier: GPL-3.0-or-later
// Sets the help text as PDF files: make_help help.html photo.jpg FOLDER [LANGUAGE.qm...]
//
// The first is help.pdf, in English; one more for each language has its name, as in help_de.pdf. What is translated is
// each element of the text by itself: make_help --texts help.html  prints them, in the form in which lupdate reads
// them.
//
// What depends on the looks is filled in here: their crops and borders, and the row of looks, each with its picture:
// the photo rendered by the pipeline, as the window would. A look that help says nothing about is an error. In the
// text, split:NUMBER is the photo without and with the look of that number.

#include "image/CharImage.h"
#include "image/FilterNumber.h"
#include "render/RenderPipeline.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocument>
#include <QTranslator>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

using namespace lumora;

namespace {

struct LookText {
    int filter;
    const char* says;
    const char* crop = ""; ///< of a look that has a crop of its own
    const char* border = ""; ///< of a look that has a border of its own
};

constexpr LookText looks[] = {
    {Filter::helga, "Cool and muted with strong contrast; darker and richer towards the edges.", "square"},
    {Filter::lolo, "Strong colours and contrast, with warm light tones.", "square", "thick white"},
    {Filter::cinema, "Bright lights, little colour and a dark blue tint, like a frame of a film.", "16 to 9",
        "black bars"},
    {Filter::look1962, "A contrasty black-and-white print of the sixties, with light skies.", "7 to 6"},
    {Filter::look1974, "A hard colour print under a brown wash that is strongest in the shadows.", "7 to 6", "rounded"},
    {Filter::mono, "Black and white over the full range of greys; blue skies print dark.", "", "medium white"},
    {Filter::colorcross, "Cross-processed film: hard reds and greens, flat blues."},
    {Filter::instant, "An instant print: soft tones, brown shadows and dark corners.", "square", "an instant print"},
    {Filter::magazine, "Warmed towards orange; darks darker, lights lighter, stronger colours.", "6 to 4",
        "thin white"},
    {Filter::infrared, "Infrared film: leaves turn bright, blue sky turns dark."},
    {Filter::fisheye, "A lens that magnifies the middle and bends the rest outward.", "square", "a black surround"},
    {Filter::lightleak, "A cheap camera that lets light in, at another place each time."},
    {Filter::delicious, "A cartoon: bands of brightness, strong colours, dark outlines."},
    {Filter::arctic, "Cold and bleached, with a blue cast."},
    {Filter::blowout, "Over-exposed: light parts are pushed towards white."},
};

/// The name of the first look of the catalogue that help says nothing about, or not what is so; empty when all is well.
QString faultyText()
{
    const GrowArray<int> all = CharImage::getLooks();
    for (int i = 0; i < all.numThings; i++) {
        const int look = all.theArray[i];
        const auto text = std::ranges::find(looks, look, &LookText::filter);
        if (text == std::end(looks))
            return CharImage::getFilterName(look);
        float margins[4];
        CharImage::getBorderReqsForFilter(look, &margins[0], &margins[1], &margins[2], &margins[3]);
        const bool crops = CharImage::getFilterAspect(look, 1.0f) > 0.0f,
                   frames = *std::ranges::max_element(margins) > 0;
        if (crops != (*text->crop != 0) || (frames && *text->border == 0))
            return CharImage::getFilterName(look);
    }
    return {};
}

constexpr const char *none = "none", *allOthers = "all others"; ///< of the crops and borders

/// In the language that is set; in English where it does not have the text.
QString translated(const char* text)
{
    return QCoreApplication::translate("Help", text);
}

/// What stands between the marks of an element of the text.
struct Element {
    qsizetype begin, length;
    QString text; ///< on one line
};

/// Those that have words.
std::vector<Element> elementsOf(const QString& html)
{
    static const QRegularExpression element(QStringLiteral("<(title|h1|h2|p|li|th|td)(?: [^>]*)?>(.*?)</\\1>"),
        QRegularExpression::DotMatchesEverythingOption),
        word(QStringLiteral("^(?!<img).*\\w"));
    std::vector<Element> all;
    for (const QRegularExpressionMatch& match : element.globalMatch(html))
        if (const QString text = match.captured(2).simplified(); word.match(text).hasMatch())
            all.push_back({match.capturedStart(2), match.capturedLength(2), text});
    return all;
}

QString translatedText(QString html)
{
    const std::vector<Element> elements = elementsOf(html);
    for (auto element = elements.rbegin(); element != elements.rend(); ++element)
        html.replace(element->begin, element->length, translated(element->text.toUtf8().constData()));
    // Not each has the letters of each language.
    return html.replace(QStringLiteral("DejaVu Sans"),
        QCoreApplication::translate("Help", "DejaVu Sans", "a font that has the letters of the language"));
}

/// Of the help and of its tables.
void printTexts(const QString& html)
{
    QStringList texts = {none, allOthers};
    for (const Element& element : elementsOf(html))
        texts << element.text;
    for (const LookText& look : looks)
        texts << look.says << look.crop << look.border;
    texts.removeAll(QString());
    for (const QString& text : texts)
        std::printf("QT_TRANSLATE_NOOP(\"Help\", R\"(%s)\")\n", qUtf8Printable(text));
}

/// Cells in rows of so many.
QString rowsOf(const QStringList& cells, int inRow)
{
    QString html;
    for (int i = 0; i < cells.size(); i++)
        html += (i % inRow == 0 ? "<tr>" : "") + cells[i]
            + (i % inRow == inRow - 1 || i + 1 == cells.size() ? "</tr>" : "");
    return html;
}

QString lookRows()
{
    QStringList cells;
    for (const LookText& look : looks)
        cells += QStringLiteral("<td width=\"33%\" bgcolor=\"#e4e6ea\"><img src=\"look:%1\"><br>"
                                "<span class=\"look\">%2</span><br><span class=\"says\">%3</span></td>")
                     .arg(look.filter)
                     .arg(CharImage::getFilterName(look.filter), translated(look.says));
    return rowsOf(cells, 3);
}

QString framingRows()
{
    const auto cell = [](const QString& name, const char* crop, const char* border) {
        return QStringLiteral("<td>%1</td><td>%2</td><td>%3</td><td width=\"26\"></td>")
            .arg(name, translated(*crop ? crop : none), translated(*border ? border : none));
    };
    QStringList cells;
    for (const LookText& look : looks)
        if (*look.crop || *look.border)
            cells += cell(CharImage::getFilterName(look.filter), look.crop, look.border);
    return rowsOf(cells << cell(translated(allOthers), "", ""), 2);
}

/// The help's text; an image of the address "look:N" is the photo under filter N with its crop and border.
class HelpDocument : public QTextDocument {
public:
    explicit HelpDocument(const QImage& shown)
        : photo(shown)
    {
    }

protected:
    QVariant loadResource(int type, const QUrl& url) override
    {
        if (url.scheme() != "look" && url.scheme() != "split")
            return QTextDocument::loadResource(type, url);
        static QHash<QUrl, QImage> pictures; // the same in each language
        if (!pictures.contains(url))
            pictures[url] = pictureOf(url);
        return pictures[url];
    }

private:
    QImage pictureOf(const QUrl& url) const
    {
        const int filter = url.path().toInt();
        if (url.scheme() == "look")
            return printed(rendered(filter, filter), {390, 232});
        return printed(split(rendered(Filter::original, filter), rendered(filter, filter)), {480, 260});
    }

    /// Under a look, in the crop and the border of one.
    QImage rendered(int filter, int framing) const
    {
        return renderPhoto(photo, {.filter = filter, .cropFilter = framing, .borderFilter = framing});
    }

    /// The left half of a picture beside the right half of another of its size.
    static QImage split(const QImage& before, const QImage& after)
    {
        QImage both = after;
        QPainter painter(&both);
        const int half = both.width() / 2;
        painter.drawImage(0, 0, before, 0, 0, half);
        painter.fillRect(half - 1, 0, 2, both.height(), Qt::white);
        return both;
    }

    static QImage printed(const QImage& picture, const QSize& room)
    {
        QImage small = picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        small.setDevicePixelRatio(2.2); // printed finer than a screen shows it
        return small;
    }

    const QImage photo;
};

/// The text with letters in a part of their size.
QString withLetters(const QString& html, double part)
{
    static const QRegularExpression size(QStringLiteral("font-size: ([0-9.]+)pt"));
    QString sized;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& match : size.globalMatch(html)) {
        sized += html.mid(end, match.capturedStart() - end)
            + QStringLiteral("font-size: %1pt").arg(match.captured(1).toDouble() * part);
        end = match.capturedEnd();
    }
    return sized + html.mid(end);
}

/// Counts its pages.
class PageWriter : public QPdfWriter {
public:
    using QPdfWriter::QPdfWriter;

    bool newPage() override
    {
        pages++;
        return QPdfWriter::newPage();
    }

    int pages = 1;
};

/// Writes the help; gives the number of its pages.
int print(const QString& path, const QString& html, const QImage& photo)
{
    CharImage::useRandom = 0;
    std::srand(17); // the light leak falls at the same place in every build
    // Rendered at the size of a preview: some looks depend on it.
    HelpDocument document(photo.scaledToWidth(800, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGBX8888));
    document.setHtml(html);
    PageWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle(translated("Lumora Help"));
    writer.setCreator("Lumora");
    document.print(&writer);
    return writer.pages;
}

/// The help in the language that is set: two pages of text and one of looks, in smaller letters where it has more
/// words.
void write(const QString& path, const QString& text, const QImage& photo)
{
    const QString html =
        translatedText(text).replace("<!-- looks -->", lookRows()).replace("<!-- crops and borders -->", framingRows());
    for (const double part : {1.0, 0.97, 0.94, 0.91, 0.88, 0.85})
        if (print(path, withLetters(html, part), photo) <= 3)
            return;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "make_help: give the text, the photo and the folder to write into\n");
        return 2;
    }
    const bool onlyTexts = arguments[1] == "--texts";
    QFile file(arguments[onlyTexts ? 2 : 1]);
    const QImage photo(arguments[2]);
    if (!file.open(QIODevice::ReadOnly) || (!onlyTexts && photo.isNull())) {
        std::fprintf(stderr, "make_help: the text or the photo cannot be read\n");
        return 1;
    }
    const QString html = QString::fromUtf8(file.readAll());
    if (onlyTexts) {
        printTexts(html);
        return 0;
    }
    if (const QString look = faultyText(); !look.isEmpty()) {
        std::fprintf(stderr, "make_help: %s has no sentence, or a crop or a border without words\n", qPrintable(look));
        return 1;
    }
    const QDir folder(arguments.value(3));
    write(folder.filePath("help.pdf"), html, photo);
    for (const QString& language : arguments.mid(4)) {
        QTranslator texts;
        if (!texts.load(language)) {
            std::fprintf(stderr, "make_help: %s cannot be read\n", qPrintable(language));
            return 1;
        }
        QCoreApplication::installTranslator(&texts);
        write(folder.filePath(QStringLiteral("help_%1.pdf").arg(QFileInfo(language).completeBaseName())), html, photo);
    }
    return 0;
}
