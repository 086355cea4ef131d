#include "persistence/databasefunc.h"

#include <QDebug>

DatabaseFunc g_DB;

DatabaseFunc *getDB()
{
    return &g_DB;
}

static void warnToLog(const QString &text)
{
    qWarning().noquote() << text;
}

static WarningHandler g_warningHandler = warnToLog;

void setWarningHandler(WarningHandler handler)
{
    g_warningHandler = handler ? handler : warnToLog;
}

void showWarning(const QString &text)
{
    g_warningHandler(text);
}
