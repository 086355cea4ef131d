#include "masterdata/settings.h"

#include <QHeaderView>

#include "core/helpers.h"
#include "core/sortinfo.h"
#include "engine/workdateassign.h"
#include "masterdata/tabledelegate.h"
#include "persistence/databasefunc.h"
#include "ui_settings.h"

// The tables hold the groups, employees and shifts as the user edits them; each tab's Save
// replaces the whole database table with the rows. The standing rows keep their rules in
// Settings::permanentSchedules, element i beside row i, since a cell shows only a description.

namespace {

// Record keys of the table columns, by column.
const QStringList kGroupKeys{"name", "abbreviation", "note"};
const QStringList kStaffKeys{"fname", "lname", "id", "groupname", "phonenum", "note"};
const QStringList kShiftKeys{"name", "abbreviation", "starttm", "endtm"};

// The empty group or employee is shown as "<None>", and "<None>" read back as empty.
QString showNone(const QString &value)
{
    return value.isEmpty() ? Settings::noneText() : value;
}

QString readNone(const QString &text)
{
    return text == Settings::noneText() ? QString() : text;
}

QString cellText(const QTableWidget *table, int row, int column)
{
    const QTableWidgetItem *item = table->item(row, column);
    return item ? item->text() : QString();
}

// Appends a row of the texts; the cells past them are empty.
int appendRow(QTableWidget *table, const QStringList &texts)
{
    const int row = table->rowCount();
    table->insertRow(row);
    for (int column = 0; column < table->columnCount(); ++column)
        table->setItem(row, column, new QTableWidgetItem(texts.value(column)));
    return row;
}

QStringList recordValues(const ASAttribute &record, const QStringList &keys)
{
    QStringList values;
    for (const QString &key : keys)
        values << record.attr(key, QString());
    return values;
}

// One record of the given kind a row, the keys read column by column.
QVector<ASAttribute> rowRecords(const QTableWidget *table, const QString &infotype, const QStringList &keys)
{
    QVector<ASAttribute> records;
    for (int row = 0; row < table->rowCount(); ++row) {
        ASAttribute record;
        record.setAttr("infotype", infotype);
        for (int column = 0; column < keys.size(); ++column)
            record.setAttr(keys.at(column), cellText(table, row, column));
        records << record;
    }
    return records;
}

// A new row's first cell becomes current; no editor opens.
void addRow(QTableWidget *table, const QStringList &texts)
{
    table->setCurrentCell(appendRow(table, texts), 0);
}

void removeCurrentRow(QTableWidget *table)
{
    if (table->currentRow() >= 0)
        table->removeRow(table->currentRow());
}

} // namespace

void Settings::setupTables()
{
    struct Setup
    {
        QTableWidget *table;
        QStringList headers;
        bool stretchLast;
    };
    const Setup setups[] = {
        {ui->groupTable, {tr("Name"), tr("Abbreviation"), tr("Note")}, true},
        {ui->staffTable,
         {tr("First Name"), tr("Last Name"), tr("ID"), tr("Group"), tr("Phone Number"), tr("Note")},
         true},
        {ui->shiftTable, {tr("Name"), tr("Abbreviation"), tr("Start Time"), tr("End Time"), tr("Length")}, false},
        {ui->permanentScheduleTable, {tr("Group"), tr("Shift"), tr("Designated Employee"), tr("Schedule")}, true},
    };
    for (const Setup &setup : setups) {
        setup.table->setColumnCount(int(setup.headers.size()));
        setup.table->setHorizontalHeaderLabels(setup.headers);
        setup.table->verticalHeader()->hide();
        setup.table->setSelectionBehavior(QAbstractItemView::SelectRows);
        setup.table->setSelectionMode(QAbstractItemView::SingleSelection);
        setup.table->horizontalHeader()->setStretchLastSection(setup.stretchLast);
    }
    // Widths are translatable, so that a language with longer words can widen its columns.
    const QString widths[] = {tr("90", "width of the Group column"), tr("90", "width of the Shift column"),
                              tr("150", "width of the Designated Employee column"),
                              tr("200", "width of the Schedule column")};
    for (int column = 0; column < 4; ++column)
        ui->permanentScheduleTable->setColumnWidth(column, widths[column].toInt());

    delegate = new TableDelegate(this);
    ui->staffTable->setItemDelegate(delegate);
    ui->shiftTable->setItemDelegate(delegate);
    ui->permanentScheduleTable->setItemDelegate(delegate);
}

bool Settings::groupInfo(QVector<ASAttribute> &out)
{
    out += rowRecords(ui->groupTable, "group", kGroupKeys);
    sortRecords(out);
    return true;
}

bool Settings::staffInfo(QVector<ASAttribute> &out)
{
    QVector<ASAttribute> records = rowRecords(ui->staffTable, "staff", kStaffKeys);
    for (ASAttribute &record : records)
        record.setAttr("groupname", readNone(record.attr("groupname", QString())));
    out += records;
    sortRecords(out);
    return true;
}

bool Settings::shiftInfo(QVector<ASAttribute> &out)
{
    QVector<ASAttribute> records = rowRecords(ui->shiftTable, "shift", kShiftKeys);
    for (ASAttribute &record : records) {
        for (const char *key : {"starttm", "endtm"})
            record.setAttr(key, str2TimeFormat(record.attr(key, QString()), true));
        // Customers sort by their ID rather than by a start time.
        if (ui->ck_employeeLockSchedule->isChecked())
            record.setAttr("infosubtype", QString("cus"));
    }
    out += records;
    sortRecords(out);
    return true;
}

bool Settings::permanentScheduleInfo(QVector<ASAttribute> &out)
{
    const QTableWidget *table = ui->permanentScheduleTable;
    // "daystaffnum" is left alone: the vector holds the only copy of each rule.
    for (int row = 0; row < table->rowCount() && row < out.size(); ++row) {
        ASAttribute &record = out[row];
        record.setAttr("infotype", QString("permanentschedule"));
        record.setAttr("groupname", readNone(cellText(table, row, 0)));
        record.setAttr("shiftname", cellText(table, row, 1));
        record.setAttr("employee_name", readNone(cellText(table, row, 2)));
    }
    // With employees tied to customers the user's own row order is kept.
    if (!ui->ck_employeeLockSchedule->isChecked())
        sortRecords(out);
    return true;
}

void Settings::addGroupInfos(QVector<ASAttribute> &list, bool append)
{
    if (!append)
        ui->groupTable->setRowCount(0);
    for (const ASAttribute &record : list)
        appendRow(ui->groupTable, recordValues(record, kGroupKeys));
}

void Settings::addStaffInfos(QVector<ASAttribute> &list, bool append)
{
    if (!append)
        ui->staffTable->setRowCount(0);
    for (const ASAttribute &record : list) {
        QStringList texts = recordValues(record, kStaffKeys);
        texts[3] = showNone(texts[3]);
        appendRow(ui->staffTable, texts);
    }
}

void Settings::addShiftInfos(QVector<ASAttribute> &list, bool append)
{
    if (!append)
        ui->shiftTable->setRowCount(0);
    const bool use24 = ui->ck_use24hour->isChecked();
    for (const ASAttribute &record : list) {
        const QString start = record.attr("starttm", QString());
        const QString end = record.attr("endtm", QString());
        QStringList texts = recordValues(record, kShiftKeys);
        texts[2] = str2TimeFormat(start, use24);
        texts[3] = str2TimeFormat(end, use24);
        texts << TableDelegate::lengthText(str2Time(start), str2Time(end));
        appendRow(ui->shiftTable, texts);
    }
}

void Settings::addPermanentScheduleInfos(QVector<ASAttribute> &list, bool append)
{
    if (!append)
        ui->permanentScheduleTable->setRowCount(0);
    for (const ASAttribute &record : list)
        appendRow(ui->permanentScheduleTable,
                  {showNone(record.attr("groupname", QString())), record.attr("shiftname", QString()),
                   showNone(record.attr("employee_name", QString())),
                   getDateAssignDesc(record.attr("daystaffnum", QString()))});
}

void Settings::refreshGroup(bool cached)
{
    QVector<ASAttribute> list;
    if (cached)
        list = getDB()->groups;
    else if (!getDB()->groupInfo(list))
        return;
    addGroupInfos(list, false);
}

void Settings::refreshStaff(bool cached)
{
    QVector<ASAttribute> list;
    if (cached)
        list = getDB()->staffs;
    else if (!getDB()->staffInfo(list))
        return;
    addStaffInfos(list, false);
}

void Settings::refreshShift(bool cached)
{
    QVector<ASAttribute> list;
    if (cached)
        list = getDB()->shifts;
    else if (!getDB()->shiftInfo(list))
        return;
    addShiftInfos(list, false);
}

void Settings::editRule(int row)
{
    // A row past the end of the working vector (left by an import of more lines) has no rule
    // to read or keep: it opens empty, and what is accepted there is not kept.
    const bool kept = row >= 0 && row < permanentSchedules.size();
    WorkDateAssign editor(this);
    editor.setData(kept ? permanentSchedules[row].attr("daystaffnum", QString()) : QString());
    if (editor.exec() != QDialog::Accepted || !kept)
        return;
    const QString value = editor.getData();
    permanentSchedules[row].setAttr("daystaffnum", value);
    ui->permanentScheduleTable->setItem(row, 3, new QTableWidgetItem(getDateAssignDesc(value)));
}

void Settings::on_btn_groupAdd_clicked()
{
    addRow(ui->groupTable, {tr("Group X")});
}

void Settings::on_btn_groupDelete_clicked()
{
    removeCurrentRow(ui->groupTable);
}

// Each Save first leaves the current cell, so that an open editor hands in its value. On a
// failure the rows stay as the user typed them; on success they come back in stored order.
void Settings::on_btn_groupSave_clicked()
{
    ui->groupTable->setCurrentCell(-1, -1);
    QVector<ASAttribute> list;
    groupInfo(list);
    QString error;
    if (!getDB()->saveGroupInfo(list, error)) {
        warn(QString("%1\n").arg(tr("Save failed!")) + error);
        return;
    }
    refreshGroup(true);
}

void Settings::on_btn_staffAdd_clicked()
{
    addRow(ui->staffTable, {QString(), QString(), QString(), Settings::noneText()});
}

void Settings::on_btn_staffDelete_clicked()
{
    removeCurrentRow(ui->staffTable);
}

void Settings::on_btn_staffSave_clicked()
{
    ui->staffTable->setCurrentCell(-1, -1);
    QVector<ASAttribute> list;
    staffInfo(list);
    if (!getDB()->saveStaffInfo(list)) {
        warn(tr("Save failed!"));
        return;
    }
    refreshStaff(true);
}

void Settings::on_btn_shiftAdd_clicked()
{
    const bool use24 = ui->ck_use24hour->isChecked();
    addRow(ui->shiftTable, {tr("Shift"), QString(), str2TimeFormat("08:00", use24), str2TimeFormat("12:00", use24),
                            "04:00"});
}

void Settings::on_btn_shiftDelete_clicked()
{
    removeCurrentRow(ui->shiftTable);
}

void Settings::on_btn_shiftSave_clicked()
{
    ui->shiftTable->setCurrentCell(-1, -1);
    QVector<ASAttribute> list;
    shiftInfo(list);
    if (!getDB()->saveShiftInfo(list)) {
        warn(tr("Save failed!"));
        return;
    }
    refreshShift(true);
}

void Settings::on_btn_permanentScheduleAdd_clicked()
{
    addRow(ui->permanentScheduleTable, {Settings::noneText()});
    ASAttribute record;
    record.setAttr("infotype", QString("permanentschedule"));
    permanentSchedules << record;
}

void Settings::on_btn_permanentScheduleDelete_clicked()
{
    const int row = ui->permanentScheduleTable->currentRow();
    removeCurrentRow(ui->permanentScheduleTable);
    if (row >= 0 && row < permanentSchedules.size())
        permanentSchedules.remove(row);
}

// Stores as many rows as the working vector has, each with its rule; the table is then shown
// again from what was stored, so that row i and element i agree. A refused Save sorts only a
// copy: the vector stays in the table's order and keeps each rule beside its row.
void Settings::on_btn_permanentScheduleSave_clicked()
{
    ui->permanentScheduleTable->setCurrentCell(-1, -1);
    QVector<ASAttribute> records = permanentSchedules;
    permanentScheduleInfo(records);
    if (!getDB()->savePermanentSchedule(records)) {
        warn(tr("Save failed!"));
        return;
    }
    permanentSchedules = getDB()->permanentSchedules;
    addPermanentScheduleInfos(permanentSchedules, false);
}
