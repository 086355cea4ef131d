#pragma once

#include <QString>

// Organization and application names, domain and version. The data location depends on
// them, so they are set before the application object exists.
void setApplicationIdentity();

// The stored "language" value, read as text and made a number: a missing key or text
// that is no number gives 0, the system's language.
int storedLanguage();

// Language code for the stored "language" value: 0 follows the system locale,
// 1 is English (no code), 2 to 10 pick from the language list; anything else: no code.
QString chooseLanguageCode(int language, const QString &systemLocale);

// Installs the Qt and program translators for a code; none for an empty code.
void installTranslators(const QString &code);

// Warnings raised inside the database layer are shown as warning boxes.
void useWarningBoxes();

// Opens the database named by "lastdb" (or the default one); on failure warns
// "Open Database Failed!" and answers false, and the program ends.
bool openStartDatabase();
