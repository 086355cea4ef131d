<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>CalendarExport</name>
    <message>
        <source>Export Calendar</source>
        <translation>カレンダーのエクスポート</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>開始:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>終了:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>グループ:</translation>
    </message>
    <message>
        <source>Employee:</source>
        <translation>従業員:</translation>
    </message>
    <message>
        <source>One file per employee into a folder</source>
        <translation>従業員ごとに 1 ファイルをフォルダーへ</translation>
    </message>
    <message>
        <source>One file for one employee</source>
        <translation>1 人の従業員に 1 ファイル</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;すべて&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>The calendar file %1 could not be written.</source>
        <translation>カレンダーファイル %1 を書き込めませんでした。</translation>
    </message>
    <message>
        <source>Choose one employee for a single file.</source>
        <translation>1 つのファイルには従業員を 1 人選んでください。</translation>
    </message>
    <message>
        <source>Nothing is scheduled for the chosen employees in this span.</source>
        <translation>この期間、選んだ従業員には何も予定されていません。</translation>
    </message>
    <message>
        <source>iCalendar File(*.ics)</source>
        <translation>iCalendar ファイル(*.ics)</translation>
    </message>
    <message numerus="yes">
        <source>%n calendar file(s) written.</source>
        <translation>
            <numerusform>%n 個のカレンダーファイルを書き込みました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Customer: %1</source>
        <translation>顧客: %1</translation>
    </message>
    <message>
        <source>Shift: %1</source>
        <translation>シフト: %1</translation>
    </message>
</context>
<context>
    <name>ClearScheduleSettings</name>
    <message>
        <source>Clear Schedule</source>
        <translation>勤務表をクリア</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>開始日：</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>終了日：</translation>
    </message>
    <message>
        <source>To date can&apos;t before from date</source>
        <translation>終了日を開始日より前にすることはできません。</translation>
    </message>
</context>
<context>
    <name>CopyScheduleSettings</name>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>指定期間の勤務表をコピー</translation>
    </message>
    <message>
        <source>Copy from:</source>
        <translation>コピー元：</translation>
    </message>
    <message>
        <source>Copy days:</source>
        <translation>コピー日数：</translation>
    </message>
    <message>
        <source>Copy to:</source>
        <translation>コピー先：</translation>
    </message>
    <message>
        <source>There has overlapping day between from and to dates</source>
        <translation>コピー元とコピー先の期間が重複しています。</translation>
    </message>
</context>
<context>
    <name>HolidaySettings</name>
    <message>
        <source>Holiday Settings</source>
        <translation>休日の設定</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日付：</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>日数：</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>毎年繰り返す</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Please input a name.</source>
        <translation>名称を入力してください。</translation>
    </message>
</context>
<context>
    <name>LockEmployee</name>
    <message>
        <source>Lock Employee Settings</source>
        <translation>勤務日固定の設定</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>従業員：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日付：</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>備考：</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Open Database Failed!</source>
        <translation>データベースを開けませんでした。</translation>
    </message>
    <message>
        <source>Update database success!</source>
        <translation>データベースを更新しました。</translation>
    </message>
    <message>
        <source>Update database failed!</source>
        <translation>データベースを更新できませんでした。</translation>
    </message>
    <message>
        <source>This plan has the database version %1, which is newer than this program knows (%2). It is opened as it is; saving may lose what the newer version keeps.</source>
        <translation>このプランのデータベース バージョン %1 は、このプログラムが知っているバージョン (%2) より新しいものです。そのまま開きますが、保存すると新しいバージョンが保持する内容が失われることがあります。</translation>
    </message>
</context>
<context>
    <name>RecordEditor</name>
    <message>
        <source>Please select a employee.</source>
        <translation>従業員を選択してください。</translation>
    </message>
</context>
<context>
    <name>ReportSettings</name>
    <message>
        <source>Report Settings</source>
        <translation>レポート設定</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Print detail</source>
        <translation>詳細を印刷</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Reports</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>開始日:</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>yyyy/M/d</translation>
    </message>
    <message>
        <source>Date to:</source>
        <translation>終了日:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>グループ:</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>個人:</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Print PDF</source>
        <translation>PDF に印刷</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>従業員</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>火</translation>
    </message>
    <message>
        <source>We</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>土</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>日</translation>
    </message>
    <message>
        <source> Report</source>
        <translation> レポート</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>従業員</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Person %1</source>
        <translation>個人 %1</translation>
    </message>
    <message>
        <source>Employee Weekly</source>
        <translation>従業員週間</translation>
    </message>
    <message>
        <source>Single Employee Weekly</source>
        <translation>個人週間</translation>
    </message>
    <message>
        <source>Schedule Assignment Weekly</source>
        <translation>シフト割当週間</translation>
    </message>
    <message>
        <source>Employee Monthly</source>
        <translation>従業員月間</translation>
    </message>
    <message>
        <source>Single Employee Monthly</source>
        <translation>個人月間</translation>
    </message>
    <message>
        <source>Employee Calendar</source>
        <translation>従業員カレンダー</translation>
    </message>
    <message>
        <source>Single Employee Calendar</source>
        <translation>個人カレンダー</translation>
    </message>
    <message>
        <source>Employee By Date</source>
        <translation>日付別従業員</translation>
    </message>
    <message>
        <source>Employee Timesheet</source>
        <translation>従業員タイムシート</translation>
    </message>
    <message>
        <source>Schedule Assignment</source>
        <translation>シフト割当</translation>
    </message>
    <message>
        <source>Employee Work Hours</source>
        <translation>従業員労働時間</translation>
    </message>
    <message>
        <source>Single Employee Work Hours</source>
        <translation>個人労働時間</translation>
    </message>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;すべて&gt;</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>The start date can not be earlier than the end date</source>
        <translation>開始日を終了日より後にすることはできません</translation>
    </message>
    <message>
        <source>Please select a person</source>
        <translation>個人を選択してください</translation>
    </message>
    <message>
        <source>Print PDF File</source>
        <translation>PDF ファイルに印刷</translation>
    </message>
    <message>
        <source>PDF File(*.pdf)</source>
        <translation>PDF ファイル(*.pdf)</translation>
    </message>
    <message>
        <source>Print failed</source>
        <translation>印刷に失敗しました</translation>
    </message>
</context>
<context>
    <name>RosteraMain</name>
    <message>
        <source>Save schedule failed when repair it!</source>
        <translation>修正中に勤務表を保存できませんでした。</translation>
    </message>
    <message>
        <source>Rostera</source>
        <translation>Rostera</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>グループ：</translation>
    </message>
    <message>
        <source>Person:</source>
        <translation>従業員：</translation>
    </message>
    <message>
        <source>The previous year</source>
        <translation>前の年</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>年</translation>
    </message>
    <message>
        <source>The previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>M</source>
        <translation>月</translation>
    </message>
    <message>
        <source>The previous week</source>
        <translation>前の週</translation>
    </message>
    <message>
        <source>W</source>
        <translation>週</translation>
    </message>
    <message>
        <source>The next week</source>
        <translation>次の週</translation>
    </message>
    <message>
        <source>The next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>The next year</source>
        <translation>次の年</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open Database</source>
        <translation>データベースを開く</translation>
    </message>
    <message>
        <source>Save Database</source>
        <translation>データベースを保存</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>従業員別に表示</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>勤務表別に表示</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>グループを指定して表示</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>従業員を指定して表示</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>従業員</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>Permanent Schedule</source>
        <translation>基本勤務表</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>休日</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>&lt;System Language&gt;</source>
        <translation>&lt;システムの言語&gt;</translation>
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
        <translation>この日は休日のため、従業員は不要です</translation>
    </message>
    <message>
        <source>Don&apos;t need any employees for this shift of that day</source>
        <translation>この日のこのシフトには従業員は不要です</translation>
    </message>
    <message>
        <source>Already assigned enough employees for this shift of that day</source>
        <translation>この日のこのシフトには、必要な人数の従業員が既に割り当てられています</translation>
    </message>
    <message>
        <source>Already assigned on that day</source>
        <translation>この日は既に割り当て済みです</translation>
    </message>
    <message>
        <source>Get schedule failed</source>
        <translation>勤務表を取得できませんでした</translation>
    </message>
    <message>
        <source>Save schedule failed</source>
        <translation>勤務表を保存できませんでした</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] doesn&apos;t exist,don&apos;t assign the employee</source>
        <translation>日付：[%1]グループ：[%2]シフト：[%3]、従業員 [%4] は存在しないため、割り当てないでください</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] is during the vacations, can&apos;t be assigned</source>
        <translation>日付：[%1]グループ：[%2]シフト：[%3]、従業員 [%4] は休暇中のため、割り当てできません</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Employee [%4] can&apos;t be assigned to more than one shift</source>
        <translation>日付：[%1]グループ：[%2]シフト：[%3]、従業員 [%4] を複数のシフトに割り当てることはできません</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3], that day is during the holidays. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>日付：[%1]グループ：[%2]シフト：[%3]、この日は休日です。従業員は不要のため、この日には割り当てないでください</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3]. Do not require employees,don&apos;t assign employees work for that day</source>
        <translation>日付：[%1]グループ：[%2]シフト：[%3]。従業員は不要のため、この日には割り当てないでください</translation>
    </message>
    <message>
        <source>Date:[%1]Group:[%2]Shift:[%3],Need %4 employees work, %5 employees were assigned work for that day,</source>
        <translation>日付：[%1]グループ：[%2]シフト：[%3]、必要人数 %4 人に対し、この日の割り当ては %5 人で、</translation>
    </message>
    <message>
        <source>less than need</source>
        <translation>不足しています</translation>
    </message>
    <message>
        <source>more than need</source>
        <translation>超過しています</translation>
    </message>
    <message>
        <source>Are you sure to replace existing schedule?</source>
        <translation>既存の勤務表を置き換えてもよろしいですか？</translation>
    </message>
    <message>
        <source>Source schedule is empty, continue?</source>
        <translation>コピー元の勤務表は空です。続行しますか？</translation>
    </message>
    <message>
        <source>Copy schedule of previous week failed!</source>
        <translation>前の週の勤務表をコピーできませんでした。</translation>
    </message>
    <message>
        <source>Copy schedule from %1 failed!</source>
        <translation>%1 からの勤務表をコピーできませんでした。</translation>
    </message>
    <message>
        <source>Are you sure to clear existing schedule
from %1 to %2?</source>
        <translation>既存の勤務表をクリアしてもよろしいですか？
（%1～%2）</translation>
    </message>
    <message>
        <source>Clear schedule failed!</source>
        <translation>勤務表をクリアできませんでした。</translation>
    </message>
    <message>
        <source>Delete existing schedule?</source>
        <translation>既存の勤務表を削除しますか？</translation>
    </message>
    <message>
        <source>Save schedule information failed!</source>
        <translation>勤務表の情報を保存できませんでした。</translation>
    </message>
    <message>
        <source>Rostera-%1</source>
        <translation>Rostera-%1</translation>
    </message>
    <message>
        <source>DB File(*.db)</source>
        <translation>データベース ファイル (*.db)</translation>
    </message>
    <message>
        <source>Open database failed!</source>
        <translation>データベースを開けませんでした。</translation>
    </message>
    <message>
        <source>Save As Database</source>
        <translation>名前を付けてデータベースを保存</translation>
    </message>
    <message>
        <source>Save as database failed!</source>
        <translation>データベースを保存できませんでした。</translation>
    </message>
    <message>
        <source>Language change will take effect after the restart of the software.</source>
        <translation>言語の変更は、ソフトウェアの再起動後に有効になります。</translation>
    </message>
    <message>
        <source>Made by %1, &lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</source>
        <translation>開発元：%1、&lt;a href=&quot;%2&quot;&gt;%2&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>火</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>土</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Export Calendar...</source>
        <translation>カレンダーのエクスポート...</translation>
    </message>
</context>
<context>
    <name>RosteraSettings</name>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>指定期間の勤務表を自動作成</translation>
    </message>
    <message>
        <source>Date from:</source>
        <translation>開始日：</translation>
    </message>
    <message>
        <source>Cycle days:</source>
        <translation>日数：</translation>
    </message>
</context>
<context>
    <name>ScheduleStatus</name>
    <message>
        <source>Check current schedule</source>
        <translation>現在の勤務表をチェック</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Current schedule is correct</source>
        <translation>現在の勤務表に問題はありません</translation>
    </message>
    <message>
        <source>Need to allocate staff automatically?</source>
        <translation>従業員を自動で割り当てますか？</translation>
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
        <translation>グループ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>従業員</translation>
    </message>
    <message>
        <source>Shifts</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>Permanent Schedules</source>
        <translation>基本勤務表</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>休日</translation>
    </message>
    <message>
        <source>Permanent holidays</source>
        <translation>固定休日</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Vacations of employee</source>
        <translation>従業員の休暇</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Always show schedule from</source>
        <translation>勤務表の表示開始曜日を固定</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Schedule cycle:</source>
        <translation>勤務表の期間：</translation>
    </message>
    <message>
        <source> Days</source>
        <translation> 日</translation>
    </message>
    <message>
        <source>Day of week to work</source>
        <translation>勤務する曜日</translation>
    </message>
    <message>
        <source>Use 24hour format</source>
        <translation>24 時間形式を使用</translation>
    </message>
    <message>
        <source>Employee lock to schedule</source>
        <translation>従業員を勤務表に固定</translation>
    </message>
    <message>
        <source>Lock employee work date</source>
        <translation>従業員の勤務日固定</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>Cust ID</source>
        <translation>顧客 ID</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>略称</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>顧客</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message>
        <source>CSV File(*.csv)</source>
        <translation>CSV ファイル (*.csv)</translation>
    </message>
    <message>
        <source>Export failed!</source>
        <translation>エクスポートできませんでした。</translation>
    </message>
    <message>
        <source>Import failed!</source>
        <translation>インポートできませんでした。</translation>
    </message>
    <message>
        <source>The content is empty!</source>
        <translation>内容が空です。</translation>
    </message>
    <message>
        <source>Save failed!</source>
        <translation>保存できませんでした。</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
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
        <translation>ID</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Phone Number</source>
        <translation>電話番号</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時刻</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>終了時刻</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>Designated Employee</source>
        <translation>指定従業員</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>勤務表</translation>
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
        <translation>グループ X</translation>
    </message>
</context>
<context>
    <name>SoftUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアの更新</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Automatically detect the new version</source>
        <translation>新しいバージョンを自動的に確認する</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>New version[%1] available, current version[%2]</source>
        <translation>新しいバージョン[%1]があります。現在のバージョン[%2]</translation>
    </message>
    <message>
        <source>Current[%1] is the latest version</source>
        <translation>現在のバージョン[%1]は最新です</translation>
    </message>
    <message>
        <source>Create update file failed</source>
        <translation>更新ファイルを作成できませんでした</translation>
    </message>
    <message>
        <source>Write update file failed</source>
        <translation>更新ファイルを書き込めませんでした</translation>
    </message>
    <message>
        <source>Download error</source>
        <translation>ダウンロードエラー</translation>
    </message>
    <message>
        <source>Download file failed</source>
        <translation>ファイルをダウンロードできませんでした</translation>
    </message>
    <message>
        <source>Download update file finish
update process will start automatically</source>
        <translation>更新ファイルのダウンロードが完了しました
更新は自動的に開始されます</translation>
    </message>
    <message>
        <source>Download update file finish
The update file is in %1</source>
        <translation>更新ファイルのダウンロードが完了しました
ファイルの場所: %1</translation>
    </message>
    <message>
        <source>Being updated, you want to cancel?</source>
        <translation>更新中です。キャンセルしますか？</translation>
    </message>
</context>
<context>
    <name>ToolBar</name>
    <message>
        <source>Auto create schedule</source>
        <translation>勤務表を自動作成</translation>
    </message>
    <message>
        <source>Refresh schedule</source>
        <translation>勤務表を最新の情報に更新</translation>
    </message>
    <message>
        <source>View By Employee</source>
        <translation>従業員別に表示</translation>
    </message>
    <message>
        <source>View By Schedule</source>
        <translation>勤務表別に表示</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>View One Group</source>
        <translation>グループを指定して表示</translation>
    </message>
    <message>
        <source>View One Employee</source>
        <translation>従業員を指定して表示</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>Auto Generate Schedule</source>
        <translation>勤務表を自動作成</translation>
    </message>
    <message>
        <source>Auto Generate Specified Date Schedule</source>
        <translation>指定期間の勤務表を自動作成</translation>
    </message>
    <message>
        <source>Copy Previous Cycle Schedule</source>
        <translation>前の期間の勤務表をコピー</translation>
    </message>
    <message>
        <source>Copy Specified Cycle Schedule</source>
        <translation>指定期間の勤務表をコピー</translation>
    </message>
    <message>
        <source>Clear Schedule</source>
        <translation>勤務表をクリア</translation>
    </message>
    <message>
        <source>Clear Specified Date Schedule</source>
        <translation>指定期間の勤務表をクリア</translation>
    </message>
</context>
<context>
    <name>VacationSettings</name>
    <message>
        <source>Vacation Settings</source>
        <translation>休暇の設定</translation>
    </message>
    <message>
        <source>Employees:</source>
        <translation>従業員：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日付：</translation>
    </message>
    <message>
        <source>Days:</source>
        <translation>日数：</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>備考：</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有効</translation>
    </message>
</context>
<context>
    <name>WorkDateAssign</name>
    <message>
        <source>Employees and date settings</source>
        <translation>従業員数と日付の設定</translation>
    </message>
    <message>
        <source>Day of week</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>従業員数</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Specified date</source>
        <translation>日付指定</translation>
    </message>
    <message>
        <source>Start date</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>End date</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>月内の週</translation>
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
        <translation>終了日を開始日より前にすることはできません。</translation>
    </message>
    <message>
        <source>Please select a week.</source>
        <translation>週を選択してください。</translation>
    </message>
    <message>
        <source>Please select a day of week.</source>
        <translation>曜日を選択してください。</translation>
    </message>
</context>
<context>
    <name>WorkWeekSelect</name>
    <message>
        <source>Day of week to work</source>
        <translation>勤務する曜日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Please select one day at least.</source>
        <translation>曜日を 1 つ以上選択してください。</translation>
    </message>
</context>
</TS>
