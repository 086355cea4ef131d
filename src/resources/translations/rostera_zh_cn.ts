<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
