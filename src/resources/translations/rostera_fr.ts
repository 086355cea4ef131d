<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>Exporter le calendrier</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Du :</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Au :</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe :</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>Employé :</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>Un fichier par employé dans un dossier</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>Un fichier pour un employé</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Tous&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>Impossible d&apos;écrire le fichier de calendrier %1.</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>Choisissez un employé pour un fichier unique.</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>Rien n&apos;est planifié pour les employés choisis sur cette période.</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>Fichier iCalendar(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>%n fichier de calendrier écrit.</numerusform>
            <numerusform>%n fichiers de calendrier écrits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>Client : %1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>Équipe : %1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>Effacer le planning</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Date de début&#xa0;:</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Date de fin&#xa0;:</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>La date de fin ne peut pas être antérieure à la date de début.</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Copier le planning d&apos;une période donnée</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>Copier à partir du&#xa0;:</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>Nombre de jours&#xa0;:</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copier vers le&#xa0;:</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>Les périodes source et cible se chevauchent.</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>Paramètres des jours fériés</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Nombre de jours&#xa0;:</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter chaque année</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Valide</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>Veuillez saisir un nom.</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>Paramètres des jours de travail fixes</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Employés&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Remarque&#xa0;:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Valide</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>Impossible d&apos;ouvrir la base de données&#xa0;!</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>La base de données a été mise à jour&#xa0;!</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>Échec de la mise à jour de la base de données&#xa0;!</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>Ce plan a la version de base de données %1, plus récente que celle que connaît ce programme (%2). Il est ouvert tel quel ; un enregistrement peut perdre ce que conserve la version plus récente.</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>Veuillez sélectionner un employé.</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>Paramètres des rapports</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>Imprimer le détail</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Date du :</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d/M/yyyy</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Date au :</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe :</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Personne :</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>Imprimer en PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Employé</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
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
        <translation>Je</translation>
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
        <translation>Di</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> – Rapport</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Poste</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Employés</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>Personne %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>Employé hebdomadaire</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>Un employé hebdomadaire</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>Affectation des postes hebdomadaire</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>Employé mensuel</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>Un employé mensuel</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>Calendrier des employés</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>Calendrier d&apos;un employé</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>Employé par date</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>Feuille de temps des employés</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>Affectation des postes</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>Heures de travail des employés</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>Heures de travail d&apos;un employé</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Tous&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>La date de début ne peut pas être postérieure à la date de fin</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>Veuillez choisir une personne</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>Imprimer dans un fichier PDF</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>Fichier PDF(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>L&apos;impression a échoué</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>Impossible d&apos;enregistrer le planning lors de la correction&#xa0;!</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Employé&#xa0;:</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>Année précédente</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>A</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>Semaine précédente</translation>
    </message>
    <message>
        <source>W</source>
        <translation>S</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>Semaine suivante</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>Année suivante</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Paramètres</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Ouvrir une base de données</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Enregistrer la base de données</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Afficher par employé</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Afficher par planning</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Afficher un seul groupe</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Afficher un seul employé</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Employés</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Postes</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>Planning type</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Jours fériés</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;Langue du système&gt;</translation>
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
        <translation>Aucun employé requis, ce jour est férié</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>Aucun employé n&apos;est requis pour ce poste ce jour-là</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>Ce poste compte déjà suffisamment d&apos;employés affectés ce jour-là</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>Déjà affecté ce jour-là</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>Impossible de charger le planning</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>Impossible d&apos;enregistrer le planning</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>Date&#xa0;:[%1]Groupe&#xa0;:[%2]Poste&#xa0;:[%3], l&apos;employé [%4] n&apos;existe pas et ne doit pas être affecté</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>Date&#xa0;:[%1]Groupe&#xa0;:[%2]Poste&#xa0;:[%3], l&apos;employé [%4] est en congé et ne peut pas être affecté</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>Date&#xa0;:[%1]Groupe&#xa0;:[%2]Poste&#xa0;:[%3], l&apos;employé [%4] ne peut pas être affecté à plus d&apos;un poste</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Date&#xa0;:[%1]Groupe&#xa0;:[%2]Poste&#xa0;:[%3], ce jour est férié. Aucun employé n&apos;est requis&#xa0;; n&apos;affectez personne ce jour-là</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Date&#xa0;:[%1]Groupe&#xa0;:[%2]Poste&#xa0;:[%3]. Aucun employé n&apos;est requis&#xa0;; n&apos;affectez personne ce jour-là</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>Date&#xa0;:[%1]Groupe&#xa0;:[%2]Poste&#xa0;:[%3], effectif requis&#xa0;: %4, effectif affecté ce jour-là&#xa0;: %5, </translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>inférieur au besoin</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>supérieur au besoin</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>Voulez-vous vraiment remplacer le planning existant&#xa0;?</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>Le planning source est vide. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>Impossible de copier le planning de la semaine précédente&#xa0;!</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>Impossible de copier le planning à partir du %1&#xa0;!</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>Voulez-vous vraiment effacer le planning existant
du %1 au %2&#xa0;?</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>Impossible d&apos;effacer le planning&#xa0;!</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>Supprimer le planning existant&#xa0;?</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>Impossible d&apos;enregistrer les données du planning&#xa0;!</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>Fichier de base de données (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>Impossible d&apos;ouvrir la base de données&#xa0;!</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>Enregistrer la base de données sous</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>Impossible d&apos;enregistrer la base de données&#xa0;!</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>Le changement de langue prendra effet au prochain démarrage du logiciel.</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Développé par %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar.</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer.</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jeu.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sam.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dim.</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>Exporter le calendrier...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Générer automatiquement le planning d&apos;une période donnée</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Date de début&#xa0;:</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>Nombre de jours&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>Vérifier le planning actuel</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Corriger</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>Le planning actuel est correct</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>Affecter automatiquement des employés&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Employés</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Postes</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>Plannings types</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Jours fériés</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>Jours fériés communs</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>Congés des employés</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>Toujours afficher le planning à partir du</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>Période du planning&#xa0;:</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> jours</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>Jours de travail de la semaine</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>Utiliser le format 24&#xa0;heures</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>Lier les employés au planning</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>Jours de travail fixes des employés</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>N° client</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Abréviation</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Poste</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>Fichier CSV (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>Échec de l&apos;exportation&#xa0;!</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>Échec de l&apos;importation&#xa0;!</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>Le contenu est vide&#xa0;!</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>Échec de l&apos;enregistrement&#xa0;!</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Numéro de téléphone</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>Employé désigné</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Planning</translation>
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
        <translation>Groupe X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>Détecter automatiquement la nouvelle version</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>Nouvelle version[%1] disponible, version actuelle[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>La version actuelle[%1] est la plus récente</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>Impossible de créer le fichier de mise à jour</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>Impossible d&apos;écrire le fichier de mise à jour</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>Erreur de téléchargement</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>Le téléchargement du fichier a échoué</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>Téléchargement du fichier de mise à jour terminé
la mise à jour va démarrer automatiquement</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>Téléchargement du fichier de mise à jour terminé
Le fichier se trouve dans %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>Mise à jour en cours. Voulez-vous annuler ?</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>Générer automatiquement le planning</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>Actualiser le planning</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Afficher par employé</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Afficher par planning</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Afficher un seul groupe</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Afficher un seul employé</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>Générer automatiquement le planning</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Générer automatiquement le planning d&apos;une période donnée</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>Copier le planning de la période précédente</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Copier le planning d&apos;une période donnée</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>Effacer le planning</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>Effacer le planning d&apos;une période donnée</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>Paramètres des congés</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Employés&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Nombre de jours&#xa0;:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Remarque&#xa0;:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Valide</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>Paramètres des employés et des dates</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>Jour de la semaine</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Nombre d&apos;employés</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>Dates spécifiques</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Date de début</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Date de fin</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine du mois</translation>
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
        <translation>La date de fin ne peut pas être antérieure à la date de début.</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>Veuillez sélectionner une semaine.</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>Veuillez sélectionner un jour de la semaine.</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>Jours de travail de la semaine</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>Veuillez sélectionner au moins un jour.</translation>
    </message>
</context>
</TS>
