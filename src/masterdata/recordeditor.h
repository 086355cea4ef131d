#pragma once

#include <QDialog>
#include <QMap>

class ASAttribute;
class QLineEdit;
class QPushButton;
class StaffsSelect;

// What the holiday, vacation and lock editors share: a record is shown in and read back from
// the form's fields by key, and an employee list is picked from a popup under its "..." button.
class RecordEditor : public QDialog
{
    Q_OBJECT
public:
    RecordEditor(QWidget *parent, const QString &infotype);

    // Absent keys show their defaults: texts empty, numbers 1, boxes ticked, the date today.
    void setData(ASAttribute &record);
    // Dates as "yyyy-MM-dd", numbers and ticks as whole numbers.
    void getData(ASAttribute &record) const;

    // Opens the picker at the bottom left of the button; it is made and loaded on the first
    // click only, so a second opening shows the ticks as they were left.
    void on_btn_selStaff_clicked();
    // The field follows every tick, so the popup needs no OK button.
    void on_staffChanged(const QString &staffs);

    StaffsSelect *picker = nullptr;

public slots:
    // Refuses, with the dialog left open, an empty employee field where the form has one.
    void accept() override;

protected:
    // The form's fields by record key: QLineEdit, QSpinBox, QCheckBox or QDateEdit.
    QMap<QString, QWidget *> fields;
    // single: one employee, so that picking another name replaces the field.
    void setStaffField(QLineEdit *field, QPushButton *button, bool single);
    // A warning box with an empty title; the dialog stays open.
    void refuse(const QString &text);

private:
    QString infotype;
    QLineEdit *staffField = nullptr;
    QPushButton *staffButton = nullptr;
    bool singleStaff = false;
};
