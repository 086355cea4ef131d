#pragma once

#include <QItemDelegate>

// The item delegate of the schedule grid. It owns no data: what it needs of the window it
// reaches through g_pMain.
class ScheduleDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    using QItemDelegate::QItemDelegate;
};
