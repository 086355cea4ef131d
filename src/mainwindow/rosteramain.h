#pragma once

#include <QMainWindow>

class RosteraMain : public QMainWindow
{
    Q_OBJECT
public:
    explicit RosteraMain(QWidget *parent = nullptr);
    ~RosteraMain() override;
};

extern RosteraMain *g_pMain;
