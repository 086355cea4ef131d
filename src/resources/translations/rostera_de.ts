<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>Kalender exportieren</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>Mitarbeiter:</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>Eine Datei je Mitarbeiter in einen Ordner</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>Eine Datei für einen Mitarbeiter</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Alle&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>Die Kalenderdatei %1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>Wählen Sie für eine einzelne Datei einen Mitarbeiter.</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>Für die gewählten Mitarbeiter ist in diesem Zeitraum nichts geplant.</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>iCalendar-Datei(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>%n Kalenderdatei geschrieben.</numerusform>
            <numerusform>%n Kalenderdateien geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>Kunde: %1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>Schicht: %1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>Dienstplan löschen</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Startdatum:</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Enddatum:</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>Das Enddatum darf nicht vor dem Startdatum liegen.</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Dienstplan eines bestimmten Zeitraums kopieren</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>Kopieren ab:</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>Anzahl Tage:</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Kopieren nach:</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>Quell- und Zielzeitraum überschneiden sich.</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>Feiertagseinstellungen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Anzahl Tage:</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Jährlich wiederholen</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>Bitte geben Sie einen Namen ein.</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>Einstellungen für feste Arbeitstage</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Mitarbeiter:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Bemerkung:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>Die Datenbank konnte nicht geöffnet werden!</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>Die Datenbank wurde erfolgreich aktualisiert!</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>Die Datenbank konnte nicht aktualisiert werden!</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>Dieser Plan hat die Datenbankversion %1, die neuer ist, als dieses Programm kennt (%2). Er wird geöffnet, wie er ist; beim Speichern kann verloren gehen, was die neuere Version aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>Bitte wählen Sie einen Mitarbeiter aus.</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>Berichtseinstellungen</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>Einzelheiten drucken</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Datum von:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d.M.yyyy</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Datum bis:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Person:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>Als PDF drucken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Mitarbeiter</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>We</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>So</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> – Bericht</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Mitarbeiter</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>Person %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>Mitarbeiter wöchentlich</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>Einzelner Mitarbeiter wöchentlich</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>Schichtbesetzung wöchentlich</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>Mitarbeiter monatlich</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>Einzelner Mitarbeiter monatlich</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>Mitarbeiterkalender</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>Kalender eines Mitarbeiters</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>Mitarbeiter nach Datum</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>Mitarbeiter-Stundenzettel</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>Schichtbesetzung</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>Arbeitsstunden der Mitarbeiter</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>Arbeitsstunden eines Mitarbeiters</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Alle&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>Das Anfangsdatum darf nicht nach dem Enddatum liegen</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>Bitte wählen Sie eine Person</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>In PDF-Datei drucken</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>PDF-Datei(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>Drucken fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>Der Dienstplan konnte beim Korrigieren nicht gespeichert werden!</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Mitarbeiter:</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>Vorheriges Jahr</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>J</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>Vorherige Woche</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>Nächste Woche</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>Nächstes Jahr</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Datenbank speichern</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Nach Mitarbeitern anzeigen</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Nach Dienstplan anzeigen</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Eine Gruppe anzeigen</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Einen Mitarbeiter anzeigen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Mitarbeiter</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>Regelbesetzung</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Feiertage</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;Systemsprache&gt;</translation>
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
        <translation>Keine Mitarbeiter benötigt, der Tag ist ein Feiertag</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>Für diese Schicht werden an diesem Tag keine Mitarbeiter benötigt</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>Für diese Schicht sind an diesem Tag bereits genügend Mitarbeiter eingeteilt</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>An diesem Tag bereits eingeteilt</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>Der Dienstplan konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>Der Dienstplan konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>Datum:[%1]Gruppe:[%2]Schicht:[%3], Mitarbeiter [%4] existiert nicht und darf nicht eingeteilt werden</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>Datum:[%1]Gruppe:[%2]Schicht:[%3], Mitarbeiter [%4] ist im Urlaub und kann nicht eingeteilt werden</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>Datum:[%1]Gruppe:[%2]Schicht:[%3], Mitarbeiter [%4] kann nicht in mehr als eine Schicht eingeteilt werden</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Datum:[%1]Gruppe:[%2]Schicht:[%3], der Tag ist ein Feiertag. Es werden keine Mitarbeiter benötigt; teilen Sie für diesen Tag niemanden ein</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Datum:[%1]Gruppe:[%2]Schicht:[%3]. Es werden keine Mitarbeiter benötigt; teilen Sie für diesen Tag niemanden ein</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>Datum:[%1]Gruppe:[%2]Schicht:[%3], benötigte Mitarbeiter: %4, an diesem Tag eingeteilt: %5, </translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>weniger als benötigt</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>mehr als benötigt</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>Möchten Sie den vorhandenen Dienstplan wirklich ersetzen?</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>Der Quelldienstplan ist leer. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>Der Dienstplan der vorherigen Woche konnte nicht kopiert werden!</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>Der Dienstplan ab %1 konnte nicht kopiert werden!</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>Möchten Sie den vorhandenen Dienstplan
vom %1 bis %2 wirklich löschen?</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>Der Dienstplan konnte nicht gelöscht werden!</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>Vorhandenen Dienstplan löschen?</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>Die Dienstplandaten konnten nicht gespeichert werden!</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>Datenbankdatei (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>Die Datenbank konnte nicht geöffnet werden!</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>Datenbank speichern unter</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>Die Datenbank konnte nicht gespeichert werden!</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>Die Sprachänderung wird nach einem Neustart des Programms wirksam.</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Entwickelt von %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>Kalender exportieren...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Dienstplan für einen bestimmten Zeitraum automatisch erstellen</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Startdatum:</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>Anzahl Tage:</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>Aktuellen Dienstplan prüfen</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Korrigieren</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>Der aktuelle Dienstplan ist fehlerfrei</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>Mitarbeiter automatisch einteilen?</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Mitarbeiter</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>Regelbesetzungen</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Feiertage</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>Allgemeine Feiertage</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>Urlaub der Mitarbeiter</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>Dienstplan immer anzeigen ab</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>Dienstplanzeitraum:</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>Arbeitstage der Woche</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>24-Stunden-Format verwenden</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>Mitarbeiter fest an den Dienstplan binden</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>Feste Arbeitstage von Mitarbeitern</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>Kunden-Nr.</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>CSV-Datei (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>Der Export ist fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>Der Import ist fehlgeschlagen!</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>Der Inhalt ist leer!</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>Das Speichern ist fehlgeschlagen!</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Telefonnummer</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>Zugewiesener Mitarbeiter</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Dienstplan</translation>
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
        <translation>Gruppe X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Software-Aktualisierung</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>Neue Version automatisch suchen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>Neue Version[%1] verfügbar, aktuelle Version[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>Die aktuelle Version[%1] ist die neueste</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>Die Aktualisierungsdatei konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>Die Aktualisierungsdatei konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>Fehler beim Herunterladen</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>Die Datei konnte nicht heruntergeladen werden</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>Die Aktualisierungsdatei wurde heruntergeladen
Die Aktualisierung startet automatisch</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>Die Aktualisierungsdatei wurde heruntergeladen
Sie liegt in %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>Die Aktualisierung läuft. Möchten Sie sie abbrechen?</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>Dienstplan automatisch erstellen</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>Dienstplan aktualisieren</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Nach Mitarbeitern anzeigen</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Nach Dienstplan anzeigen</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Eine Gruppe anzeigen</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Einen Mitarbeiter anzeigen</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>Dienstplan automatisch erstellen</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Dienstplan für einen bestimmten Zeitraum automatisch erstellen</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>Dienstplan des vorherigen Zeitraums kopieren</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Dienstplan eines bestimmten Zeitraums kopieren</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>Dienstplan löschen</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>Dienstplan für einen bestimmten Zeitraum löschen</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>Urlaubseinstellungen</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Mitarbeiter:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Anzahl Tage:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Bemerkung:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>Mitarbeiter- und Datumseinstellungen</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>Wochentag</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Anzahl Mitarbeiter</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>Bestimmte Tage</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Startdatum</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Enddatum</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche im Monat</translation>
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
        <translation>D</translation>
    </message>
    <message>
        <source>W</source>
        <translation>M</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>End date can&apos;t set before start date.</source>
        <translation>Das Enddatum darf nicht vor dem Startdatum liegen.</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>Bitte wählen Sie eine Woche aus.</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>Bitte wählen Sie einen Wochentag aus.</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>Arbeitstage der Woche</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>Bitte wählen Sie mindestens einen Tag aus.</translation>
    </message>
</context>
</TS>
