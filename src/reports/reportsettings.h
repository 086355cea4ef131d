#pragma once

#include <QDialog>
#include <QStringList>

class Ui_ReportSettings;

// Edits each report's title and the work-hour reports' detail switch, kept as one XML text.
class ReportSettings : public QDialog
{
    Q_OBJECT
public:
    explicit ReportSettings(QWidget *parent = nullptr);
    ~ReportSettings() override;

    Ui_ReportSettings *ui = nullptr;

    void setTypes(const QStringList &names, bool unused);
    QString getData() const;
    void setData(const QString &xml);

public slots:
    void on_comboBox_currentIndexChanged(int index);
};
