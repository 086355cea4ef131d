#include "masterdata/recordeditor.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

#include "core/asattribute.h"
#include "masterdata/staffsselect.h"
#include "ui_staffsselect.h"

static const char *const kDateFormat = "yyyy-MM-dd";

RecordEditor::RecordEditor(QWidget *parent, const QString &infotype)
    : QDialog(parent)
    , infotype(infotype)
{
}

void RecordEditor::setData(ASAttribute &record)
{
    for (auto it = fields.cbegin(); it != fields.cend(); ++it) {
        if (auto *edit = qobject_cast<QLineEdit *>(it.value())) {
            edit->setText(record.attr(it.key(), QString()));
        } else if (auto *number = qobject_cast<QSpinBox *>(it.value())) {
            number->setValue(record.attr(it.key(), 1));
        } else if (auto *box = qobject_cast<QCheckBox *>(it.value())) {
            box->setChecked(record.attr(it.key(), 1) != 0);
        } else if (auto *dateEdit = qobject_cast<QDateEdit *>(it.value())) {
            // A date that does not read shows today as well, not the edit's own minimum.
            const QDate date = QDate::fromString(record.attr(it.key(), QString()), kDateFormat);
            dateEdit->setDate(date.isValid() ? date : QDate::currentDate());
        }
    }
}

void RecordEditor::getData(ASAttribute &record) const
{
    record.setAttr("infotype", infotype);
    for (auto it = fields.cbegin(); it != fields.cend(); ++it) {
        if (auto *edit = qobject_cast<QLineEdit *>(it.value()))
            record.setAttr(it.key(), edit->text());
        else if (auto *number = qobject_cast<QSpinBox *>(it.value()))
            record.setAttr(it.key(), number->value());
        else if (auto *box = qobject_cast<QCheckBox *>(it.value()))
            record.setAttr(it.key(), int(box->isChecked()));
        else if (auto *dateEdit = qobject_cast<QDateEdit *>(it.value()))
            record.setAttr(it.key(), dateEdit->date().toString(kDateFormat));
    }
}

void RecordEditor::setStaffField(QLineEdit *field, QPushButton *button, bool single)
{
    staffField = field;
    staffButton = button;
    singleStaff = single;
    connect(button, &QPushButton::clicked, this, &RecordEditor::on_btn_selStaff_clicked);
}

void RecordEditor::on_btn_selStaff_clicked()
{
    if (!picker) {
        picker = new StaffsSelect(this, singleStaff, false);
        picker->setData(staffField->text(), 0, "-1", 0);
        picker->setWindowFlags(Qt::Popup);
        connect(picker, &StaffsSelect::staffChanged, this, &RecordEditor::on_staffChanged);
        // Up to ten names show before the list scrolls.
        QListWidget *names = picker->ui->lst_staffs;
        if (names->count() > 0) {
            const int rows = qMin(names->count(), 10);
            picker->resize(picker->width(), rows * names->sizeHintForRow(0) + 2 * names->frameWidth());
        }
    }
    picker->move(staffButton->mapToGlobal(QPoint(0, staffButton->height())));
    picker->show();
}

void RecordEditor::on_staffChanged(const QString &staffs)
{
    staffField->setText(staffs);
}

void RecordEditor::accept()
{
    if (staffField && staffField->text().isEmpty())
        return refuse(tr("Please select a employee."));
    QDialog::accept();
}

void RecordEditor::refuse(const QString &text)
{
    QMessageBox::warning(this, QString(), text, QMessageBox::Ok);
}
