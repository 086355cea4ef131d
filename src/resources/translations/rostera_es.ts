<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>Exportar calendario</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Hasta:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>Empleado:</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>Un archivo por empleado en una carpeta</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>Un archivo para un empleado</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Todos&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>No se pudo escribir el archivo de calendario %1.</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>Elija un empleado para un solo archivo.</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>No hay nada programado para los empleados elegidos en este período.</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>Archivo iCalendar(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>%n archivo de calendario escrito.</numerusform>
            <numerusform>%n archivos de calendario escritos.</numerusform>
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
        <translation>Borrar horario</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Fecha de inicio:</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Fecha de fin:</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>La fecha de fin no puede ser anterior a la fecha de inicio.</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Copiar el horario de un período específico</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>Copiar desde:</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>Número de días:</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>Copiar a:</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>Los períodos de origen y destino se solapan.</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>Configuración de días festivos</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Número de días:</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir cada año</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Válido</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>Introduzca un nombre.</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>Configuración de días de trabajo fijos</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Empleados:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Válido</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>¡No se pudo abrir la base de datos!</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>¡La base de datos se actualizó correctamente!</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>¡No se pudo actualizar la base de datos!</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>Este plan tiene la versión de base de datos %1, más nueva de la que conoce este programa (%2). Se abre tal como está; al guardar puede perderse lo que guarda la versión más nueva.</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>Seleccione un empleado.</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>Configuración de informes</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>Imprimir detalle</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Fecha desde:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d/M/yyyy</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>Fecha hasta:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Persona:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>Imprimir PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Empleado</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
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
        <translation>Mi</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>Ju</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>Vi</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>Sá</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>Do</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> – Informe</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Turno</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Hora de fin</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Empleados</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>Persona %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>Empleado semanal</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>Un empleado semanal</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>Asignación de turnos semanal</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>Empleado mensual</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>Un empleado mensual</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>Calendario de empleados</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>Calendario de un empleado</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>Empleado por fecha</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>Hoja de horas de empleados</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>Asignación de turnos</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>Horas de trabajo de empleados</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>Horas de trabajo de un empleado</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Todos&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>La fecha de inicio no puede ser posterior a la fecha final</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>Seleccione una persona</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>Imprimir en archivo PDF</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>Archivo PDF(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>Error al imprimir</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>¡No se pudo guardar el horario al corregirlo!</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>Empleado:</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>Año anterior</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>A</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>Semana anterior</translation>
    </message>
    <message>
        <source>W</source>
        <translation>S</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>Semana siguiente</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>Año siguiente</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Configuración</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>Abrir base de datos</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>Guardar base de datos</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Ver por empleado</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Ver por horario</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Ver todo</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Ver un solo grupo</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Ver un solo empleado</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Empleados</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Turnos</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>Horario base</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Días festivos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;Idioma del sistema&gt;</translation>
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
        <translation>No se necesitan empleados, ese día es festivo</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>Este turno no necesita empleados ese día</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>Este turno ya tiene suficientes empleados asignados ese día</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>Ya asignado ese día</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>No se pudo obtener el horario</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>No se pudo guardar el horario</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>Fecha:[%1]Grupo:[%2]Turno:[%3], el empleado [%4] no existe y no debe asignarse</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>Fecha:[%1]Grupo:[%2]Turno:[%3], el empleado [%4] está de vacaciones y no se puede asignar</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>Fecha:[%1]Grupo:[%2]Turno:[%3], el empleado [%4] no puede asignarse a más de un turno</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Fecha:[%1]Grupo:[%2]Turno:[%3], ese día es festivo. No se necesitan empleados; no asigne a nadie ese día</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>Fecha:[%1]Grupo:[%2]Turno:[%3]. No se necesitan empleados; no asigne a nadie ese día</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>Fecha:[%1]Grupo:[%2]Turno:[%3], empleados necesarios: %4, asignados ese día: %5, </translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>menos de los necesarios</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>más de los necesarios</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>¿Seguro que desea reemplazar el horario existente?</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>El horario de origen está vacío. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>¡No se pudo copiar el horario de la semana anterior!</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>¡No se pudo copiar el horario desde el %1!</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>¿Seguro que desea borrar el horario existente
del %1 al %2?</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>¡No se pudo borrar el horario!</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>¿Eliminar el horario existente?</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>¡No se pudo guardar la información del horario!</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>Archivo de base de datos (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>¡No se pudo abrir la base de datos!</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>Guardar base de datos como</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>¡No se pudo guardar la base de datos!</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>El cambio de idioma se aplicará después de reiniciar el programa.</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>Desarrollado por %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
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
        <translation>Mié</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jue</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>Exportar calendario...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Generar automáticamente el horario de un período específico</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>Fecha de inicio:</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>Número de días:</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>Comprobar el horario actual</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Corregir</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>El horario actual es correcto</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>¿Desea asignar empleados automáticamente?</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Empleados</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>Turnos</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>Horarios base</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Días festivos</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>Días festivos generales</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>Vacaciones de los empleados</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>Mostrar siempre el horario a partir del</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>Período del horario:</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> días</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>Días laborables de la semana</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>Usar formato de 24 horas</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>Fijar los empleados al horario</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>Días de trabajo fijos de los empleados</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>ID de cliente</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Abreviatura</translation>
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
        <translation>Archivo CSV (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>¡No se pudo exportar!</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>¡No se pudo importar!</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>¡El contenido está vacío!</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>¡No se pudo guardar!</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellido</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Hora de inicio</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Hora de fin</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>Empleado designado</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horario</translation>
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
        <translation>Grupo X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización del software</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>Detectar automáticamente la nueva versión</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>Nueva versión[%1] disponible, versión actual[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>La versión actual[%1] es la más reciente</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>No se pudo crear el archivo de actualización</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>No se pudo escribir el archivo de actualización</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>Error de descarga</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>No se pudo descargar el archivo</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>Descarga del archivo de actualización terminada
la actualización se iniciará automáticamente</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>Descarga del archivo de actualización terminada
El archivo está en %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>Se está actualizando. ¿Desea cancelar?</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>Generar horario automáticamente</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>Actualizar horario</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>Ver por empleado</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>Ver por horario</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Ver todo</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>Ver un solo grupo</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>Ver un solo empleado</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>Generar horario automáticamente</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>Generar automáticamente el horario de un período específico</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>Copiar el horario del período anterior</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>Copiar el horario de un período específico</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>Borrar horario</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>Borrar el horario de un período específico</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>Configuración de vacaciones</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>Empleados:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>Número de días:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Válido</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>Configuración de empleados y fechas</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>Día de la semana</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Número de empleados</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>Fechas específicas</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>Fecha de inicio</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>Fecha de fin</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana del mes</translation>
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
        <translation>La fecha de fin no puede ser anterior a la fecha de inicio.</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>Seleccione una semana.</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>Seleccione un día de la semana.</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>Días laborables de la semana</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>Seleccione al menos un día.</translation>
    </message>
</context>
</TS>
