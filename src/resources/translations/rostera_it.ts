<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>Esporta calendario</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Da:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppo:</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>Dipendente:</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>Un file per dipendente in una cartella</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>Un file per un dipendente</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Tutti&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>Impossibile scrivere il file di calendario %1.</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>Scegliere un dipendente per un singolo file.</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>Non è pianificato nulla per i dipendenti scelti in questo periodo.</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>File iCalendar(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>%n file di calendario scritto.</numerusform>
            <numerusform>%n file di calendario scritti.</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>Cliente: %1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>Turno: %1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>Cancella pianificazione</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Data di inizio:</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Data di fine:</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>La data di fine non può essere precedente alla data di inizio.</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Copia la pianificazione di un periodo specifico</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>Copia dal:</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>Numero di giorni:</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copia al:</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>I periodi di origine e di destinazione si sovrappongono.</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>Impostazioni festività</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Numero di giorni:</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Ripeti ogni anno</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Valido</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>Inserire un nome.</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>Impostazioni giorni di lavoro fissi</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Dipendenti:</translation>
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
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Valido</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>Impossibile aprire il database!</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>Database aggiornato correttamente!</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>Impossibile aggiornare il database!</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>Questo piano ha la versione di database %1, più recente di quella che questo programma conosce (%2). Viene aperto così com'è; salvando si può perdere ciò che la versione più recente conserva.</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>Selezionare un dipendente.</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>Impostazioni report</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>Stampa dettaglio</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Data da:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d/M/yyyy</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Data a:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppo:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Persona:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>Stampa PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Dipendente</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>We</source>
        <translation>Me</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>Gi</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>Ve</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>Do</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> – Report</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Turno</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Settimana</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Ora di inizio</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ora di fine</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Dipendenti</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Ore</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>Persona %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>Dipendente settimanale</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>Singolo dipendente settimanale</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>Assegnazione turni settimanale</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>Dipendente mensile</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>Singolo dipendente mensile</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>Calendario dipendenti</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>Calendario singolo dipendente</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>Dipendente per data</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>Foglio ore dipendenti</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>Assegnazione turni</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>Ore di lavoro dipendenti</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>Ore di lavoro singolo dipendente</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Tutti&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>La data di inizio non può essere successiva alla data di fine</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>Selezionare una persona</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>Stampa su file PDF</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>File PDF(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>Stampa non riuscita</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>Impossibile salvare la pianificazione durante la correzione!</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppo:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Dipendente:</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>Anno precedente</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>A</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>Settimana precedente</translation>
    </message>
    <message>
        <source>W</source>
        <translation>S</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>Settimana successiva</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>Anno successivo</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Impostazioni</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Guida</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Apri database</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Salva database</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Visualizza per dipendente</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Visualizza per pianificazione</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Visualizza tutto</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Visualizza un solo gruppo</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Visualizza un solo dipendente</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Dipendenti</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Turni</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>Pianificazione base</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Festività</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guida utente</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;Lingua di sistema&gt;</translation>
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
        <translation>Nessun dipendente necessario, il giorno è festivo</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>Per questo turno non servono dipendenti in questo giorno</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>A questo turno sono già assegnati abbastanza dipendenti in questo giorno</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>Già assegnato in questo giorno</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>Impossibile caricare la pianificazione</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>Impossibile salvare la pianificazione</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>Data:[%1]Gruppo:[%2]Turno:[%3], il dipendente [%4] non esiste e non deve essere assegnato</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>Data:[%1]Gruppo:[%2]Turno:[%3], il dipendente [%4] è in ferie e non può essere assegnato</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>Data:[%1]Gruppo:[%2]Turno:[%3], il dipendente [%4] non può essere assegnato a più di un turno</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Data:[%1]Gruppo:[%2]Turno:[%3], il giorno è festivo. Non servono dipendenti: non assegnare nessuno in questo giorno</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Data:[%1]Gruppo:[%2]Turno:[%3]. Non servono dipendenti: non assegnare nessuno in questo giorno</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>Data:[%1]Gruppo:[%2]Turno:[%3], dipendenti necessari: %4, assegnati in questo giorno: %5, </translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>meno del necessario</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>più del necessario</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>Sostituire davvero la pianificazione esistente?</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>La pianificazione di origine è vuota. Continuare?</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>Impossibile copiare la pianificazione della settimana precedente!</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>Impossibile copiare la pianificazione dal %1!</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>Cancellare davvero la pianificazione esistente
dal %1 al %2?</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>Impossibile cancellare la pianificazione!</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>Eliminare la pianificazione esistente?</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>Impossibile salvare i dati della pianificazione!</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>File di database (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>Impossibile aprire il database!</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>Salva database con nome</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>Impossibile salvare il database!</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>La modifica della lingua avrà effetto al riavvio del programma.</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Sviluppato da %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Gio</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sab</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>Esporta calendario...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Genera automaticamente la pianificazione di un periodo specifico</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Data di inizio:</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>Numero di giorni:</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>Verifica la pianificazione corrente</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Correggi</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>La pianificazione corrente è corretta</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>Assegnare automaticamente i dipendenti?</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Dipendenti</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Turni</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>Pianificazioni base</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Festività</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>Festività generali</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>Ferie dei dipendenti</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>Mostra sempre la pianificazione a partire da</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>Periodo della pianificazione:</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> giorni</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>Giorni lavorativi della settimana</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>Usa il formato 24 ore</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>Vincola i dipendenti alla pianificazione</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>Giorni di lavoro fissi dei dipendenti</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clienti</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>Codice cliente</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Abbreviazione</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Turno</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>File CSV (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>Impossibile esportare!</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>Impossibile importare!</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>Il contenuto è vuoto!</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>Impossibile salvare!</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Cognome</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Numero di telefono</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Ora di inizio</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ora di fine</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>Dipendente designato</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Pianificazione</translation>
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
        <translation>Gruppo X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento del software</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>Rileva automaticamente la nuova versione</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>Nuova versione[%1] disponibile, versione attuale[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>La versione attuale[%1] è la più recente</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>Impossibile creare il file di aggiornamento</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>Impossibile scrivere il file di aggiornamento</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>Errore di download</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>Download del file non riuscito</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>Download del file di aggiornamento completato
l&apos;aggiornamento partirà automaticamente</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>Download del file di aggiornamento completato
Il file si trova in %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>Aggiornamento in corso. Annullare?</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>Genera automaticamente la pianificazione</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>Aggiorna la pianificazione</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Visualizza per dipendente</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Visualizza per pianificazione</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Visualizza tutto</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Visualizza un solo gruppo</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Visualizza un solo dipendente</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guida utente</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>Genera automaticamente la pianificazione</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Genera automaticamente la pianificazione di un periodo specifico</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>Copia la pianificazione del periodo precedente</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Copia la pianificazione di un periodo specifico</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>Cancella pianificazione</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>Cancella la pianificazione di un periodo specifico</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>Impostazioni ferie</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Dipendenti:</translation>
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
        <translation>Numero di giorni:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Valido</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>Impostazioni di dipendenti e date</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>Giorno della settimana</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Numero di dipendenti</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>Date specifiche</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Data di inizio</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Data di fine</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Settimana del mese</translation>
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
        <translation>La data di fine non può essere precedente alla data di inizio.</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>Selezionare una settimana.</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>Selezionare un giorno della settimana.</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>Giorni lavorativi della settimana</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>Selezionare almeno un giorno.</translation>
    </message>
</context>
</TS>
