#pragma once

#include <QString>

// kind 0: the configuration file; 1: the folder of databases; 2: the folder of CSV copies;
// anything else: the data root. The folder is created when missing.
QString getAppDataPath(int kind);

// "SharedSupport" beside the folder of the program file.
QString getAppPath();
