#pragma once

#include <QDialog>
#include <QList>

class QCheckBox;
class Ui_WorkWeekSelect;

// Picks the days of the week on which the business works, as day numbers 1 (Monday) to 7
// joined by ",".
class WorkWeekSelect : public QDialog
{
    Q_OBJECT
public:
    explicit WorkWeekSelect(QWidget *parent = nullptr);
    ~WorkWeekSelect() override;

    // Ticks the days named in the text; items that are not a day number are ignored.
    void setSel(const QString &days);
    // The ticked day numbers, rising.
    QString getSel() const;

    Ui_WorkWeekSelect *ui;
    // Monday to Sunday.
    QList<QCheckBox *> dayBoxes;

public slots:
    // Refuses a week without a working day, with the dialog left open.
    void accept() override;
};
