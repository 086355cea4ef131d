#include "fixture.h"

#include <QSqlQuery>
#include <QSqlRecord>

#include <cstdlib>
#include <unistd.h>

#include "mainwindow/appstart.h"
#include "update/softupdate.h"

static QString g_home;

TestHome::TestHome()
{
    char pattern[] = "/tmp/rostera-test-XXXXXX";
    g_home = QString::fromLocal8Bit(mkdtemp(pattern));
    const QByteArray home = g_home.toLocal8Bit();
    setenv("HOME", home, 1);
    for (const char *name : {"XDG_DATA_HOME=/.local/share", "XDG_CONFIG_HOME=/.config", "XDG_CACHE_HOME=/.cache",
                             "XDG_RUNTIME_DIR=/run", "TMPDIR=/tmp"}) {
        const QList<QByteArray> pair = QByteArray(name).split('=');
        QDir().mkpath(home + pair[1]);
        setenv(pair[0], home + pair[1], 1);
    }
    QFile::setPermissions(g_home + "/run", QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setApplicationIdentity();
    // Every window asks its update host at start: a closed loopback port, never the network.
    SoftUpdate::server = "http://127.0.0.1:1";
    Q_INIT_RESOURCE(rostera);
}

TestHome::~TestHome()
{
    QDir(g_home).removeRecursively();
}

const QStringList kTables{"t_groupinfo", "t_staffinfo", "t_shiftinfo", "t_permanentschedule", "t_holidayinfo",
                          "t_vacationinfo", "t_lock_employee", "t_schedule"};

ASAttribute record(std::initializer_list<std::pair<QString, QString>> values)
{
    ASAttribute r;
    for (const auto &value : values)
        r.setAttr(value.first, value.second);
    return r;
}

// Field names and defaults of each kind of a plan's text; "=" takes the first field's value.
static const QMap<QString, QList<std::pair<QString, QString>>> kPlanFields = {
    {"group", {{"name", ""}, {"abbreviation", "="}}},
    {"shift", {{"name", ""}, {"abbreviation", "="}, {"starttm", "08:00"}, {"endtm", "16:00"}}},
    {"staff", {{"id", ""}, {"groupname", ""}, {"fname", ""}, {"lname", ""}}},
    {"row", {{"groupname", ""}, {"shiftname", ""}, {"daystaffnum", ""}, {"employee_name", ""}}},
    {"holiday", {{"date", ""}, {"days", "1"}, {"repeat", "0"}, {"valid", "1"}, {"name", "h="}}},
    {"vacation", {{"staffids", ""}, {"date", ""}, {"days", "1"}, {"valid", "1"}}},
    {"lock", {{"staffids", ""}, {"date", ""}, {"valid", "1"}, {"shiftname", ""}}},
    {"schedule", {{"date", ""}, {"groupname", ""}, {"shiftname", ""}, {"staffs", ""}}},
};

QVector<ASAttribute> planRecords(const QString &kind, const QString &items)
{
    const auto fields = kPlanFields.value(kind);
    QVector<ASAttribute> list;
    for (const QString &item : items.split(' ', Qt::SkipEmptyParts)) {
        const QStringList values = item.split('/');
        ASAttribute r;
        for (int i = 0; i < fields.size(); ++i) {
            QString value = values.value(i, fields[i].second);
            if (i >= values.size() && value.endsWith('='))
                value = value.chopped(1) + values.value(0);
            r.setAttr(fields[i].first, value);
        }
        list << r;
    }
    return list;
}

bool saveRecords(const QString &kind, QVector<ASAttribute> records)
{
    DatabaseFunc *db = getDB();
    QString error;
    if (kind == "group")
        return db->saveGroupInfo(records, error);
    if (kind == "staff")
        return db->saveStaffInfo(records);
    if (kind == "shift")
        return db->saveShiftInfo(records);
    if (kind == "row")
        return db->savePermanentSchedule(records);
    if (kind == "holiday")
        return db->saveHolidayInfo(records);
    if (kind == "vacation")
        return db->saveVacationInfo(records);
    return kind == "lock" && db->saveLockEmployeeInfo(records);
}

bool writePlan(const QString &plan)
{
    QMap<QString, QVector<ASAttribute>> kinds{{"group", planRecords("group", "G H")},
                                              {"shift", planRecords("shift", "S T")}};
    for (const QString &section : plan.split('|', Qt::SkipEmptyParts)) {
        const QString text = section.trimmed();
        const QString kind = text.section(' ', 0, 0);
        kinds[kind] = planRecords(kind, text.section(' ', 1));
    }
    for (const char *kind : {"group", "staff", "shift", "row", "holiday", "vacation", "lock"})
        if (!saveRecords(kind, kinds[kind]))
            return false;
    return getDB()->deleteSchedule("1=1") && getDB()->saveSchedule(kinds["schedule"]);
}

QList<QStringList> rows(const QString &sql)
{
    QSqlQuery query(getDB()->db);
    if (!query.exec(sql))
        return {{"query failed: " + sql}};
    QList<QStringList> result;
    while (query.next()) {
        QStringList row;
        for (int i = 0; i < query.record().count(); ++i)
            row << query.value(i).toString();
        result << row;
    }
    return result;
}

QString rowsText(const QString &sql, const QString &fieldSep, const QString &rowSep)
{
    QStringList lines;
    for (const QStringList &row : rows(sql))
        lines << row.join(fieldSep);
    return lines.join(rowSep);
}

QString show(const QVector<ASAttribute> &records)
{
    QStringList out;
    for (const ASAttribute &r : records)
        for (auto it = r.values().cbegin(); it != r.values().cend(); ++it)
            out << (it == r.values().cbegin() ? "| " : "") + it.key() + "=" + it.value();
    return out.join(' ').mid(2);
}

QStringList scheduleTable()
{
    return rowsText("select date, groupname, shiftname, staffs from t_schedule order by 1, 2, 3", " ", "\n")
        .split('\n', Qt::SkipEmptyParts);
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QSettings config()
{
    return {getAppDataPath(0), QSettings::IniFormat};
}

QString pdfText(const QString &path)
{
    QProcess pdftotext;
    pdftotext.start("pdftotext", {"-layout", path, "-"});
    pdftotext.waitForFinished();
    return QString::fromUtf8(pdftotext.readAllStandardOutput()).replace(QRegularExpression(" +"), " ");
}

void setOption(const QString &key, const QVariant &value)
{
    config().setValue("Options/" + key, value);
}

QVector<QDate> daysFrom(const QDate &first, int count)
{
    QVector<QDate> dates;
    for (int i = 0; i < count; ++i)
        dates << first.addDays(i);
    return dates;
}

QVector<int> scriptedDraws;
int drawsTaken = 0;

Boxes::Boxes(QList<QMessageBox::StandardButton> answers, QMessageBox::StandardButton rest)
    : m_answers(answers), m_rest(rest)
{
    connect(&m_timer, &QTimer::timeout, this, &Boxes::poll);
    m_timer.start(20);
}

void Boxes::poll()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(w);
        if (!box || !box->isVisible() || m_seen.contains(box))
            continue;
        m_seen.append(box);
        texts << box->text();
        titles << box->windowTitle();
        defaults << (box->defaultButton() ? box->standardButton(box->defaultButton()) : QMessageBox::NoButton);
        icons << box->icon();
        buttons << box->standardButtons();
        QAbstractButton *target = box->button(m_answers.value(texts.size() - 1, m_rest));
        if (!target)
            target = box->defaultButton();
        if (target)
            QMetaObject::invokeMethod(target, "click", Qt::QueuedConnection);
        else
            QMetaObject::invokeMethod(box, "reject", Qt::QueuedConnection);
    }
}

void answerFileDialog(const QString &file, QStringList *seen, const std::function<void()> &after)
{
    whenDialogOpens<QFileDialog>([file, seen, after](QFileDialog *dialog) {
        if (seen)
            *seen = {dialog->windowTitle(), dialog->nameFilters().join(","), dialog->directory().path()};
        // The file name is not replaced while its editor has the focus.
        if (QWidget *focus = dialog->focusWidget())
            focus->clearFocus();
        dialog->selectFile(file);
        QMetaObject::invokeMethod(dialog, "accept");
        if (dialog->isVisible()) // refused: fail the test rather than hang it
            dialog->reject();
        else if (after)
            after();
    });
}

RosteraMain *openWindow()
{
    if (!getDB()->isOpen() && !getDB()->openDB(QString()))
        return nullptr;
    auto *window = new RosteraMain;
    window->randomNumber = [] { return scriptedDraws.value(drawsTaken++, 0); };
    window->show();
    return QTest::qWaitForWindowExposed(window) ? window : nullptr;
}

void setView(RosteraMain *window, int personType, const QString &group)
{
    window->toolBar->setPersonType(personType);
    window->refreshGroupCmb();
    window->ui->cmb_group->setCurrentIndex(group.isEmpty() ? 0 : window->ui->cmb_group->findText(group));
}
