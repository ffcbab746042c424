// Sets the help text as a PDF file: make_help help.html photo.jpg help.pdf
//
// The row of looks is filled in here, each with its picture: the photo rendered by the pipeline, as the window would.

#include "image/CharImage.h"
#include "render/RenderPipeline.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <QTextDocument>
#include <cstdio>
#include <cstdlib>

using namespace lumora;

namespace {

struct LookText {
    int filter;
    const char* says;
};

constexpr LookText looks[] = {
    {1, "Cool and muted with strong contrast; darker and richer towards the edges."},
    {2, "Strong colours and contrast, with warm light tones."},
    {8, "Bright lights, little colour and a dark blue tint, like a frame of a film."},
    {6, "A contrasty black-and-white print of the sixties, with light skies."},
    {7, "A hard colour print under a brown wash that is strongest in the shadows."},
    {5, "Black and white over the full range of greys; blue skies print dark."},
    {0, "Cross-processed film: hard reds and greens, flat blues."},
    {4, "An instant print: soft tones, brown shadows and dark corners."},
    {3, "Warmed towards orange; darks darker, lights lighter, stronger colours."},
    {9, "Infrared film: leaves turn bright, blue sky turns dark."},
    {10, "A lens that magnifies the middle and bends the rest outward."},
    {17, "A cheap camera that lets light in, at another place each time."},
    {18, "A cartoon: bands of brightness, strong colours, dark outlines."},
    {19, "Cold and bleached, with a blue cast."},
    {20, "Over-exposed: light parts are pushed towards white."},
};
constexpr int looksInRow = 3;

QString lookCells()
{
    QString html;
    int column = 0;
    for (const LookText& look : looks) {
        if (column == 0)
            html += "<tr>";
        html += QStringLiteral("<td width=\"33%\" bgcolor=\"#e4e6ea\"><img src=\"look:%1\"><br>"
                               "<span class=\"look\">%2</span><br><span class=\"says\">%3</span></td>")
                    .arg(look.filter)
                    .arg(CharImage::getFilterName(look.filter), look.says);
        column = (column + 1) % looksInRow;
        if (column == 0)
            html += "</tr>";
    }
    return html;
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
        if (url.scheme() != "look")
            return QTextDocument::loadResource(type, url);
        const int filter = url.path().toInt();
        QImage picture = renderPhoto(photo, {.filter = filter, .cropFilter = filter, .borderFilter = filter});
        picture = picture.scaled(390, 232, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(2.2); // printed finer than a screen shows it
        return picture;
    }

private:
    const QImage photo;
};

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "make_help: give the text, the photo and the PDF file to write\n");
        return 2;
    }
    QFile text(arguments[1]);
    const QImage photo(arguments[2]);
    if (!text.open(QIODevice::ReadOnly) || photo.isNull()) {
        std::fprintf(stderr, "make_help: the text or the photo cannot be read\n");
        return 1;
    }
    CharImage::useRandom = 0;
    std::srand(17); // the light leak falls at the same place in every build

    // Rendered at the size of a preview: some looks depend on it.
    HelpDocument document(photo.scaledToWidth(800, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGBX8888));
    document.setHtml(QString::fromUtf8(text.readAll()).replace("<!-- looks -->", lookCells()));

    QPdfWriter writer(arguments[3]);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setTitle("Lumora Help");
    writer.setCreator("Lumora");
    document.print(&writer);
    return 0;
}
