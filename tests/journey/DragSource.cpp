// SPDX-License-Identifier: GPL-3.0-or-later
// A window that files are dragged out of, as a file manager's is: journey_drag_source FILE...
//
// Tells on standard output that the pointer has "entered" it, then what the target under the pointer answers: "copy" or
// "nothing" while the drag goes on, and "over" at its end. It is not told what the target made of the drop.

#include <QApplication>
#include <QDrag>
#include <QEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <cstdio>

namespace {

void say(const char* word)
{
    std::puts(word);
    std::fflush(stdout);
}

class DragSource : public QLabel {
public:
    explicit DragSource(const QStringList& files)
        : QLabel("Drag me")
    {
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        setAlignment(Qt::AlignCenter);
        setWindowTitle("Files");
        setFixedSize(160, 120);
    }

protected:
    void enterEvent(QEnterEvent*) override { say("entered"); }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!(event->buttons() & Qt::LeftButton))
            return;
        auto* files = new QMimeData;
        files->setUrls(urls);
        // The platform deletes it when the target has fetched the data, which is after the end of exec().
        auto* drag = new QDrag(this);
        drag->setMimeData(files);
        connect(drag, &QDrag::actionChanged, this,
            [](Qt::DropAction action) { say(action == Qt::CopyAction ? "copy" : "nothing"); });
        drag->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction);
        say("over");
    }

private:
    QList<QUrl> urls;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    DragSource source(application.arguments().mid(1));
    source.show();
    return application.exec();
}
