#include "mainwindow/rosteramain.h"

RosteraMain *g_pMain = nullptr;

RosteraMain::RosteraMain(QWidget *parent)
    : QMainWindow(parent)
{
    g_pMain = this;
    setWindowTitle("Rostera");
    resize(879, 517);
}

RosteraMain::~RosteraMain()
{
    g_pMain = nullptr;
}
