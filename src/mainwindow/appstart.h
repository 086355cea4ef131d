#pragma once

#include <QString>

// Language code for the stored "language" value: 0 follows the system locale,
// 1 is English (no code), 2 to 10 pick from the language list; anything else: no code.
QString chooseLanguageCode(int language, const QString &systemLocale);

// Installs the Qt and program translators for a code; none for an empty code.
void installTranslators(const QString &code);

// Warnings raised inside the database layer are shown as warning boxes.
void useWarningBoxes();
