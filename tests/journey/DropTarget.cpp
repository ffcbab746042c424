// SPDX-License-Identifier: GPL-3.0-or-later
// A window that photos are dropped on, as another program's is: journey_drop_target FOLDER
//
// What is dropped is written there: the file as "file", its name as "name", and the picture as "picture.jpg". Tells on
// standard output "entered" when a drag comes over it, and "dropped" when all is written.

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <cstdio>

namespace {

void say(const char* word)
{
    std::puts(word);
    std::fflush(stdout);
}

class DropTarget : public QLabel {
public:
    explicit DropTarget(const QString& folderPath)
        : QLabel("Drop here")
        , folder(folderPath)
    {
        setAcceptDrops(true);
        setAlignment(Qt::AlignCenter);
        setWindowTitle("Target");
        setGeometry(0, 0, 160, 120);
    }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override
    {
        say("entered");
        event->acceptProposedAction();
    }

    void dropEvent(QDropEvent* event) override
    {
        const QUrl url = event->mimeData()->urls().value(0);
        QFile::copy(url.toLocalFile(), folder.filePath("file"));
        QFile name(folder.filePath("name"));
        if (name.open(QIODevice::WriteOnly))
            name.write(url.fileName().toUtf8());
        name.close();
        qvariant_cast<QImage>(event->mimeData()->imageData()).save(folder.filePath("picture.jpg"));
        event->acceptProposedAction();
        QTimer::singleShot(0, this, [] { say("dropped"); }); // and the source is told
    }

private:
    QDir folder;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    DropTarget target(application.arguments().value(1));
    target.show();
    return application.exec();
}
