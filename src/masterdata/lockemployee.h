#pragma once

#include "masterdata/recordeditor.h"

class Ui_LockEmployee;

// Edits one lock, which ties an employee to a date: the employee, the date, a note, in force.
// The employee is chosen in a popup list of single choice.
class LockEmployee : public RecordEditor
{
    Q_OBJECT
public:
    explicit LockEmployee(QWidget *parent = nullptr);
    ~LockEmployee() override;

    Ui_LockEmployee *ui;
};
