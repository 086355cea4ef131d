#include "engine/enginecommon.h"

#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "ui_rosteramain.h"

bool isOneGroupView(RosteraMain *window)
{
    const int type = window->toolBar->getPersonType();
    return type == 1 || type == 2;
}

QString viewGroup(RosteraMain *window)
{
    return window->ui->cmb_group->currentIndex() == 0 ? QString() : window->ui->cmb_group->currentText();
}

QString viewGroupFilter(RosteraMain *window)
{
    return isOneGroupView(window) ? QString(" and groupname='%1'").arg(viewGroup(window)) : QString();
}

void countOne(ASAttribute &record, const QString &key)
{
    record.setAttr(key, record.attr(key, 0.0f) + 1);
}

QString spanFilter(const QDate &first, const QDate &last)
{
    return QString("date>='%1' and date<='%2'").arg(first.toString("yyyy-MM-dd"), last.toString("yyyy-MM-dd"));
}
