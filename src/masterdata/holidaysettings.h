#pragma once

#include "masterdata/recordeditor.h"

class Ui_HolidaySettings;

// Edits one holiday: name, first day, length in days, yearly repeat, in force.
class HolidaySettings : public RecordEditor
{
    Q_OBJECT
public:
    explicit HolidaySettings(QWidget *parent = nullptr);
    ~HolidaySettings() override;

    Ui_HolidaySettings *ui;

public slots:
    // Refuses an empty name, with the dialog left open.
    void accept() override;
};
