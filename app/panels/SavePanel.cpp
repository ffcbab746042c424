// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/SavePanel.h"

#include "app/panels/PlainText.h"
#include "app/state/Rules.h"
#include "photo/PhotoSaver.h"
#include "render/Export.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <sys/stat.h>

using namespace lumora;

SavePanel::SavePanel(QWidget* parent, qint64 bytes, const QByteArray& openPhoto, const GrowArray<int>& looks)
    : QFileDialog(parent, tr("Save as JPEG"))
    , m_bytes(bytes)
    , m_openPhoto(openPhoto)
    , m_looks(looks)
    , m_trouble(new QLabel(this))
{
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite); // the panel's own question stands for it
    setAcceptMode(AcceptSave);
    auto* rows = qobject_cast<QGridLayout*>(layout());
    for (QLabel* line : {new QLabel(tr("JPEG, whatever the ending: %1").arg(shownLength(bytes)), this), m_trouble})
        rows->addWidget(line, rows->rowCount(), 0, 1, -1);
    m_trouble->setTextFormat(Qt::PlainText);
    m_trouble->setWordWrap(true);
    m_trouble->hide();
}

void SavePanel::accept()
{
    const QStringList chosen = selectedFiles();
    if (chosen.isEmpty() || QFileInfo(chosen.first()).isDir())
        return QFileDialog::accept(); // which enters the folder
    const QString path = withJpegEnding(QFileInfo(chosen.first()).absoluteFilePath());
    QString reason;
    const bool mayWrite = mayWriteFile(QFile::encodeName(path), m_bytes, &reason);
    m_trouble->setText(tr("“%1” cannot be saved there. %2").arg(QFileInfo(path).fileName(), reason));
    m_trouble->setVisible(!mayWrite);
    if (!mayWrite)
        return;
    m_path = askAbout(path);
    if (!m_path.isEmpty())
        QFileDialog::accept();
}

/// The same file also by another name: by a link, or by a way through other folders.
bool SavePanel::isOpenPhoto(const QString& path) const
{
    struct stat chosen = {}, open = {};
    return stat(QFile::encodeName(path).constData(), &chosen) == 0 && stat(m_openPhoto.constData(), &open) == 0
        && chosen.st_dev == open.st_dev && chosen.st_ino == open.st_ino;
}

/// A free name in the same folder that tells the looks: "over Helga.jpg", "over Helga 2.jpg".
QString SavePanel::pathBeside(const QString& path) const
{
    const QFileInfo file(path);
    const QString name = QFile::decodeName(exportName(QFile::encodeName(file.fileName()), m_looks, {}));
    QFileInfo beside(file.dir(), name + ".jpg");
    for (int number = 2; beside.exists() || beside.isSymbolicLink(); number++)
        beside.setFile(file.dir(), QStringLiteral("%1 %2.jpg").arg(name, QString::number(number)));
    return beside.filePath();
}

QString SavePanel::askAbout(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return path;
    QMessageBox question(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Cancel, this);
    const QAbstractButton* replace = question.addButton(tr("&Replace"), QMessageBox::DestructiveRole);
    const QAbstractButton* keepBoth = nullptr;
    const QString beside = pathBeside(path);
    if (isOpenPhoto(path)) {
        question.setText(tr("This is the photo that you opened. Replacing it cannot be undone."));
        question.setInformativeText(tr("Keep both saves “%1” beside it.").arg(QFileInfo(beside).fileName()));
        QPushButton* button = question.addButton(tr("&Keep both"), QMessageBox::AcceptRole);
        question.setDefaultButton(button);
        keepBoth = button;
    } else {
        question.setText(tr("“%1” already exists. Do you want to replace it?").arg(file.fileName()));
        question.setDefaultButton(QMessageBox::Cancel);
    }
    showPlainText(question);
    question.exec();
    if (question.clickedButton() == replace)
        return path;
    return keepBoth && question.clickedButton() == keepBoth ? beside : QString();
}
