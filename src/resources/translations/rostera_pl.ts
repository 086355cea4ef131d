<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>Eksportuj kalendarz</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupa:</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>Pracownik:</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>Jeden plik na pracownika do folderu</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>Jeden plik dla jednego pracownika</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Wszyscy&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>Nie można zapisać pliku kalendarza %1.</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>Wybierz jednego pracownika dla pojedynczego pliku.</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>W tym okresie wybrani pracownicy nie mają nic zaplanowanego.</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>Plik iCalendar(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>Zapisano %n plik kalendarza.</numerusform>
            <numerusform>Zapisano %n pliki kalendarza.</numerusform>
            <numerusform>Zapisano %n plików kalendarza.</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>Klient: %1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>Zmiana: %1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>Wyczyść grafik</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Data początkowa:</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Data końcowa:</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>Data końcowa nie może być wcześniejsza niż data początkowa.</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Kopiuj grafik z wybranego okresu</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>Kopiuj od:</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>Liczba dni:</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopiuj do:</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>Okres źródłowy i docelowy nakładają się.</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>Ustawienia świąt</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Liczba dni:</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Powtarzaj co roku</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Obowiązuje</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>Wprowadź nazwę.</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>Ustawienia stałych dni pracy</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Pracownicy:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Uwagi:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Obowiązuje</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>Nie udało się otworzyć bazy danych!</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>Baza danych została zaktualizowana!</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>Nie udało się zaktualizować bazy danych!</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>Ten plan ma wersję bazy danych %1, nowszą niż zna ten program (%2). Zostaje otwarty bez zmian; zapisanie może utracić to, co przechowuje nowsza wersja.</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>Wybierz pracownika.</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>Ustawienia raportów</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Raport</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>Drukuj szczegóły</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>Raporty</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Data od:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d.M.yyyy</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Data do:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupa:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Osoba:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>Drukuj do PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Pracownik</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>Pn</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>Wt</translation>
    </message>
    <message>
        <source>We</source>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>Cz</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>Nd</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> – Raport</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Zmiana</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Tydzień</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Klient</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Pracownicy</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Godziny</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>Osoba %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>Pracownik tygodniowo</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>Jeden pracownik tygodniowo</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>Przydział zmian tygodniowo</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>Pracownik miesięcznie</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>Jeden pracownik miesięcznie</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>Kalendarz pracowników</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>Kalendarz jednego pracownika</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>Pracownik według daty</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>Karta czasu pracy</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>Przydział zmian</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>Godziny pracy pracowników</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>Godziny pracy jednego pracownika</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Wszystkie&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>Data początkowa nie może być późniejsza niż końcowa</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>Wybierz osobę</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>Drukuj do pliku PDF</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>Plik PDF(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>Drukowanie nie powiodło się</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>Nie udało się zapisać grafiku podczas naprawy!</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupa:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Pracownik:</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>Poprzedni rok</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>R</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>Poprzedni tydzień</translation>
    </message>
    <message>
        <source>W</source>
        <translation>T</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>Następny tydzień</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>Następny rok</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Ustawienia</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Otwórz bazę danych</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Zapisz bazę danych</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Raporty</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Pokaż według pracowników</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Pokaż według grafiku</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Pokaż wszystko</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Pokaż jedną grupę</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Pokaż jednego pracownika</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupy</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Pracownicy</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Zmiany</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>Grafik stały</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Święta</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Podręcznik użytkownika</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Strona internetowa</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;Język systemu&gt;</translation>
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
        <translation>Pracownicy nie są potrzebni, ten dzień jest świętem</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>Ta zmiana nie wymaga w tym dniu pracowników</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>Do tej zmiany przydzielono już w tym dniu wystarczającą liczbę pracowników</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>Pracownik ma już przydział w tym dniu</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>Nie udało się pobrać grafiku</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>Nie udało się zapisać grafiku</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>Data:[%1]Grupa:[%2]Zmiana:[%3], pracownik [%4] nie istnieje i nie należy go przydzielać</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>Data:[%1]Grupa:[%2]Zmiana:[%3], pracownik [%4] jest na urlopie i nie może zostać przydzielony</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>Data:[%1]Grupa:[%2]Zmiana:[%3], pracownik [%4] nie może zostać przydzielony do więcej niż jednej zmiany</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Data:[%1]Grupa:[%2]Zmiana:[%3], ten dzień jest świętem. Pracownicy nie są potrzebni, nie należy nikogo przydzielać w tym dniu</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Data:[%1]Grupa:[%2]Zmiana:[%3]. Pracownicy nie są potrzebni, nie należy nikogo przydzielać w tym dniu</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>Data:[%1]Grupa:[%2]Zmiana:[%3], potrzebni pracownicy: %4, przydzieleni w tym dniu: %5, </translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>mniej niż potrzeba</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>więcej niż potrzeba</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>Czy na pewno zastąpić istniejący grafik?</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>Grafik źródłowy jest pusty. Kontynuować?</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>Nie udało się skopiować grafiku z poprzedniego tygodnia!</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>Nie udało się skopiować grafiku od %1!</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>Czy na pewno wyczyścić istniejący grafik
od %1 do %2?</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>Nie udało się wyczyścić grafiku!</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>Usunąć istniejący grafik?</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>Nie udało się zapisać danych grafiku!</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>Plik bazy danych (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>Nie udało się otworzyć bazy danych!</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>Zapisz bazę danych jako</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>Nie udało się zapisać bazy danych!</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>Zmiana języka zostanie zastosowana po ponownym uruchomieniu programu.</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Producent: %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Pn</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Cz</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sb</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Nd</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>Eksportuj kalendarz...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Automatycznie utwórz grafik dla wybranego okresu</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Data początkowa:</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>Liczba dni:</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>Sprawdź bieżący grafik</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Sprawdź</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>Bieżący grafik jest poprawny</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>Czy automatycznie przydzielić pracowników?</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupy</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Pracownicy</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Zmiany</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>Grafiki stałe</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Święta</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>Święta stałe</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>Urlopy pracowników</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>Zawsze pokazuj grafik od dnia</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>Okres grafiku:</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> dni</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>Dni robocze tygodnia</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>Używaj formatu 24-godzinnego</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>Przypisuj pracowników na stałe do grafiku</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>Stałe dni pracy pracowników</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Klienci</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>ID klienta</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Skrót</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Klient</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Zmiana</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>Plik CSV (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>Nie udało się wyeksportować!</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>Nie udało się zaimportować!</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>Zawartość jest pusta!</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>Nie udało się zapisać!</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwagi</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Imię</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nazwisko</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Numer telefonu</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Godzina rozpoczęcia</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Godzina zakończenia</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>Wyznaczony pracownik</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Grafik</translation>
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
        <translation>150</translation>
    </message>
    <message>
        <source>200</source>
        <comment>width of the Schedule column</comment>
        <translation>200</translation>
    </message>
    <message>
        <source>Group X</source>
        <translation>Grupa X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja programu</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>Automatycznie wykrywaj nową wersję</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>Dostępna nowa wersja[%1], bieżąca wersja[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>Bieżąca wersja[%1] jest najnowsza</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>Nie można utworzyć pliku aktualizacji</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>Nie można zapisać pliku aktualizacji</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>Błąd pobierania</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>Nie można pobrać pliku</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>Pobieranie pliku aktualizacji zakończone
aktualizacja uruchomi się automatycznie</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>Pobieranie pliku aktualizacji zakończone
Plik znajduje się w %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>Trwa aktualizacja. Czy chcesz ją anulować?</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>Automatycznie utwórz grafik</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>Odśwież grafik</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Pokaż według pracowników</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Pokaż według grafiku</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Pokaż wszystko</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Pokaż jedną grupę</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Pokaż jednego pracownika</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Raporty</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Podręcznik użytkownika</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>Automatycznie utwórz grafik</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Automatycznie utwórz grafik dla wybranego okresu</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>Kopiuj grafik z poprzedniego okresu</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Kopiuj grafik z wybranego okresu</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>Wyczyść grafik</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>Wyczyść grafik dla wybranego okresu</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>Ustawienia urlopów</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Pracownicy:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Liczba dni:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Uwagi:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Obowiązuje</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>Ustawienia pracowników i dat</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>Dzień tygodnia</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Liczba pracowników</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>Wybrane daty</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Data początkowa</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Data końcowa</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Tydzień miesiąca</translation>
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
        <translation>Data końcowa nie może być wcześniejsza niż data początkowa.</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>Wybierz tydzień.</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>Wybierz dzień tygodnia.</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>Dni robocze tygodnia</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>Wybierz co najmniej jeden dzień.</translation>
    </message>
</context>
</TS>
