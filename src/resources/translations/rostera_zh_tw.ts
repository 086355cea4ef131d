<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>匯出行事曆</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>從：</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>到：</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>組：</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>員工：</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>每位員工一個檔案，存入資料夾</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>一位員工一個檔案</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;全部&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;無&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>無法寫入行事曆檔案 %1。</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>單一檔案請選擇一位員工。</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>所選員工在此期間沒有任何排班。</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>iCalendar 檔案(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>已寫入 %n 個行事曆檔案。</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>客戶：%1</translation>
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
        <translation>開始日期：</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>結束日期：</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>結束日期不能早於開始日期。</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>複製指定週期的排班表</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>複製自：</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>複製天數：</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>複製到：</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>複製來源與目標的日期範圍有重疊。</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>假日設定</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名稱：</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期：</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>天數：</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>每年重複</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>請輸入名稱。</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>鎖定員工設定</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>員工：</translation>
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
        <translation>備註：</translation>
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
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>開啟資料庫失敗！</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>資料庫更新成功！</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>資料庫更新失敗！</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>此計畫的資料庫版本為 %1，比本程式所知的版本（%2）更新。將按原樣開啟；儲存時可能遺失較新版本保存的內容。</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>請選擇員工。</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>報表設定</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>報表</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>列印明細</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>報表</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>開始日期:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>yyyy/M/d</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>結束日期:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>組:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>人員:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>列印為 PDF</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>員工</translation>
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
        <translation> 報表</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>班次</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>客戶</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>員工</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>小時</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>人員 %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>員工週表</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>單一員工週表</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>排班分配週表</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>員工月表</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>單一員工月表</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>員工日曆</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>單一員工日曆</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>按日期的員工表</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>員工工時表</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>排班分配</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>員工工作時數</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>單一員工工作時數</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;全部&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;無&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>開始日期不能晚於結束日期</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>請選擇一個人員</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>列印到 PDF 檔案</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>PDF 檔案(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>列印失敗</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>修復時儲存排班表失敗！</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>組別：</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>員工：</translation>
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
        <translation>上個月</translation>
    </message>
    <message>
        <source>M</source>
        <translation>月</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>上一週</translation>
    </message>
    <message>
        <source>W</source>
        <translation>週</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>下一週</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>下個月</translation>
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
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>開啟資料庫</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>儲存資料庫</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>報表</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>依員工檢視</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>依排班表檢視</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>檢視全部</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>檢視單一組別</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>檢視單一員工</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>組別</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>員工</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>班別</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>固定排班</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>假日</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>使用者手冊</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>網站</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;系統語言&gt;</translation>
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
        <translation>當天為假日，不需要員工</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>該班別當天不需要員工</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>該班別當天已安排足夠的員工</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>當天已有安排</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>取得排班表失敗</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>儲存排班表失敗</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;無&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>日期：[%1]組別：[%2]班別：[%3]，員工[%4]不存在，請勿安排該員工</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>日期：[%1]組別：[%2]班別：[%3]，員工[%4]正在休假，無法安排</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>日期：[%1]組別：[%2]班別：[%3]，員工[%4]不能被安排到多個班別</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>日期：[%1]組別：[%2]班別：[%3]，當天為假日。不需要員工，請勿安排員工當天上班</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>日期：[%1]組別：[%2]班別：[%3]。不需要員工，請勿安排員工當天上班</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>日期：[%1]組別：[%2]班別：[%3]，需要%4名員工，當天已安排%5名員工，</translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>少於所需人數</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>多於所需人數</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>確定要取代現有的排班表嗎？</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>來源排班表是空的，是否繼續？</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>複製上週排班表失敗！</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>從%1起複製排班表失敗！</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>確定要清除現有的排班表嗎？
（%1 至 %2）</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>清除排班表失敗！</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>是否刪除現有的排班表？</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>儲存排班資訊失敗！</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>資料庫檔案 (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>開啟資料庫失敗！</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>資料庫另存新檔</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>資料庫另存新檔失敗！</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>語言變更將在軟體重新啟動後生效。</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>開發者：%1，&lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>週一</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>週二</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>週三</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>週四</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>週五</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>週六</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>週日</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>匯出行事曆...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>自動產生指定日期範圍的排班表</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>開始日期：</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>週期天數：</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>檢查目前的排班表</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>檢查</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>目前的排班表正確無誤</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>是否自動安排員工？</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>組別</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>員工</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>班別</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>固定排班</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>假日</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>固定假日</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>員工休假</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>排班表一律起始於</translation>
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
        <translation>排班週期：</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> 天</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>每週工作日</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>使用 24 小時制</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>員工鎖定排班</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>鎖定員工上班日期</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>客戶</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>客戶編號</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>簡稱</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>客戶</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>班別</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>CSV 檔案 (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>匯出失敗！</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>匯入失敗！</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>內容是空的！</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>儲存失敗！</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;無&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備註</translation>
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
        <translation>編號</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>組別</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>電話號碼</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>時長</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>指定員工</translation>
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
        <translation>組別 X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>軟體更新</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>自動偵測新版本</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>有新版本[%1]，目前版本[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>目前版本[%1]已是最新版本</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>建立更新檔案失敗</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>寫入更新檔案失敗</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>下載錯誤</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>下載檔案失敗</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>更新檔案下載完成
更新將自動開始</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>更新檔案下載完成
更新檔案位於 %1</translation>
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
        <translation>自動產生排班表</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>重新整理排班表</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>依員工檢視</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>依排班表檢視</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>檢視全部</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>檢視單一組別</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>檢視單一員工</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>報表</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>使用者手冊</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>自動產生排班表</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>自動產生指定日期範圍的排班表</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>複製上一週期的排班表</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>複製指定週期的排班表</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>清除排班表</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>清除指定日期範圍的排班表</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>休假設定</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>員工：</translation>
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
        <translation>天數：</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>備註：</translation>
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
        <translation>員工與日期設定</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>星期</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>員工人數</translation>
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
        <translation>開始日期</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>結束日期</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>每月第幾週</translation>
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
        <translation>結束日期不能早於開始日期。</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>請選擇第幾週。</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>請選擇星期幾。</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>每週工作日</translation>
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
        <translation>請至少選擇一天。</translation>
    </message>
</context>
</TS>
