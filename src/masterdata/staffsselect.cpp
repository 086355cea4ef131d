#include "masterdata/staffsselect.h"

#include "core/helpers.h"
#include "persistence/databasefunc.h"
#include "ui_staffsselect.h"

StaffsSelect::StaffsSelect(QWidget *parent, bool single, bool lineFeed)
    : QWidget(parent)
    , ui(new Ui_StaffsSelect)
    , single(single)
    , lineFeed(lineFeed)
{
    ui->setupUi(this);
    if (single)
        connect(ui->lst_staffs, &QListWidget::currentRowChanged, this, &StaffsSelect::on_staff_changed);
    else
        connect(ui->lst_staffs, &QListWidget::itemChanged, this, &StaffsSelect::on_staff_changed);
}

StaffsSelect::~StaffsSelect()
{
    delete ui;
}

void StaffsSelect::setData(const QString &current, int mode, const QString &group, int maxHeight)
{
    loading = true;
    ui->lst_staffs->clear();

    DatabaseFunc *db = getDB();
    const QString filter = QString("groupname='%1'").arg(group);
    const bool all = group == "-1";
    QVector<ASAttribute> records;
    if (mode == 0 && all)
        records = db->staffs;
    else if (mode == 0)
        db->staffInfo(records, filter);
    else if (mode == 1 && all)
        records = db->permanentSchedules;
    else if (mode == 1)
        db->permanentSchedule(records, filter);
    else if (mode == 2)
        records = db->shifts;
    const QString valueKey = mode == 1 ? "shiftname" : mode == 2 ? "name" : "id";

    const QStringList chosen = current.split(lineFeed ? "\n" : ";", Qt::SkipEmptyParts);
    for (const ASAttribute &record : records) {
        const QString value = record.attr(valueKey, QString());
        // Standing rows show the abbreviation of their shift, shifts their own.
        const QString text = mode == 1 ? getShiftAbbre(value) : mode == 2 ? record.attr("abbreviation", QString()) : value;
        auto *item = new QListWidgetItem(text, ui->lst_staffs);
        item->setData(Qt::UserRole, value);
        if (maxHeight != 0)
            item->setSizeHint(QSize(fontMetrics().horizontalAdvance(text) + 40, 20));
        if (!single) {
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(chosen.contains(value) ? Qt::Checked : Qt::Unchecked);
        } else if (!chosen.isEmpty() && text == chosen.first()) {
            ui->lst_staffs->setCurrentItem(item);
        }
    }

    if (ui->lst_staffs->count() > 0 && maxHeight != 0)
        resize(width(), qMax(30, qMin(ui->lst_staffs->count() * 20 + 10, maxHeight)));
    viewHeight = height();
    loading = false;
}

QString StaffsSelect::getData(bool values) const
{
    const int role = values ? Qt::UserRole : Qt::DisplayRole;
    if (single) {
        const QListWidgetItem *item = ui->lst_staffs->currentItem();
        return item ? item->data(role).toString() : QString();
    }
    QStringList chosen;
    for (int i = 0; i < ui->lst_staffs->count(); ++i) {
        const QListWidgetItem *item = ui->lst_staffs->item(i);
        if (item->checkState() == Qt::Checked)
            chosen << item->data(role).toString();
    }
    return chosen.join(lineFeed ? "\n" : ";");
}

void StaffsSelect::on_staff_changed()
{
    if (!loading)
        emit staffChanged(getData(false));
}
