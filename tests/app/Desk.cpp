// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/Desk.h"

#include "photo/PhotoReader.h"
#include "render/RenderPipeline.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorSpace>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <cstdio>
#include <memory>
#include <unistd.h>

QString configFolder()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME");
}

QString preferencesFile()
{
    return configFolder() + "/Dovrel/Lumora.conf";
}

void setPreferences(const QByteArray& ini)
{
    QFile::remove(preferencesFile());
    if (ini.isEmpty())
        return;
    QDir().mkpath(configFolder() + "/Dovrel");
    QFile file(preferencesFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(ini) != ini.size())
        qFatal("cannot write the preferences");
}

QImage makePhoto(int width, int height)
{
    QImage photo(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            const int grain = (x * 7919 + y * 104729) % 31;
            photo.setPixel(x, y, qRgb(x * 224 / width + grain, y * 224 / height + grain, (x + y) % 256));
        }
    return photo;
}

QImage pixelsOf(QImage image)
{
    image.convertTo(QImage::Format_RGB32);
    image.setColorSpace({});
    image.setDevicePixelRatio(1);
    return image;
}

QByteArray writePhoto(const QTemporaryDir& folder, const char* name, const QImage& photo)
{
    const QString path = folder.filePath(QFile::decodeName(name));
    if (!photo.save(path, "PNG", 100))
        qFatal("cannot write %s", name);
    return QFile::encodeName(path);
}

QByteArray contentsOf(const QByteArray& path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Desk::Desk(const QImage& photo)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("the window does not come up");
    if (!photo.isNull() && !window.loadImageFromFile(writePhoto(folder, "photo.png", photo)))
        qFatal("the photo does not open");
}

void Desk::click(const char* button)
{
    auto* widget = find<QAbstractButton>(button);
    // A check box is pressed where its box is.
    const bool box = qobject_cast<QCheckBox*>(widget);
    QTest::mouseClick(widget, Qt::LeftButton, {}, box ? QPoint(8, widget->height() / 2) : widget->rect().center());
}

void Desk::choose(const char* popUp, const char* item)
{
    auto* box = find<QComboBox>(popUp);
    const int index = box->findText(QLatin1String(item));
    if (index < 0)
        qFatal("there is no item %s", item);
    while (box->currentIndex() != index)
        QTest::keyClick(box, box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
}

QString Desk::breadcrumb()
{
    return find<QLabel>("filtersText")->text();
}

std::vector<int> Desk::looks() const
{
    return {window.filterIDs.theArray, window.filterIDs.theArray + window.filterIDs.numThings};
}

QImage Desk::before() const
{
    return renderPhoto(
        window.getoriginalDisplay(), {.cropFilter = window.cropFilter, .borderFilter = window.borderFilter});
}

QStringList Desk::pressedButtons()
{
    QStringList names;
    for (int i = 0; i < window.filterButtons.numThings; i++)
        if (window.filterButtons.theArray[i]->isChecked())
            names << window.filterButtons.theArray[i]->text();
    return names;
}

void Desk::withPanel(const std::function<void(QFileDialog&)>& answer, const std::function<void()>& action)
{
    bool answered = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!panel || answered)
            return;
        answered = true;
        answer(*panel);
        if (panel->isVisible())
            qFatal("the panel was not answered");
    });
    watch.start(0);
    // A question that the panel asks and that nobody answers would wait for ever.
    QTimer alarm;
    QPointer<QMessageBox> seen;
    QObject::connect(&alarm, &QTimer::timeout, [&seen] {
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (question && question == seen)
            qFatal("the panel asks: %s", qUtf8Printable(question->text()));
        seen = question;
    });
    alarm.start(1000);
    action();
    if (!answered)
        qFatal("there was no panel");
}

void Desk::saveAs(const QString& name)
{
    withPanel([&](QFileDialog& panel) { typeName(panel, name); }, [this] { click("btnSave"); });
}

QMessageBox* Desk::visibleSheet()
{
    for (auto* box : window.findChildren<QMessageBox*>())
        if (box->isVisible())
            return box;
    return nullptr;
}

QStringList Desk::sheet()
{
    const QMessageBox* box = visibleSheet();
    return box ? QStringList({box->text(), box->informativeText()}) : QStringList();
}

bool Desk::closeSheet()
{
    QMessageBox* box = visibleSheet();
    if (box)
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    return box;
}

Answers::Answers(std::function<void(QMessageBox&)> answer)
{
    QObject::connect(&m_watch, &QTimer::timeout, [this, answer = std::move(answer)] {
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!question || !question->isVisible())
            return;
        asked << question->text();
        answer(*question);
        if (question->isVisible())
            qFatal("the question was not answered");
    });
    m_watch.start(0);
}

std::function<void(QMessageBox&)> button(const QString& text)
{
    return [text](QMessageBox& question) {
        for (QAbstractButton* button : question.buttons())
            if (button->text().remove('&') == text)
                return QTest::mouseClick(button, Qt::LeftButton);
        qFatal("there is no button %s", qPrintable(text));
    };
}

void typeName(QFileDialog& panel, const QString& name)
{
    auto* field = panel.findChild<QLineEdit*>("fileNameEdit");
    panel.activateWindow(); // after a question, as a desktop would
    if (!QTest::qWaitFor([&] { return field->hasFocus(); }))
        qFatal("the panel does not come up");
    field->selectAll();
    field->insert(name); // as by typing, which also drops the panel's own selection
    QTest::keyClick(field, Qt::Key_Return);
}

QByteArray printedBy(const std::function<void()>& action)
{
    std::fflush(stdout);
    std::FILE* captured = std::tmpfile();
    const int before = dup(STDOUT_FILENO);
    dup2(fileno(captured), STDOUT_FILENO);
    action();
    std::fflush(stdout);
    dup2(before, STDOUT_FILENO);
    close(before);
    std::rewind(captured);
    QByteArray text(65536, '\0');
    text.truncate(qsizetype(std::fread(text.data(), 1, std::size_t(text.size()), captured)));
    std::fclose(captured);
    return text;
}

int runTest(int argc, char** argv, const std::function<QObject*()>& makeTest)
{
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config.path()));
    PhotoReader::setProgram(READER);
    QApplication application(argc, argv);
    const std::unique_ptr<QObject> test(makeTest());
    return QTest::qExec(test.get(), argc, argv);
}
