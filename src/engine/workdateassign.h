#pragma once

#include <QDialog>
#include <QList>
#include <QString>

class QCheckBox;
class QSpinBox;
class Ui_WorkDateAssign;

// Edits the staffing value of a standing row: employees per day of week (tab 0), or one
// employee on the dates of a range that fall on chosen weeks of the month and days of the
// week (tab 1). It always writes the rule form.
class WorkDateAssign : public QDialog
{
    Q_OBJECT
public:
    explicit WorkDateAssign(QWidget *parent = nullptr);
    ~WorkDateAssign() override;

    void setData(const QString &daystaffnum);
    QString getData() const;

    QString getStuffNum() const;
    void setStuffNum(const QString &numbers);
    QString getWeek() const;
    void setWeek(const QString &weeks);
    QString getDayweek() const;
    void setDayweek(const QString &days);

    Ui_WorkDateAssign *ui;
    // Monday to Sunday.
    QList<QSpinBox *> staffNumBoxes;
    // Weeks 1 to 5 of the month.
    QList<QCheckBox *> weekBoxes;
    // In value order, 1 Monday to 7 Sunday, whatever the order on screen.
    QList<QCheckBox *> dayweekBoxes;

public slots:
    void accept() override;
};
