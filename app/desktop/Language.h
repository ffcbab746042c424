// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// The language of the program, by the name of its file in resources/languages: "de", "pt_BR". Empty is English, in
// which the texts are written.

/// All that there are besides English.
QStringList languages();

/// The first of the languages that the desktop asks for and the program speaks.
QString languageOfDesktop();

/// Windows that are made from now on speak that language, with what the platform says in them.
void useLanguage(const QString& name);

/// The one that is used.
QString usedLanguage();
