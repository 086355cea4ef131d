<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>Экспорт календаря</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>С:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>По:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Группа:</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>Сотрудник:</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>По файлу на сотрудника в папку</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>Один файл для одного сотрудника</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Все&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Нет&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>Не удалось записать файл календаря %1.</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>Для одного файла выберите одного сотрудника.</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>На этот период у выбранных сотрудников ничего не запланировано.</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>Файл iCalendar(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>Записан %n файл календаря.</numerusform>
            <numerusform>Записано %n файла календаря.</numerusform>
            <numerusform>Записано %n файлов календаря.</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>Клиент: %1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>Смена: %1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>Очистить график</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Дата начала:</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Дата окончания:</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>Дата окончания не может быть раньше даты начала.</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Копировать график за указанный период</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>Копировать с:</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>Количество дней:</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Копировать на:</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>Исходный и целевой периоды пересекаются.</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>Настройка праздников</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Дата:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Количество дней:</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Повторять ежегодно</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Действует</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>Введите название.</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>Настройка закрепления сотрудников</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Сотрудники:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Дата:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Примечание:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Действует</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>Не удалось открыть базу данных!</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>База данных успешно обновлена!</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>Не удалось обновить базу данных!</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>У этого плана версия базы данных %1, более новая, чем знает эта программа (%2). Он открыт как есть; при сохранении может потеряться то, что хранит более новая версия.</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>Выберите сотрудника.</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>Настройки отчётов</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Заголовок</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>Печатать подробности</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>Отчёты</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Дата с:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d.M.yyyy</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Дата по:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Группа:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Сотрудник:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>Печать в PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Сотрудник</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>Пн</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>We</source>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>Сб</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>Вс</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> – Отчёт</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Смена</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Неделя</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Клиент</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Окончание</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Сотрудники</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>Сотрудник %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>Сотрудник за неделю</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>Один сотрудник за неделю</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>Назначение смен за неделю</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>Сотрудник за месяц</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>Один сотрудник за месяц</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>Календарь сотрудников</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>Календарь одного сотрудника</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>Сотрудник по датам</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>Табель сотрудников</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>Назначение смен</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>Рабочие часы сотрудников</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>Рабочие часы одного сотрудника</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Все&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Нет&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>Дата начала не может быть позже даты окончания</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>Выберите сотрудника</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>Печать в файл PDF</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>Файл PDF(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>Ошибка печати</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>Не удалось сохранить график при исправлении!</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Группа:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Сотрудник:</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>Предыдущий год</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Г</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>M</source>
        <translation>М</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>Предыдущая неделя</translation>
    </message>
    <message>
        <source>W</source>
        <translation>Н</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>Следующая неделя</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>Следующий год</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Настройки</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Открыть базу данных</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Сохранить базу данных</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Отчеты</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Показать по сотрудникам</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Показать по графику</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Показать все</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Показать одну группу</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Показать одного сотрудника</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Сотрудники</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Смены</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>Постоянный график</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Праздники</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Руководство пользователя</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;Язык системы&gt;</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Polski</source>
        <translation>Polski</translation>
    </message>
    <message>
        <source>Pусский</source>
        <translation>Pусский</translation>
    </message>
    <message>
        <source>Español</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Italiano</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>中文简体</source>
        <translation>中文简体</translation>
    </message>
    <message>
        <source>中文繁体</source>
        <translation>中文繁体</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees, that day is during the holidays</source>
        <translation>Сотрудники не требуются, этот день приходится на праздники</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>В этот день для этой смены сотрудники не требуются</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>На эту смену в этот день уже назначено достаточно сотрудников</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>Сотрудник уже назначен на этот день</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>Не удалось получить график</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>Не удалось сохранить график</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Нет&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>Дата:[%1]Группа:[%2]Смена:[%3], сотрудник [%4] не существует, его нельзя назначать</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>Дата:[%1]Группа:[%2]Смена:[%3], сотрудник [%4] в отпуске, его нельзя назначить</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>Дата:[%1]Группа:[%2]Смена:[%3], сотрудника [%4] нельзя назначить более чем на одну смену</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Дата:[%1]Группа:[%2]Смена:[%3], этот день приходится на праздники. Сотрудники не требуются, не назначайте никого на этот день</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Дата:[%1]Группа:[%2]Смена:[%3]. Сотрудники не требуются, не назначайте никого на этот день</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>Дата:[%1]Группа:[%2]Смена:[%3], требуется сотрудников: %4, назначено на этот день: %5, </translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>меньше, чем нужно</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>больше, чем нужно</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>Вы действительно хотите заменить существующий график?</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>Исходный график пуст. Продолжить?</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>Не удалось скопировать график предыдущей недели!</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>Не удалось скопировать график с %1!</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>Вы действительно хотите очистить существующий график
с %1 по %2?</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>Не удалось очистить график!</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>Удалить существующий график?</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>Не удалось сохранить данные графика!</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>Файл базы данных (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>Не удалось открыть базу данных!</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>Сохранить базу данных как</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>Не удалось сохранить базу данных!</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>Изменение языка вступит в силу после перезапуска программы.</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Разработчик: %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Пн</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Сб</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Вс</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>Экспорт календаря...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Автоматически создать график на указанный период</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Дата начала:</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>Количество дней:</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>Проверить текущий график</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Исправить</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>Текущий график составлен без ошибок</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>Назначить сотрудников автоматически?</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Группы</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Сотрудники</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Смены</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>Постоянные графики</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Праздники</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>Постоянные праздники</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>Отпуска сотрудников</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>Всегда показывать график, начиная с дня</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>Период графика:</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> дн.</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>Рабочие дни недели</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>Использовать 24-часовой формат</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>Закреплять сотрудников за графиком</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>Закрепленные рабочие дни сотрудников</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Клиенты</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>Код клиента</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Сокращение</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Клиент</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Смена</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>Файл CSV (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>Не удалось выполнить экспорт!</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>Не удалось выполнить импорт!</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>Содержимое пусто!</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>Не удалось сохранить!</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Нет&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Фамилия</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Номер телефона</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Время начала</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Время окончания</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Продолжительность</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>Назначенный сотрудник</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>График</translation>
    </message>
    <message>
        <source>90</source>
        <comment>width of the Group column</comment>
        <translation>90</translation>
    </message>
    <message>
        <source>90</source>
        <comment>width of the Shift column</comment>
        <translation>90</translation>
    </message>
    <message>
        <source>150</source>
        <comment>width of the Designated Employee column</comment>
        <translation>180</translation>
    </message>
    <message>
        <source>200</source>
        <comment>width of the Schedule column</comment>
        <translation>200</translation>
    </message>
    <message>
        <source>Group X</source>
        <translation>Группа X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>Автоматически проверять наличие новой версии</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>Доступна новая версия[%1], текущая версия[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>Текущая версия[%1] является последней</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>Не удалось создать файл обновления</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>Не удалось записать файл обновления</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>Ошибка загрузки</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>Не удалось загрузить файл</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>Файл обновления загружен
обновление начнётся автоматически</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>Файл обновления загружен
Он находится в %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>Идёт обновление. Отменить?</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>Автоматически создать график</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>Обновить график</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Показать по сотрудникам</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Показать по графику</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Показать все</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Показать одну группу</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Показать одного сотрудника</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Отчеты</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Руководство пользователя</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>Автоматически создать график</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Автоматически создать график на указанный период</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>Копировать график за предыдущий период</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Копировать график за указанный период</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>Очистить график</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>Очистить график за указанный период</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>Настройка отпусков</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Сотрудники:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Дата:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Количество дней:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Примечание:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Действует</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>Настройка сотрудников и дат</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>День недели</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Количество сотрудников</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>Указанные даты</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Дата начала</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Дата окончания</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Неделя месяца</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>End date can&apos;t set before start date.</source>
        <translation>Дата окончания не может быть раньше даты начала.</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>Выберите неделю.</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>Выберите день недели.</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>Рабочие дни недели</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>Выберите хотя бы один день.</translation>
    </message>
</context>
</TS>
