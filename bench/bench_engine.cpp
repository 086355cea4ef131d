// Times generation, check, repair and the grid refresh on a synthetic plan, each beside a bare
// SQLite write or read of the same rows, and prints the medians.
//   rostera_bench [employees [groups [days]]]   one plan (default 1,000 employees, 20 groups, 31
//                                               days), and the "Employee Monthly" report to PDF
//   rostera_bench --scaling                     one table over 31, 365 and 999 days and 100, 1,000
//                                               and 5,000 employees (50 to a group), with growth
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

static int g_runs = 5;
static const int kShifts = 6;
static const int kShiftsPerGroup = 5;
static const QDate kFirstDay(2026, 3, 2);

struct Size
{
    int employees = 1000, groups = 20, days = 31;
};

struct Figures
{
    int rows = 0, faults = 0;
    double generation = 0, check = 0, repair = 0, byEmployee = 0, bySchedule = 0, insert = 0, select = 0;
};

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

// The employees spread evenly over the groups, 6 shifts, 5 standing rows of 1 to 3 a day in
// each group, 50 holidays, and for each month of the span a vacation for every fifth employee
// and a lock for every tenth, drawn from a fixed seed.
static bool writePlan(const Size &size)
{
    const int vacationCount = qMax(1, size.employees / 5 * size.days / 31);
    const int lockCount = qMax(1, size.employees / 10 * size.days / 31);
    std::mt19937 draw(20260302);
    const auto between = [&draw](int low, int high) { return std::uniform_int_distribution<int>(low, high)(draw); };
    QVector<ASAttribute> groups, staffs, shifts, rows, holidays, vacations, locks;
    for (int g = 0; g < size.groups; ++g)
        groups << record({{"name", groupName(g)}, {"abbreviation", groupName(g)}});
    for (int i = 0; i < size.employees; ++i)
        staffs << record({{"id", staffId(i)}, {"fname", "F"}, {"lname", "L"}, {"groupname", groupName(i * size.groups / size.employees)}});
    for (int s = 0; s < kShifts; ++s)
        shifts << record({{"name", QString("Shift%1").arg(s + 1)}, {"abbreviation", QString("S%1").arg(s + 1)},
                          {"starttm", "08:00"}, {"endtm", "16:00"}});
    for (int g = 0; g < size.groups; ++g) {
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
    while (vacations.size() < vacationCount) {
        const QString id = staffId(between(0, size.employees - 1));
        const QString date = dateText(kFirstDay.addDays(between(-3, size.days - 1)));
        if (!taken.contains(id + date)) {
            taken.insert(id + date);
            vacations << record({{"staffids", id}, {"date", date}, {"days", QString::number(between(1, 5))}, {"valid", "1"}});
        }
    }
    taken.clear();
    while (locks.size() < lockCount) {
        const QString id = staffId(between(0, size.employees - 1));
        const QString date = dateText(kFirstDay.addDays(between(0, size.days - 1)));
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

// Median of g_runs timings of work, in milliseconds; prepare runs untimed before each.
static double median(const std::function<void()> &work, const std::function<void()> &prepare = [] {})
{
    QVector<double> times;
    for (int run = 0; run < g_runs; ++run) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        times << timer.nsecsElapsed() / 1e6;
    }
    std::sort(times.begin(), times.end());
    return times.at(g_runs / 2);
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

// Writes the plan and times the work on it in a main window showing the whole span.
static Figures measure(const Size &size, const QString &folder)
{
    Figures f;
    if (!writePlan(size))
        return f;
    QSettings options(getAppDataPath(0), QSettings::IniFormat);
    options.setValue("Options/show from week", -1);
    options.setValue("Options/cycle days", size.days);
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
    const auto refresh = [&window](int view) {
        window.toolBar->setViewType(view);
        return median([&window] {
            window.prepareTable();
            window.refreshTable();
        });
    };
    f.generation = median(generate);
    const QVector<QStringList> rows = storedRows();
    f.rows = rows.size();
    f.insert = bareInsert(rows, folder);
    f.select = bareSelect(dates);
    QStringList faults;
    f.check = median([&] { faults = window.checkSchedule(false); }, fresh);
    f.faults = faults.size();
    f.repair = median([&] { window.checkSchedule(true); }, [&] { generate(); fresh(); });
    f.byEmployee = refresh(0);
    f.bySchedule = refresh(1);
    return f;
}

static void line(QTextStream &out, const QString &what, double ms, double bareMs, const QString &bareWhat)
{
    out << QString("%1 %2 ms   bare %3 %4 ms   ratio %5\n").arg(what, -30).arg(ms, 8, 'f', 1).arg(bareWhat, -7).arg(bareMs, 6, 'f', 1).arg(ms / bareMs, 6, 'f', 1);
}

static void single(QTextStream &out, const Size &size, const QString &folder)
{
    const Figures f = measure(size, folder);
    out << QString("Plan: %1 employees in %2 groups, %3 shifts, %4 standing rows, %5 vacations, 50 holidays, %6 locks; "
                   "cycle of %7 days; median of %8 runs\n")
               .arg(size.employees).arg(size.groups).arg(kShifts).arg(getDB()->permanentSchedules.size())
               .arg(rows("select count(*) from t_vacationinfo").value(0).value(0))
               .arg(rows("select count(*) from t_lock_employee").value(0).value(0)).arg(size.days).arg(g_runs);
    out << QString("Schedule rows written: %1\n").arg(f.rows);
    line(out, "generation with save", f.generation, f.insert, "insert");
    line(out, "check", f.check, f.select, "select");
    line(out, "repair", f.repair, f.select, "select");
    line(out, "grid refresh, by employee", f.byEmployee, f.select, "select");
    line(out, "grid refresh, by schedule", f.bySchedule, f.select, "select");
    out << QString("Faults reported by the check: %1\n").arg(f.faults);
}

// Each figure's growth beside the growth of the rows: 1.0 is linear in the rows.
static void growth(QTextStream &out, const QString &what, const Figures &from, const Figures &to)
{
    const double rows = double(to.rows) / from.rows;
    out << QString("%1 rows x%2   growth per row: generation %3  check %4  repair %5  grid by employee %6  by schedule %7\n")
               .arg(what, -22).arg(rows, 5, 'f', 1)
               .arg(to.generation / from.generation / rows, 4, 'f', 2).arg(to.check / from.check / rows, 4, 'f', 2)
               .arg(to.repair / from.repair / rows, 4, 'f', 2).arg(to.byEmployee / from.byEmployee / rows, 4, 'f', 2)
               .arg(to.bySchedule / from.bySchedule / rows, 4, 'f', 2);
}

static void scaling(QTextStream &out, const QString &folder)
{
    g_runs = 3;
    out << QString("Median of %1 runs in ms; x: times the bare SQLite insert (generation) or select (the others) of the same rows\n").arg(g_runs);
    out << QString("%1 %2 %3 %4 %5 %6 %7 %8 %9").arg("days", 5).arg("staff", 6).arg("rows", 7).arg("generation", 16)
               .arg("check", 16).arg("repair", 16).arg("grid/employee", 16).arg("grid/schedule", 16).arg("insert", 9)
        << QString(" %1\n").arg("select", 8);
    QMap<QPair<int, int>, Figures> all;
    for (int days : {31, 365, 999}) {
        for (int employees : {100, 1000, 5000}) {
            const Figures f = measure({employees, employees / 50, days}, folder);
            all[{days, employees}] = f;
            const auto cell = [](double ms, double bare) { return QString("%1 x%2").arg(ms, 8, 'f', 1).arg(ms / bare, -6, 'f', 1); };
            out << QString("%1 %2 %3 %4 %5 %6 %7 %8 %9").arg(days, 5).arg(employees, 6).arg(f.rows, 7)
                       .arg(cell(f.generation, f.insert), 16).arg(cell(f.check, f.select), 16).arg(cell(f.repair, f.select), 16)
                       .arg(cell(f.byEmployee, f.select), 16).arg(cell(f.bySchedule, f.select), 16).arg(f.insert, 9, 'f', 1)
                << QString(" %1\n").arg(f.select, 8, 'f', 1);
            out.flush();
        }
    }
    growth(out, "31 to 365 days", all[{31, 1000}], all[{365, 1000}]);
    growth(out, "31 to 999 days", all[{31, 1000}], all[{999, 1000}]);
    growth(out, "1,000 to 5,000 staff", all[{31, 1000}], all[{31, 5000}]);
    growth(out, "365 days, to 5,000", all[{365, 1000}], all[{365, 5000}]);
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
    const QString line = staffId(0) + QString(" S1").repeated(31);
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
    out << QString("%1 %2 ms   plain text %3 ms   ratio %4\n").arg("Employee Monthly to PDF", -30).arg(ms, 8, 'f', 1).arg(plainMs, 6, 'f', 1).arg(ms / plainMs, 5, 'f', 1);
}

int main(int argc, char **argv)
{
    // A fresh temporary home, made before the application object, removed at the end.
    TestHome home;
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList args = app.arguments().mid(1);
    Size size;
    size.employees = qMax(1, args.value(0, "1000").toInt());
    size.groups = qBound(1, args.value(1, "20").toInt(), size.employees);
    size.days = qBound(1, args.value(2, "31").toInt(), 999);
    if (!getDB()->openDB(QString())) {
        out << "could not open the database\n";
        return 1;
    }
    if (args.value(0) == "--scaling") {
        scaling(out, QDir::homePath());
    } else {
        single(out, size, QDir::homePath());
        reportBench(out, QDir::homePath());
    }
    out.flush();
    getDB()->closeDB();
    return 0;
}
