<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>导出日历</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>从：</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>到：</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>组：</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>员工：</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>每位员工一个文件，存入文件夹</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>一位员工一个文件</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;全部&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>无法写入日历文件 %1。</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>单个文件请选择一位员工。</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>所选员工在此期间没有任何排班。</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>iCalendar 文件(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>已写入 %n 个日历文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>客户：%1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>班次：%1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>清除排班表</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>开始日期：</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>结束日期：</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>结束日期不能早于开始日期。</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>复制指定周期的排班表</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>复制自：</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>复制天数：</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>复制到：</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>复制源与目标的日期范围有重叠。</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>节假日设置</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期：</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>天数：</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>每年重复</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>请输入名称。</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>锁定员工设置</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>员工：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期：</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>备注：</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>打开数据库失败！</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>数据库更新成功！</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>数据库更新失败！</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>此计划的数据库版本为 %1，比本程序所知的版本（%2）更新。将按原样打开；保存时可能丢失较新版本保存的内容。</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>请选择员工。</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>报表设置</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报表</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>打印明细</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>报表</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>开始日期:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>yyyy/M/d</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>结束日期:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>组:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>人员:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>打印为 PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>员工</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>一</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>二</translation>
    </message>
    <message>
        <source>We</source>
        <translation>三</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>四</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>五</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>六</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>日</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> 报表</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>班次</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>客户</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>员工</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>人员 %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>员工周表</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>单个员工周表</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>排班分配周表</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>员工月表</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>单个员工月表</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>员工日历</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>单个员工日历</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>按日期的员工表</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>员工工时表</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>排班分配</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>员工工作时数</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>单个员工工作时数</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;全部&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>开始日期不能晚于结束日期</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>请选择一个人员</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>打印到 PDF 文件</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>PDF 文件(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>打印失败</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>修复时保存排班表失败！</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>组别：</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>员工：</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>上一年</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>年</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>M</source>
        <translation>月</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>上一周</translation>
    </message>
    <message>
        <source>W</source>
        <translation>周</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>下一周</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>下个月</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>下一年</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>打开数据库</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>保存数据库</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>报表</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>按员工查看</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>按排班表查看</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>查看全部</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>查看单个组别</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>查看单个员工</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组别</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>员工</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>班次</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>固定排班</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>节假日</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;系统语言&gt;</translation>
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
        <translation>当天为节假日，不需要员工</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>该班次当天不需要员工</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>该班次当天已安排足够的员工</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>当天已有安排</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>获取排班表失败</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>保存排班表失败</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>日期：[%1]组别：[%2]班次：[%3]，员工[%4]不存在，请勿安排该员工</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>日期：[%1]组别：[%2]班次：[%3]，员工[%4]正在休假，不能安排</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>日期：[%1]组别：[%2]班次：[%3]，员工[%4]不能被安排到多个班次</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>日期：[%1]组别：[%2]班次：[%3]，当天为节假日。不需要员工，请勿安排员工当天上班</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>日期：[%1]组别：[%2]班次：[%3]。不需要员工，请勿安排员工当天上班</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>日期：[%1]组别：[%2]班次：[%3]，需要%4名员工，当天已安排%5名员工，</translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>少于所需人数</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>多于所需人数</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>确定要替换现有的排班表吗？</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>源排班表为空，是否继续？</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>复制上周排班表失败！</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>从%1起复制排班表失败！</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>确定要清除现有的排班表吗？
（%1 至 %2）</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>清除排班表失败！</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>是否删除现有的排班表？</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>保存排班信息失败！</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>数据库文件 (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>打开数据库失败！</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>数据库另存为</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>数据库另存为失败！</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>语言更改将在软件重新启动后生效。</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>开发者：%1，&lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>周一</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>周二</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>周三</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>周四</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>周五</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>周六</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>周日</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>导出日历...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>自动生成指定日期范围的排班表</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>开始日期：</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>周期天数：</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>检查当前排班表</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>当前排班表正确无误</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>是否自动安排员工？</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>组别</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>员工</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>班次</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>固定排班</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>节假日</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>固定节假日</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>员工休假</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>排班表始终起始于</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>排班周期：</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> 天</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>每周工作日</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>使用 24 小时制</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>员工锁定排班</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>锁定员工上班日期</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>客户</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>客户编号</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>简称</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>客户</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>班次</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>CSV 文件 (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>导出失败！</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>导入失败！</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>内容为空！</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>保存失败！</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>名</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>姓</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组别</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>电话号码</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>指定员工</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>排班表</translation>
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
        <translation>组别 X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>自动检测新版本</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>有新版本[%1]，当前版本[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>当前版本[%1]已是最新版本</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>创建更新文件失败</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>写入更新文件失败</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>下载错误</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>下载文件失败</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>更新文件下载完成
更新将自动开始</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>更新文件下载完成
更新文件位于 %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>正在更新，是否取消？</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>自动生成排班表</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>刷新排班表</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>按员工查看</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>按排班表查看</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>查看全部</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>查看单个组别</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>查看单个员工</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>报表</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>自动生成排班表</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>自动生成指定日期范围的排班表</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>复制上一周期的排班表</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>复制指定周期的排班表</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>清除排班表</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>清除指定日期范围的排班表</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>休假设置</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>员工：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期：</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>天数：</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>备注：</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>员工与日期设置</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>星期</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>员工人数</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>指定日期</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>开始日期</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>结束日期</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>每月第几周</translation>
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
        <translation>结束日期不能早于开始日期。</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>请选择第几周。</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>请选择星期几。</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>每周工作日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>请至少选择一天。</translation>
    </message>
</context>
</TS>
