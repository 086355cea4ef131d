#pragma once

// What every fuzz target shares: a temporary home made before the application object (so no
// real user data is touched), the offscreen platform, and a scratch file for the input bytes.
#include <QApplication>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <cstdlib>
#include <unistd.h>

#include "mainwindow/appstart.h"

inline QApplication *fuzzApplication()
{
    static QString home = [] {
        // In memory where the system offers it: every input is written to a file first.
        QByteArray pattern = QDir("/dev/shm").exists() ? "/dev/shm/rostera-fuzz-XXXXXX" : "/tmp/rostera-fuzz-XXXXXX";
        const QString path = QString::fromLocal8Bit(mkdtemp(pattern.data()));
        for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            setenv(name, path.toLocal8Bit(), 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        std::atexit([] { QDir(QString::fromLocal8Bit(qgetenv("HOME"))).removeRecursively(); });
        return path;
    }();
    static int argc = 1;
    static char name[] = "rostera-fuzz";
    static char *argv[] = {name, nullptr};
    static QApplication *app = [] {
        auto *created = new QApplication(argc, argv);
        setApplicationIdentity();
        return created;
    }();
    return app;
}

// The input as a file of the temporary home; its path.
inline QString inputFile(const uint8_t *data, size_t size, const QString &name)
{
    const QString path = QDir::homePath() + "/" + name;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(reinterpret_cast<const char *>(data), qint64(size));
    return path;
}
