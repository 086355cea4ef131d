// Times generation, check, repair and the grid refresh on a synthetic plan of 1,000 employees,
// each beside a bare SQLite write or read of the same rows, and prints the medians.
#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <QElapsedTimer>
#include <QSet>
#include <QSettings>
#include <QSqlQuery>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <random>

#include "core/apppaths.h"
#include "mainwindow/rosteramain.h"
#include "mainwindow/toolbar.h"
#include "persistence/databasefunc.h"
#include "reports/reports.h"
#include "ui_reports.h"
#include "fixture.h"
#include "ui_rosteramain.h"

static const int kRuns = 5;
static const int kGroups = 20;
static const int kStaffPerGroup = 50;
static const int kShifts = 6;
static const int kShiftsPerGroup = 5;
static const int kCycleDays = 31;
static const QDate kFirstDay(2026, 3, 2);

static QString staffId(int i)
{
    return QString("E%1").arg(i, 4, 10, QChar('0'));
}

static QString groupName(int g)
{
    return QString("G%1").arg(g + 1, 2, 10, QChar('0'));
}

static QString dateText(const QDate &date)
{
    return date.toString("yyyy-MM-dd");
}

// 1,000 employees in 20 groups, 6 shifts, 100 standing rows of 1 to 3 a day, 200 vacations,
// 50 holidays and 100 locks, drawn from a fixed seed.
static bool writePlan()
{
    std::mt19937 draw(20260302);
    const auto between = [&draw](int low, int high) { return std::uniform_int_distribution<int>(low, high)(draw); };
    QVector<ASAttribute> groups, staffs, shifts, rows, holidays, vacations, locks;
    for (int g = 0; g < kGroups; ++g)
        groups << record({{"name", groupName(g)}, {"abbreviation", groupName(g)}});
    for (int i = 0; i < kGroups * kStaffPerGroup; ++i)
        staffs << record({{"id", staffId(i)}, {"fname", "F"}, {"lname", "L"}, {"groupname", groupName(i / kStaffPerGroup)}});
    for (int s = 0; s < kShifts; ++s)
        shifts << record({{"name", QString("Shift%1").arg(s + 1)}, {"abbreviation", QString("S%1").arg(s + 1)},
                          {"starttm", "08:00"}, {"endtm", "16:00"}});
    for (int g = 0; g < kGroups; ++g) {
        for (int k = 0; k < kShiftsPerGroup; ++k) {
            QStringList perDay;
            for (int day = 0; day < 7; ++day)
                perDay << QString::number(between(1, 3));
            rows << record({{"groupname", groupName(g)}, {"shiftname", QString("Shift%1").arg((g + k) % kShifts + 1)},
                            {"daystaffnum", perDay.join(';')}, {"employee_name", ""}});
        }
    }
    for (int h = 0; h < 50; ++h)
        holidays << record({{"name", QString("Holiday %1").arg(h)}, {"date", dateText(QDate(2026, 1, 1).addDays(h * 7 + 3))},
                            {"days", QString::number(between(1, 2))}, {"repeat", QString::number(h % 2)}, {"valid", "1"}});
    QSet<QString> taken;
    while (vacations.size() < 200) {
        const QString id = staffId(between(0, kGroups * kStaffPerGroup - 1));
        const QString date = dateText(kFirstDay.addDays(between(-3, kCycleDays - 1)));
        if (!taken.contains(id + date)) {
            taken.insert(id + date);
            vacations << record({{"staffids", id}, {"date", date}, {"days", QString::number(between(1, 5))}, {"valid", "1"}});
        }
    }
    taken.clear();
    while (locks.size() < 100) {
        const QString id = staffId(between(0, kGroups * kStaffPerGroup - 1));
        const QString date = dateText(kFirstDay.addDays(between(0, kCycleDays - 1)));
        if (!taken.contains(id + date)) {
            taken.insert(id + date);
            locks << record({{"staffids", id}, {"date", date}, {"valid", "1"}});
        }
    }
    DatabaseFunc *db = getDB();
    QString error;
    return db->saveGroupInfo(groups, error) && db->saveStaffInfo(staffs) && db->saveShiftInfo(shifts)
           && db->savePermanentSchedule(rows) && db->saveHolidayInfo(holidays) && db->saveVacationInfo(vacations)
           && db->saveLockEmployeeInfo(locks) && db->deleteSchedule("1=1");
}

// Median of kRuns timings of work, in milliseconds; prepare runs untimed before each.
static double median(const std::function<void()> &work, const std::function<void()> &prepare = [] {})
{
    QVector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        times << timer.nsecsElapsed() / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times.at(kRuns / 2);
}

// The schedule rows of the cycle, as stored.
static QVector<QStringList> storedRows()
{
    QVector<QStringList> result;
    QSqlQuery query(getDB()->db);
    query.exec("select date,groupname,shiftname,staffs from t_schedule");
    while (query.next())
        result << QStringList{query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                              query.value(3).toString()};
    return result;
}

// Bare SQLite: the same rows inserted in one transaction with a prepared statement, into a
// table of the same shape in a file of its own.
static double bareInsert(const QVector<QStringList> &rows, const QString &folder)
{
    double ms = 0;
    {
        QSqlDatabase bare = QSqlDatabase::addDatabase("QSQLITE", "bare");
        bare.setDatabaseName(folder + "/bare.db");
        bare.open();
        QSqlQuery query(bare);
        query.exec("CREATE TABLE IF NOT EXISTS [t_schedule] ([date] DATE NOT NULL ON CONFLICT FAIL, [groupname] "
                   "NVARCHAR(100), [shiftname] NVARCHAR(100), [staffs] NVARCHAR(1000), primary key "
                   "(date,groupname,shiftname))");
        ms = median(
            [&] {
                bare.transaction();
                query.prepare("INSERT INTO t_schedule (date,groupname,shiftname,staffs) VALUES (?,?,?,?)");
                for (const QStringList &row : rows) {
                    for (int i = 0; i < 4; ++i)
                        query.bindValue(i, row.at(i));
                    query.exec();
                }
                bare.commit();
            },
            [&] { query.exec("delete from t_schedule"); });
        query.finish();
        bare.close();
    }
    QSqlDatabase::removeDatabase("bare");
    return ms;
}

// Bare SQLite: the cycle's rows read with one select, every value fetched.
static double bareSelect(const QVector<QDate> &dates)
{
    return median([&] {
        QSqlQuery query(getDB()->db);
        query.exec(QString("select * from t_schedule where date>='%1' and date<='%2'")
                       .arg(dateText(dates.first()), dateText(dates.last())));
        while (query.next())
            for (int i = 0; i < 4; ++i)
                query.value(i).toString();
    });
}

static void report(QTextStream &out, const QString &what, double ms, double bareMs, const QString &bareWhat,
                   double budgetMs)
{
    out << QString("%1 %2 ms   bare %3 %4 ms   ratio %5   budget %6 ms%7\n")
               .arg(what, -30)
               .arg(ms, 8, 'f', 1)
               .arg(bareWhat, -7)
               .arg(bareMs, 6, 'f', 1)
               .arg(ms / bareMs, 6, 'f', 1)
               .arg(budgetMs, 5, 'f', 0)
               .arg(ms <= budgetMs ? "" : "   OVER BUDGET");
}

// "Employee Monthly" of every group to a PDF, beside the same number of pages of plain text drawn
// with QPainter into a PDF: as many lines per page as the report has rows, each of the same length.
static void reportBench(QTextStream &out, const QString &folder)
{
    Reports reports;
    reports.ui->listWidget->setCurrentRow(Reports::EmployeeMonthly);
    reports.ui->date_from->setDate(kFirstDay);
    reports.ui->cmb_group->setCurrentIndex(0);
    const double ms = median([&] {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder + "/monthly.pdf");
        reports.printPreview(&printer);
    });
    const int pages = qMax(reports.pageNo, 1);
    const int linesPerPage = getDB()->staffs.size() / pages + 1;
    const QString line = staffId(0) + QString(" S1").repeated(kCycleDays);
    const double plainMs = median([&] {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder + "/plain.pdf");
        QPainter painter(&printer);
        painter.setFont(QFont("Arial", 10));
        for (int page = 0; page < pages; ++page) {
            if (page > 0)
                printer.newPage();
            for (int i = 0; i < linesPerPage; ++i)
                painter.drawText(0, 100 + i * 150, line);
        }
    });
    out << QString("Report pages: %1 (%2 rows a page)\n").arg(pages).arg(linesPerPage);
    report(out, "Employee Monthly to PDF", ms, plainMs, "text", 2000);
}

int main(int argc, char **argv)
{
    // A fresh temporary home, made before the application object, removed at the end.
    TestHome home;
    QApplication app(argc, argv);
    QTextStream out(stdout);
    if (!getDB()->openDB(QString()) || !writePlan()) {
        out << "could not write the plan\n";
        return 1;
    }
    QSettings options(getAppDataPath(0), QSettings::IniFormat);
    options.setValue("Options/show from week", -1);
    options.setValue("Options/cycle days", kCycleDays);
    options.setValue("Options/work week", "1,2,3,4,5,6,7");
    options.sync();

    RosteraMain window;
    window.ui->date_current->setDate(kFirstDay);
    const QVector<QDate> dates = window.cycleDates;
    const auto generate = [&window, &dates] { window.auto_schedule(dates, true); };
    // The check appends to the holidays and vacations; a generation run starts from empty lists.
    const auto fresh = [&window] {
        window.holidays.clear();
        window.vacations.clear();
    };

    out << QString("Plan: %1 employees in %2 groups, %3 shifts, %4 standing rows, 200 vacations, 50 holidays, 100 locks; "
                   "cycle of %5 dates; median of %6 runs\n")
               .arg(getDB()->staffs.size())
               .arg(getDB()->groups.size())
               .arg(getDB()->shifts.size())
               .arg(getDB()->permanentSchedules.size())
               .arg(dates.size())
               .arg(kRuns);
    const double generation = median(generate);
    const QVector<QStringList> rows = storedRows();
    const double insert = bareInsert(rows, TestHome::path());
    const double select = bareSelect(dates);
    out << QString("Schedule rows written: %1\n").arg(rows.size());
    report(out, "generation with save", generation, insert, "insert", 1000);
    QStringList faults;
    report(out, "check", median([&] { faults = window.checkSchedule(false); }, fresh), select, "select", 300);
    report(out, "repair", median([&] { window.checkSchedule(true); }, [&] { generate(); fresh(); }), select, "select", 300);
    window.toolBar->setViewType(0);
    report(out, "grid refresh, by employee", median([&] {
               window.prepareTable();
               window.refreshTable();
           }),
           select, "select", 200);
    window.toolBar->setViewType(1);
    report(out, "grid refresh, by schedule", median([&] {
               window.prepareTable();
               window.refreshTable();
           }),
           select, "select", 200);
    out << QString("Faults reported by the check: %1\n").arg(faults.size());
    reportBench(out, TestHome::path());
    out.flush();
    getDB()->closeDB();
    return 0;
}
