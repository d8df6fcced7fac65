<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Rook</name>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: there is no session bus to reach Rook through</source>
        <translation>rook: لا يوجد ناقل جلسة للوصول إلى Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook waits for the script that calls it. %@</source>
        <translation>ينتظر Rook السكربت الذي يستدعيه. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the command could not run</source>
        <translation>تعذّر تنفيذ الأمر</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>the output could not be written</source>
        <translation>تعذّرت كتابة الخرج</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has not ended yet</source>
        <translation>لم ينتهِ Rook بعد</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook could not be started. %@</source>
        <translation>تعذّر بدء Rook. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is busy and answers later. %@</source>
        <translation>rook: إن Rook مشغول وسيجيب لاحقًا. %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>Rook has ended without an answer; start it with “rook” to see why</source>
        <translation>انتهى Rook دون إجابة؛ ابدأه بالأمر «rook» لمعرفة السبب</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMClient.cpp"/>
        <source>rook: Rook is not running; start it with “rook”</source>
        <translation>rook: لا يعمل Rook؛ ابدأه بالأمر «rook»</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>done</source>
        <translation>تمّ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>usage error</source>
        <translation>خطأ في الاستخدام</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>no resident process</source>
        <translation>لا توجد عملية مقيمة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Replace what is stored already</source>
        <translation>استبدال ما هو محفوظ سابقًا</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember every window</source>
        <translation>حفظ كل النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Ask on the screen whether to replace what is stored</source>
        <translation>السؤال على الشاشة عن استبدال ما هو محفوظ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print JSON instead of a table</source>
        <translation>إخراج JSON بدلًا من جدول</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put every window back</source>
        <translation>استعادة كل النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Put back the windows of one application</source>
        <translation>استعادة نوافذ تطبيق واحد</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>The application's identifier; the active application without it</source>
        <translation>معرّف التطبيق؛ وبدونه التطبيق النشط</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the windows of the active application</source>
        <translation>حفظ نوافذ التطبيق النشط</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Remember the active window</source>
        <translation>حفظ النافذة النشطة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Link the active window to a stored window</source>
        <translation>ربط النافذة النشطة بنافذة محفوظة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Open the status menu at the pointer</source>
        <translation>فتح قائمة Rook عند المؤشر</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the list of stored windows</source>
        <translation>عرض قائمة النوافذ المحفوظة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the preferences</source>
        <translation>عرض التفضيلات</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show version and credits</source>
        <translation>عرض الإصدار والشكر</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Look for a newer version</source>
        <translation>البحث عن إصدار أحدث</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>End the resident process</source>
        <translation>إنهاء العملية المقيمة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show displays, counts, back end, permission</source>
        <translation>عرض الشاشات والأعداد والمحرّك والإذن</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what is stored</source>
        <translation>عرض ما هو محفوظ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show the live windows as Rook sees them</source>
        <translation>عرض النوافذ المفتوحة كما يراها Rook</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Show what a restore would do, and why; changes nothing</source>
        <translation>عرض ما ستفعله الاستعادة وسببه؛ دون تغيير أي شيء</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>One application's identifier</source>
        <translation>معرّف تطبيق واحد</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Exit codes: %@.</source>
        <translation>رموز الخروج: %@.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Without a command Rook starts its resident process in the foreground. Where Rook is installed, a
command that does something starts it, too; list, plan, quit, status and windows never do.</source>
        <translation>بدون أمر يبدأ Rook عمليته المقيمة في المقدمة. وحيث يكون Rook مثبتًا، يبدؤها أيضًا
أي أمر يفعل شيئًا؛ أما list وplan وquit وstatus وwindows فلا تبدؤها أبدًا.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not expected: %@</source>
        <translation>غير متوقع: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>not both: %@</source>
        <translation>لا يجتمعان: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>rook: %@
Run “rook --help” for more information.</source>
        <translation>rook: %@
شغّل «rook --help» لمزيد من المعلومات.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Usage</source>
        <translation>الاستخدام</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>OPTIONS</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>الأمر</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Arguments</source>
        <translation>المعاملات</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>TEXT</source>
        <translation>نص</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Excludes</source>
        <translation>يستثني</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Print this help message and exit</source>
        <translation>عرض هذه المساعدة والخروج</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Rook remembers where your windows stand, per set of displays, and puts them back.</source>
        <translation>يتذكر Rook أماكن نوافذك لكل إعداد شاشات، ويعيدها إليها.</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Display program version information and exit</source>
        <translation>عرض إصدار البرنامج والخروج</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Start without tray or windows</source>
        <translation>البدء دون أيقونة أو نوافذ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Log debug messages too</source>
        <translation>تسجيل رسائل التنقيح أيضًا</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMInvocation.cpp"/>
        <source>Subcommands</source>
        <translation>الأوامر</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@×%@ at %@,%@</source>
        <translation>%@×%@ عند %@,%@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@</source>
        <translation>سطح المكتب %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>desktop %@ “%@”</source>
        <translation>سطح المكتب %@ «%@»</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ (not to be had: %@)</source>
        <translation>%@ (غير متاح: %@)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>DISPLAY</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>BOUNDS</source>
        <translation>الحدود</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PRODUCT</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>MAIN</source>
        <translation>رئيسية</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Process</source>
        <translation>العملية</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Store</source>
        <translation>ملف الحفظ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Back end</source>
        <translation>المحرّك</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@, window manager %@</source>
        <translation>%@، مدير النوافذ %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source> (no)</source>
        <translation> (لا)</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Capabilities</source>
        <translation>القدرات</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Permission</source>
        <translation>الإذن</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Missing</source>
        <translation>ناقص</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Current workspace</source>
        <translation>التخطيط الحالي</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Stored</source>
        <translation>المحفوظ</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>workspaces: %@, applications: %@, windows: %@</source>
        <translation>التخطيطات: %@، التطبيقات: %@، النوافذ: %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Hot key</source>
        <translation>اختصار</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Doing</source>
        <translation>الجاري</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>Before</source>
        <translation>سابقًا</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WORKSPACE</source>
        <translation>التخطيط</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>APPLICATION</source>
        <translation>التطبيق</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WINDOW</source>
        <translation>النافذة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FRAME</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STATE</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>PATTERN</source>
        <translation>النمط</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TITLE</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SUBROLE</source>
        <translation>الدور</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>CHILD ROLES</source>
        <translation>أدوار العناصر</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FLAGS</source>
        <translation>السمات</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>STORED WINDOW</source>
        <translation>النافذة المحفوظة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>SCORE</source>
        <translation>النقاط</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>WHY</source>
        <translation>السبب</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>FROM</source>
        <translation>من</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>TO</source>
        <translation>إلى</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: stays</source>
        <translation>لا شيء: تبقى</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>none: not open</source>
        <translation>لا شيء: غير مفتوحة</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ %@ to %@</source>
        <translation>%@ من %@ إلى %@</translation>
    </message>
    <message>
        <location filename="../../src/CommandLine/LMTables.cpp"/>
        <source>%@ since %@</source>
        <translation>%@ منذ %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMAlerts.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMApplicationDelegate.cpp"/>
        <source>The session bus is gone.</source>
        <translation>اختفى ناقل الجلسة.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>The windows are remembered, but not on disk yet: %@</source>
        <translation>النوافذ محفوظة في الذاكرة، لكن ليس على القرص بعد: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is asking something: answer that first.</source>
        <translation>يطرح Rook سؤالًا: أجب عنه أولًا.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Rook is busy: %@</source>
        <translation>إن Rook مشغول: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>Nothing is stored for the displays attached now.</source>
        <translation>لا شيء محفوظ للشاشات المتصلة الآن.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No application is active.</source>
        <translation>لا يوجد تطبيق نشط.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No window has the focus.</source>
        <translation>لا توجد نافذة نشطة.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>This Rook was started without windows.</source>
        <translation>بدأ هذا الـ Rook دون نوافذ.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>No windows are stored for “%@” with the displays attached now.</source>
        <translation>لا نوافذ محفوظة لتطبيق «%@» مع الشاشات المتصلة الآن.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>%@ Ask to overwrite in order to replace them.</source>
        <translation>%@ اطلب الكتابة فوقها لاستبدالها.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMCommandFrame.cpp"/>
        <source>You chose not to replace what is stored.</source>
        <translation>اخترت عدم استبدال ما هو محفوظ.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMHotKeyCenter.cpp"/>
        <source>The setting is no shortcut.</source>
        <translation>الإعداد ليس اختصارًا.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Rook to your applications?</source>
        <translation>هل تريد إضافة Rook إلى تطبيقاتك؟</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Rook runs from “%@”, where your desktop does not look for programs. A launcher lets you start it like any other.</source>
        <translation>يعمل Rook من «%@»، حيث لا يبحث سطح مكتبك عن البرامج. يتيح لك المُطلِق بدءه كأي برنامج آخر.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Add Launcher</source>
        <translation>إضافة مُطلِق</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLauncherPrompt.cpp"/>
        <source>Not Now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMLoginItemsController.cpp"/>
        <source>There is no home directory.</source>
        <translation>لا يوجد مجلد منزل.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>The displays have changed.</source>
        <translation>تغيّرت الشاشات.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMReplacement.cpp"/>
        <source>Not all windows could be read, so what was stored is kept: %@</source>
        <translation>تعذّرت قراءة بعض النوافذ، لذا أُبقي على ما كان محفوظًا: %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <source>Restoring Windows…</source>
        <translation>جارٍ استعادة النوافذ…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMRestoreCommands.cpp"/>
        <location filename="../../src/Controller/LMRestoreEvents.cpp"/>
        <source>Restoring Windows for %@…</source>
        <translation>جارٍ استعادة نوافذ %@…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore Windows for %@</source>
        <translation>استعادة نوافذ %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows for %@</source>
        <translation>حفظ كل نوافذ %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Finder</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store Active Window</source>
        <translation>حفظ النافذة النشطة</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Link Active Window…</source>
        <translation>ربط النافذة النشطة…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Store All Windows</source>
        <translation>حفظ كل النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Restore All Windows</source>
        <translation>استعادة كل النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Stored Windows…</source>
        <translation>النوافذ المحفوظة…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Preferences…</source>
        <translation>التفضيلات…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Check for Updates…</source>
        <translation>التحقق من التحديثات…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>About Rook</source>
        <translation>حول Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>Quit Rook</source>
        <translation>إنهاء Rook</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStatusMenu.cpp"/>
        <source>%@ (Incompatible)</source>
        <translation>%@ (غير متوافق)</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Store Windows Succeeded</source>
        <translation>حُفظت النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for %@…</source>
        <translation>جارٍ حفظ نوافذ %@…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist for “%@”. Do you want to replace them?</source>
        <translation>توجد نوافذ محفوظة لتطبيق «%@». هل تريد استبدالها؟</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows previously stored for “%@” will be replaced with its current windows.</source>
        <translation>ستُستبدل النوافذ المحفوظة سابقًا لتطبيق «%@» بنوافذه الحالية.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for %@.</source>
        <translation>حفظ Rook نوافذ %@ بنجاح.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing the Active Window…</source>
        <translation>جارٍ حفظ النافذة النشطة…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>An identical stored window already exists. Do you want to replace it?</source>
        <translation>توجد نافذة محفوظة مطابقة. هل تريد استبدالها؟</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The stored window labelled “%@” will be replaced with the active window.</source>
        <translation>ستُستبدل النافذة المحفوظة «%@» بالنافذة النشطة.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored the active window.</source>
        <translation>حفظ Rook النافذة النشطة بنجاح.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>The windows of “%@” cannot be stored.</source>
        <translation>لا يمكن حفظ نوافذ «%@».</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Storing Windows for All Applications…</source>
        <translation>جارٍ حفظ نوافذ كل التطبيقات…</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Stored windows already exist. Do you want to replace them?</source>
        <translation>توجد نوافذ محفوظة. هل تريد استبدالها؟</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Previously stored windows will be replaced with the windows of the current running applications.</source>
        <translation>ستُستبدل النوافذ المحفوظة سابقًا بنوافذ التطبيقات العاملة حاليًا.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMStoreCommands.cpp"/>
        <source>Rook has successfully stored windows for all applications.</source>
        <translation>حفظ Rook نوافذ كل التطبيقات بنجاح.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>There is nobody to ask.</source>
        <translation>لا توجد جهة للسؤال.</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Updates could not be looked for</source>
        <translation>تعذّر البحث عن التحديثات</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook is up to date</source>
        <translation>إن Rook محدّث</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Rook %@ is available</source>
        <translation>يتوفر Rook %@</translation>
    </message>
    <message>
        <location filename="../../src/Controller/LMUpdateChecks.cpp"/>
        <source>Your system’s software updates install it.</source>
        <translation>ستثبّته تحديثات البرامج في نظامك.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMActionRunning.cpp"/>
        <source>Running the action “%@” of “%@”…</source>
        <translation>جارٍ تشغيل الإجراء «%@» من «%@»…</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindow.cpp"/>
        <source>Unlabeled Window</source>
        <translation>نافذة بلا تسمية</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There may be a problem with your Stored Windows.sqlite file. Please remove the current file and re-launch Rook.</source>
        <translation>قد تكون هناك مشكلة في ملف «Stored Windows.sqlite». يُرجى إزالة الملف الحالي وإعادة تشغيل Rook.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook is unable to create some folders required for it to run.</source>
        <translation>يتعذّر على Rook إنشاء بعض المجلدات اللازمة لعمله.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Rook seems to be missing some required components and may need to be re-installed.</source>
        <translation>يبدو أن Rook تنقصه بعض المكوّنات اللازمة، وقد يحتاج إلى إعادة تثبيت.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Unable to load stored windows.</source>
        <translation>يتعذّر تحميل النوافذ المحفوظة.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Stored Windows Version Mismatch.</source>
        <translation>إصدار النوافذ المحفوظة غير مطابق.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Your Stored Windows were created with a newer version of Rook.

Please visit the Rook web site and download the latest version of Rook.</source>
        <translation>أُنشئت نوافذك المحفوظة بإصدار أحدث من Rook.

يُرجى زيارة موقع Rook وتنزيل أحدث إصدار.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>The object model is missing or contradicts itself.</source>
        <translation>نموذج الكائنات مفقود أو متناقض.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMStoredWindowsStore.cpp"/>
        <source>There is no application support directory.</source>
        <translation>لا يوجد مجلد لبيانات التطبيق.</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>%lu Display%@</source>
        <translation>عدد الشاشات: %lu</translation>
    </message>
    <message>
        <location filename="../../src/Model/LMWorkspace.cpp"/>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMObjectContextSaving.cpp"/>
        <source>There is no store to save to.</source>
        <translation>لا يوجد ملف للحفظ فيه.</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMPersistentStore.cpp"/>
        <source>%@: the file was moved or replaced while Rook was using it</source>
        <translation>%@: نُقل الملف أو استُبدل أثناء استخدام Rook له</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a store file</source>
        <translation>ليس ملف حفظ</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>a database of another program</source>
        <translation>قاعدة بيانات لبرنامج آخر</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>written by a newer version of Rook (store version %@, known are versions up to %@)</source>
        <translation>كتبه إصدار أحدث من Rook (إصدار الملف %@، والمعروف حتى الإصدار %@)</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is cut short</source>
        <translation>الملف مبتور</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>no such folder</source>
        <translation>لا يوجد مجلد كهذا</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the folder is not writable</source>
        <translation>لا يمكن الكتابة في المجلد</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>not a file</source>
        <translation>ليس ملفًا</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>the file is not writable</source>
        <translation>لا يمكن الكتابة في الملف</translation>
    </message>
    <message>
        <location filename="../../src/Model/Store/LMStoreFile.cpp"/>
        <source>%@: in use by another process</source>
        <translation>%@: تستخدمه عملية أخرى</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Another program is using %@.</source>
        <translation>يستخدم برنامج آخر %@.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>%@ is in use for another hot key.</source>
        <translation>%@ مستخدم لاختصار آخر.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>This keyboard has no %@.</source>
        <translation>لا يوجد %@ في لوحة المفاتيح هذه.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMHotKeys.cpp"/>
        <source>Hot keys are not available in this session.</source>
        <translation>الاختصارات غير متاحة في هذه الجلسة.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Space</source>
        <translation>مسافة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>No-Break Space</source>
        <translation>مسافة غير فاصلة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Backspace</source>
        <translation>مسح للخلف</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Clear</source>
        <comment>key</comment>
        <translation>محو</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Return</source>
        <translation>إدخال</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>System Request</source>
        <translation>طلب النظام</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Escape</source>
        <translation>خروج</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Kana</source>
        <translation>كانا</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Eisu</source>
        <translation>إيسو</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home</source>
        <translation>بداية</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Down</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Up</source>
        <translation>صفحة لأعلى</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Page Down</source>
        <translation>صفحة لأسفل</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>End</source>
        <translation>نهاية</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Insert</source>
        <translation>إدراج</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Menu</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Delete</source>
        <comment>key</comment>
        <translation>حذف</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Enter</source>
        <translation>إدخال (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Home</source>
        <translation>بداية (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Left</source>
        <translation>يسار (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Up</source>
        <translation>أعلى (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Right</source>
        <translation>يمين (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Down</source>
        <translation>أسفل (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Up</source>
        <translation>صفحة لأعلى (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Page Down</source>
        <translation>صفحة لأسفل (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad End</source>
        <translation>نهاية (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Begin</source>
        <translation>وسط (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Insert</source>
        <translation>إدراج (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad Delete</source>
        <translation>حذف (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Up</source>
        <translation>رفع السطوع</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Brightness Down</source>
        <translation>خفض السطوع</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Down</source>
        <translation>خفض الصوت</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Volume Up</source>
        <translation>رفع الصوت</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Previous Track</source>
        <translation>المقطع السابق</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Next Track</source>
        <translation>المقطع التالي</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Home Page</source>
        <translation>الصفحة الرئيسية</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Mail</source>
        <translation>البريد</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Calculator</source>
        <translation>الحاسبة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Forward</source>
        <translation>تقدّم</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Power Off</source>
        <translation>إطفاء</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Sleep</source>
        <translation>سكون</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Pause Playing</source>
        <translation>إيقاف التشغيل مؤقتًا</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 1</source>
        <translation>إطلاق 1</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 2</source>
        <translation>إطلاق 2</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 3</source>
        <translation>إطلاق 3</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Launch 4</source>
        <translation>إطلاق 4</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Display</source>
        <translation>الشاشة</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Microphone Mute</source>
        <translation>كتم الميكروفون</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Keypad %@</source>
        <translation>%@ (لوحة الأرقام)</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMKeyTable.cpp"/>
        <source>Key %@</source>
        <translation>المفتاح %@</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <location filename="../../src/Platform/LMShortcut.cpp"/>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <location filename="../../src/Platform/PackageKit/LMPackageKitUpdater.cpp"/>
        <source>PackageKit does not answer.</source>
        <translation>لا يستجيب PackageKit.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The X server does not answer.</source>
        <translation>لا يستجيب خادم X.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The X server refused to intern atoms.</source>
        <translation>رفض خادم X إنشاء الذرّات.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Connection.cpp"/>
        <source>The connection to the X server is lost.</source>
        <translation>انقطع الاتصال بخادم X.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>Wayland sessions are not supported yet: most windows are out of reach there. Log in to an X11 session.</source>
        <translation>جلسات Wayland غير مدعومة بعد: معظم النوافذ بعيدة المنال فيها. سجّل الدخول إلى جلسة X11.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11Desktop.cpp"/>
        <source>There is no X server to connect to: DISPLAY is not set.</source>
        <translation>لا يوجد خادم X للاتصال به: المتغير DISPLAY غير معيّن.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>No window manager is running.</source>
        <translation>لا يعمل أي مدير نوافذ.</translation>
    </message>
    <message>
        <location filename="../../src/Platform/X11/LMX11WindowManager.cpp"/>
        <source>The window manager does not support %@.</source>
        <translation>لا يدعم مدير النوافذ %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Label</source>
        <translation>التسمية</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>On Display Change</source>
        <translation>عند تغيّر الشاشات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Unlabeled Action</source>
        <translation>إجراء بلا تسمية</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs only when the displays have changed</source>
        <translation>يعمل فقط عند تغيّر الشاشات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMActionsModel.cpp"/>
        <source>Runs whenever the windows are restored</source>
        <translation>يعمل كلما استُعيدت النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMApplicationsModel.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Not a valid pattern</source>
        <translation>نمط غير صالح</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMRegularExpressionValidationFormatter.cpp"/>
        <source>Valid pattern</source>
        <translation>نمط صالح</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScreenshotView.cpp"/>
        <source>Picture of the stored window</source>
        <translation>صورة النافذة المحفوظة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shell script</source>
        <translation>سكربت Shell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>AppleScript</source>
        <translation>AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Shift+Tab and Ctrl+Tab leave the text</source>
        <translation>المفتاحان Shift+Tab وCtrl+Tab للخروج من النص</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This system cannot run AppleScripts. The text is kept.</source>
        <translation>لا يستطيع هذا النظام تشغيل AppleScript. سيُحتفظ بالنص.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>Comp&amp;ile</source>
        <translation>ترجمة (&amp;I)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>This is the beginning of a script that is too long to be edited here. It runs as a whole.</source>
        <translation>هذه بداية سكربت أطول من أن يُحرَّر هنا. سيعمل كاملًا.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script compiles.</source>
        <translation>السكربت قابل للترجمة.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptEditor.cpp"/>
        <source>The script does not compile.</source>
        <translation>تتعذّر ترجمة السكربت.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import AppleScript</source>
        <translation>تعذّر استيراد AppleScript</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing has not been saved as “Run Only”.</source>
        <translation>تأكد من أن الملف الذي تستورده لم يُحفظ كملف «للتشغيل فقط».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Could not import Shell Script</source>
        <translation>تعذّر استيراد سكربت Shell</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMScriptImport.cpp"/>
        <source>Please ensure that the file you are importing is plain text.</source>
        <translation>تأكد من أن الملف الذي تستورده نص عادي.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Ma&amp;ximized</source>
        <translation>مكبّرة (&amp;X)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Full Screen</source>
        <translation>ملء الشاشة (&amp;F)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Mi&amp;nimized</source>
        <translation>مصغّرة (&amp;N)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Rolled Up</source>
        <translation>ملفوفة (&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Above Others</source>
        <translation>فوق غيرها (&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>&amp;Below Others</source>
        <translation>تحت غيرها (&amp;B)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>Frame &amp;Only</source>
        <translation>الإطار فقط (&amp;O)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateMenu.cpp"/>
        <source>On All Desktops</source>
        <translation>على كل أسطح المكتب</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized</source>
        <translation>مكبّرة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in width</source>
        <translation>مكبّرة عرضًا</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>maximized in height</source>
        <translation>مكبّرة طولًا</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>full screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>minimized</source>
        <translation>مصغّرة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>rolled up</source>
        <translation>ملفوفة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>above others</source>
        <translation>فوق غيرها</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>below others</source>
        <translation>تحت غيرها</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on all desktops</source>
        <translation>على كل أسطح المكتب</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@</source>
        <translation>على سطح المكتب %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>on desktop %@ “%@”</source>
        <translation>على سطح المكتب %@ «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Frame only</source>
        <translation>الإطار فقط</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@</source>
        <translation>سطح المكتب %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStateText.cpp"/>
        <source>Desktop %@ “%@”</source>
        <translation>سطح المكتب %@ «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Applications</source>
        <translation>التطبيقات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerView.cpp"/>
        <source>Stored windows</source>
        <translation>النوافذ المحفوظة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>No stored windows</source>
        <translation>لا نوافذ محفوظة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions</source>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Actions are scripts that run before the windows are restored.</source>
        <translation>الإجراءات سكربتات تعمل قبل استعادة النوافذ.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Remove</source>
        <translation>إزالة (&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Application</source>
        <translation>إزالة التطبيق</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>R&amp;emove</source>
        <translation>إزالة (&amp;E)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Window</source>
        <translation>إزالة النافذة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Re&amp;move</source>
        <translation>إزالة (&amp;M)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsEditor.cpp"/>
        <source>Remove Action</source>
        <translation>إزالة الإجراء</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Up</source>
        <translation>نقل لأعلى (&amp;U)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Move &amp;Down</source>
        <translation>نقل لأسفل (&amp;D)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Add</source>
        <translation>إضافة (&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Add Action</source>
        <translation>إضافة إجراء</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Shell Script</source>
        <translation>سكربت Shell (&amp;S)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;AppleScript</source>
        <translation>AppleScript (&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Import Script…</source>
        <translation>استيراد سكربت (&amp;I)…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Ru&amp;n</source>
        <translation>تشغيل (&amp;N)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Run Action</source>
        <translation>تشغيل الإجراء</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Runs the action now and waits until it has ended</source>
        <translation>يشغّل الإجراء الآن وينتظر حتى ينتهي</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o %@</source>
        <translation>تراجع عن %@ (&amp;O)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>Und&amp;o</source>
        <translation>تراجع (&amp;O)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>S&amp;tate</source>
        <translation>الحالة (&amp;T)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>State to restore</source>
        <translation>الحالة المراد استعادتها</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;pplications</source>
        <translation>التطبيقات (&amp;P)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Windows</source>
        <translation>النوافذ (&amp;W)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>A&amp;ctions</source>
        <translation>الإجراءات (&amp;C)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <source>&amp;Script</source>
        <translation>السكربت (&amp;S)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorLayout.cpp"/>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsEditorWindow.cpp"/>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Stored Windows</source>
        <translation>النوافذ المحفوظة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>%@ × %@ at %@, %@</source>
        <translation>%@ × %@ عند ⁦%@⁩، ⁦%@⁩</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No label</source>
        <translation>بلا تسمية</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>No title pattern</source>
        <translation>بلا نمط عنوان</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Title Pattern</source>
        <translation>نمط العنوان</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>Frame</source>
        <translation>الإطار</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/Editing/LMStoredWindowsModel.cpp"/>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>en</source>
        <comment>code of this language</comment>
        <translation>ar</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>%@ (%@)</source>
        <translation>%@ (%@)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Version </source>
        <translation>الإصدار </translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>About %@</source>
        <translation>حول %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>Credits</source>
        <translation>شكر وتقدير</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAboutWindowController.cpp"/>
        <source>License</source>
        <translation>الرخصة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>Do not show this message again</source>
        <translation>لا تعرض هذه الرسالة مجددًا</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMAlertWindow.cpp"/>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMDisplayView.cpp"/>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Displays</source>
        <translation>الشاشات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Start Rook at &amp;login</source>
        <translation>بدء Rook عند تسجيل الدخول (&amp;L)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Startup:</source>
        <translation>بدء التشغيل:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When the &amp;displays change</source>
        <translation>عند تغيّر الشاشات (&amp;D)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows when the displays change</source>
        <translation>استعادة النوافذ عند تغيّر الشاشات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>When an &amp;application launches, after</source>
        <translation>عند بدء تطبيق، بعد (&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore an application’s windows when it launches</source>
        <translation>استعادة نوافذ التطبيق عند بدئه</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Seconds to wait after an application’s launch</source>
        <translation>ثواني الانتظار بعد بدء التطبيق</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore windows:</source>
        <translation>استعادة النوافذ:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Whether they are &amp;maximized, minimized and so on</source>
        <translation>ما إذا كانت مكبّرة أو مصغّرة ونحو ذلك (&amp;M)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore whether windows are maximized, minimized and so on</source>
        <translation>استعادة ما إذا كانت النوافذ مكبّرة أو مصغّرة ونحو ذلك</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which &amp;virtual desktop they are on</source>
        <translation>سطح المكتب الافتراضي الذي هي عليه (&amp;V)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which virtual desktop windows are on</source>
        <translation>استعادة سطح المكتب الافتراضي للنوافذ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Which windows are &amp;in front</source>
        <translation>النوافذ التي في الأمام (&amp;I)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore which windows are in front of others</source>
        <translation>استعادة النوافذ التي أمام غيرها</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Restore also:</source>
        <translation>استعادة أيضًا:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take &amp;pictures of windows</source>
        <translation>التقاط صور للنوافذ (&amp;P)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Take pictures of windows when storing them</source>
        <translation>التقاط صور للنوافذ عند حفظها</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Store windows:</source>
        <translation>حفظ النوافذ:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>&amp;Hide the menu icon</source>
        <translation>إخفاء أيقونة القائمة (&amp;H)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Menu icon:</source>
        <translation>أيقونة القائمة:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Check for &amp;updates automatically</source>
        <translation>التحقق من التحديثات تلقائيًا (&amp;U)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Updates:</source>
        <translation>التحديثات:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Reset &amp;Warnings</source>
        <translation>إعادة تعيين التحذيرات (&amp;W)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Shows all messages again that were switched off</source>
        <translation>يعرض مجددًا كل الرسائل التي أُوقفت</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesLayout.cpp"/>
        <source>Warnings:</source>
        <translation>التحذيرات:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook’s menu icon cannot be hidden until the “Display Menu” hot key is set.</source>
        <translation>لا يمكن إخفاء أيقونة قائمة Rook قبل تعيين الاختصار «عرض القائمة».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be started at login.</source>
        <translation>لا يمكن بدء Rook عند تسجيل الدخول.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Rook cannot be kept from starting at login.</source>
        <translation>لا يمكن منع Rook من البدء عند تسجيل الدخول.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>Removes Rook’s icon from the menu bar when checked.</source>
        <translation>يزيل أيقونة Rook من الشريط عند تحديده.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMGeneralPreferencesViewController.cpp"/>
        <source>With the menu icon disabled, Rook’s menu can be displayed by pressing %@</source>
        <translation>بدون الأيقونة يمكن عرض قائمة Rook بالضغط على %@</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Restore All Windows</source>
        <translation>استعادة كل النوافذ (&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Restore Windows for Active &amp;Application</source>
        <translation>استعادة نوافذ التطبيق النشط (&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All Windows for Active A&amp;pplication</source>
        <translation>حفظ كل نوافذ التطبيق النشط (&amp;P)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Store Active Window</source>
        <translation>حفظ النافذة النشطة (&amp;S)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>&amp;Link Active Window</source>
        <translation>ربط النافذة النشطة (&amp;L)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Store All &amp;Windows</source>
        <translation>حفظ كل النوافذ (&amp;W)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Display &amp;Menu</source>
        <translation>عرض القائمة (&amp;M)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>Hot Keys</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>%@:</source>
        <translation>%@:</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMHotKeysPreferencesViewController.cpp"/>
        <source>“%@” is using %@.</source>
        <translation>«%@» يستخدم %@.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>Rook cannot move windows on this desktop.</source>
        <translation>لا يستطيع Rook تحريك النوافذ على سطح المكتب هذا.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMPermissionPrompt.cpp"/>
        <source>%@

Until that changes, windows are neither stored nor restored.</source>
        <translation>%@

إلى أن يتغيّر ذلك، لن تُحفظ النوافذ ولن تُستعاد.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Clear the hot key “%@”</source>
        <translation>مسح الاختصار «%@»</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Not with this key</source>
        <translation>ليس بهذا المفتاح</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Hold Ctrl, Alt or Super</source>
        <translation>مع Ctrl أو Alt أو Super</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Record Shortcut</source>
        <translation>تسجيل اختصار</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMShortcutRecorder.cpp"/>
        <source>Type Shortcut…</source>
        <translation>اضغط الاختصار…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorActions.cpp"/>
        <source>Import Script</source>
        <translation>استيراد سكربت</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsEditorStates.cpp"/>
        <source>Change State</source>
        <translation>تغيير الحالة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete display configuration</source>
        <translation>حذف إعداد الشاشات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Do you wish to delete all stored windows for the selected display configuration?</source>
        <translation>هل تريد حذف كل النوافذ المحفوظة لإعداد الشاشات المحدد؟</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsList.cpp"/>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Display configurations</source>
        <translation>إعدادات الشاشات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>No windows are stored yet.
Arrange your windows and choose “Store All Windows”.</source>
        <translation>لا نوافذ محفوظة بعد.
رتّب نوافذك واختر «حفظ كل النوافذ».</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Edit</source>
        <translation>تحرير (&amp;E)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Shows applications and windows</source>
        <translation>يعرض التطبيقات والنوافذ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Rename</source>
        <translation>إعادة تسمية (&amp;R)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Gives the display configuration a name</source>
        <translation>يعطي إعداد الشاشات اسمًا</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Make &amp;Active</source>
        <translation>تنشيط (&amp;A)</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Arranges the attached displays like these</source>
        <translation>يرتّب الشاشات المتصلة مثل هذه</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>&amp;Delete…</source>
        <translation>حذف (&amp;D)…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMStoredWindowsListWindow.cpp"/>
        <source>Forgets the display configuration and its windows</source>
        <translation>ينسى إعداد الشاشات ونوافذه</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWidgetUserInterface.cpp"/>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Current</source>
        <translation>الحالي</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Can be made active</source>
        <translation>يمكن تنشيطه</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Same displays</source>
        <translation>الشاشات نفسها</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Other displays</source>
        <translation>شاشات أخرى</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these.</source>
        <translation>الشاشات المتصلة مرتّبة مثل هذه.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays can be arranged like these.</source>
        <translation>يمكن ترتيب الشاشات المتصلة مثل هذه.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays stand like these, too, but the current configuration is older and is the one that is used.</source>
        <translation>الشاشات المتصلة مرتّبة مثل هذه أيضًا، لكن الإعداد الحالي أقدم وهو المستخدم.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>The attached displays cannot be arranged like these.</source>
        <translation>لا يمكن ترتيب الشاشات المتصلة مثل هذه.</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Windows</source>
        <translation>النوافذ</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/LMWorkspaceListModel.cpp"/>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>Linking the Active Window…</source>
        <translation>جارٍ ربط النافذة النشطة…</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window is already linked to another window. Do you want to replace the existing link?</source>
        <translation>النافذة النشطة مرتبطة بنافذة أخرى. هل تريد استبدال الربط الحالي؟</translation>
    </message>
    <message>
        <location filename="../../src/UserInterface/WindowLinking/LMStoredWindowPickerLinking.cpp"/>
        <source>The active window will be unlinked from the window labelled “%@” and linked to the window labelled “%@”.</source>
        <translation>سيُفصل ربط النافذة النشطة عن النافذة «%@» وتُربط بالنافذة «%@».</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>No path found for directory in domain.</source>
        <translation>لم يُعثر على مسار للمجلد.</translation>
    </message>
    <message>
        <location filename="../../src/Utilities/LMFolders.cpp"/>
        <source>File exists at requested directory location.</source>
        <translation>يوجد ملف في موقع المجلد المطلوب.</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook is running already</source>
        <translation>يعمل Rook بالفعل</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>there is no session bus; Rook cannot be reached without one</source>
        <translation>لا يوجد ناقل جلسة؛ وبدونه لا يمكن الوصول إلى Rook</translation>
    </message>
    <message>
        <location filename="../../src/main.cpp"/>
        <source>Rook cannot run here</source>
        <translation>لا يستطيع Rook العمل هنا</translation>
    </message>
</context>
</TS>
