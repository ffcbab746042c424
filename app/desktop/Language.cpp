// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

/// What a library has inside is there once it is asked for, and by a function of no namespace.
static void initLanguages()
{
    Q_INIT_RESOURCE(languages);
}

namespace {

const QString folder = QStringLiteral(":/languages");

struct Used {
    QString name;
    std::unique_ptr<QTranslator> own, platforms;
};

Used& used()
{
    static Used language;
    return language;
}

/// Null where there is no such file.
std::unique_ptr<QTranslator> installed(const QString& file, const QString& place)
{
    auto texts = std::make_unique<QTranslator>();
    if (!texts->load(file, place))
        return nullptr;
    QCoreApplication::installTranslator(texts.get());
    return texts;
}

} // namespace

QStringList languages()
{
    initLanguages();
    return QDir(folder).entryList({QStringLiteral("*.qm")}).replaceInStrings(QStringLiteral(".qm"), QString());
}

QString languageOfDesktop()
{
    const QStringList known = languages();
    for (QString wanted : QLocale::system().uiLanguages()) {
        wanted.replace(u'-', u'_');
        for (const QString& name : {wanted, wanted.section(u'_', 0, 0)}) // Austrian is German
            if (name == QLatin1String("en") || known.contains(name))
                return known.contains(name) ? name : QString();
    }
    return {};
}

void useLanguage(const QString& name)
{
    initLanguages();
    used() = {};
    if (name.isEmpty())
        return;
    used() = {name, installed(name + QStringLiteral(".qm"), folder),
        installed(QStringLiteral("qtbase_") + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))};
}

QString usedLanguage()
{
    return used().name;
}
