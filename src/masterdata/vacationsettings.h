#pragma once

#include "masterdata/recordeditor.h"

class Ui_VacationSettings;

// Edits one vacation: the employees away, first day, length in days, a note, in force. The
// employees are ticked in a popup list.
class VacationSettings : public RecordEditor
{
    Q_OBJECT
public:
    explicit VacationSettings(QWidget *parent = nullptr);
    ~VacationSettings() override;

    Ui_VacationSettings *ui;
};
