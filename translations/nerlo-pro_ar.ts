<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>المسافات وعلامات الجدولة</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>الأسطر</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>المحارف</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>الحروف وعلامات الاقتباس</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>التعداد والوسوم والنمط</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>عشرة استبدالات</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>البحث والاستبدال</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>الإحصاءات</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>ابحث في الخيارات</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>اكتب كلمة لإيجاد كل خيار يتعلق بها.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>لا يوجد خيار يتعلق بـ «%@».</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>ملف الإعدادات</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>مجموعة الخيارات المستخدمة. يمكن تبديلها أيضًا من قائمة صينية النظام.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>أضف ملف إعدادات</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>يضيف ملف إعدادات: فارغًا أو نسخة أو واحدًا من الجاهزة.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>أزل ملف الإعدادات</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>يزيل ملف الإعدادات المحدد. «استعادة» تعيده.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>إدارة…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>يعرض قائمة ملفات الإعدادات لإعادة تسميتها ونسخها وترتيبها واستيرادها وتصديرها.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>ملف الإعدادات المحدد هو المستخدم. F2 لإعادة تسميته، وAlt مع السهم لأعلى أو لأسفل لنقله، وDelete لإزالته. يمكن إسقاط ملفات إعدادات هنا.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>يضيف نسخة من ملف الإعدادات المحدد في نهاية القائمة.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>إعادة تسمية</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>يعطي ملف الإعدادات المحدد اسمًا آخر، ويتبعه جدول النسخ.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>ينقل ملف الإعدادات المحدد لأعلى، هنا وفي القوائم.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>ينقل ملف الإعدادات المحدد لأسفل، هنا وفي القوائم.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>إعادة الضبط إلى</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>يعطي ملف الإعدادات المحدد قيمًا أخرى: قيم التشغيل الأول أو قيم ملف جاهز. ويمكن استعادة ما كان عليه.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>قيم التشغيل الأول</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>يكتب ملف الإعدادات المحدد في ملف، لحاسوب آخر أو لشخص آخر.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>استيراد…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>يضيف ملفات الإعدادات الموجودة في ملف، ولا يستبدل أيًا منها.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>يعيد أحد ملفات الإعدادات التي أُزيلت مؤخرًا.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>أُضيف: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>تعذّرت قراءة ملف الإعدادات.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>تعذّرت كتابة ملف الإعدادات.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>اختصار يحدده</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>في أي برنامج، يجعل هذا الاختصار ملف الإعدادات المحدد هو المستخدم. وتعرضه القائمة.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>تحديد ملف الإعدادات “%@”</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>أدخل اسم ملف الإعدادات الجديد وانقر «موافق»</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>استُثني Excel</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>مع الخيار «محو التنسيق تلقائيًا»</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>الاختصار: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>اختصار يعمل في كل التطبيقات.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>إعادة كل الاختصارات</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>يصبح لكل أمر اختصاره كما عند أول تشغيل؛ ومعظمها بلا اختصار.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>إعادة الاختصار: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>كما عند أول تشغيل.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>أُعيدت كل الاختصارات.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>رفض النظام هذا الاختصار. قد يكون برنامج آخر يستخدمه.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>لا يوفّر سطح المكتب هذا اختصارات للبرامج. اربط الأمر «%@» في إعداداته.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>لا يعرض سطح المكتب هذا صينية نظام، لذا تُفتح هذه النافذة عند كل تشغيل.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>تتعذر قراءة «%@».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>يبدأ محتواه من جديد. يُحفظ الملف التالف بجانب موضعه، وفي اسمه «⁦.unreadable-⁩» والوقت.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>لم تُحفظ الإعدادات:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>لم تُحفظ ملفات الإعدادات:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>تعذر تغيير البدء عند تسجيل الدخول:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>ملف قواعد الروابط غير مستخدم:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>التشغيل عند الولوج</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>تشغيل Nerlo Pro عند الولوج</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>قبل: تشغّل Nerlo Pro يدويًا.
بعد: تجده يعمل بعد الولوج.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>الإظهار في صينية النظام</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>قبل: لـ Nerlo Pro مدخل في شريط المهام.
بعد: له أيقونة مع قائمة في صينية النظام.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>التشغيل في الخلفية</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>قبل: أيقونة في الصينية أو مدخل في شريط المهام.
بعد: لا هذا ولا ذاك. تشغيل Nerlo Pro مجددًا يفتح هذه النافذة.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>البقاء في المقدمة</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>قبل: قد تغطي النوافذ الأخرى هذه النافذة.
بعد: تبقى هذه النافذة فوقها.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>قبل: أنت من يقرر متى تُنظَّف الحافظة.
بعد: كل ما تنسخه يُنظَّف تلقائيًا.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>غير متاح: بُنيت هذه النسخة من دون عنوان لهذا العنصر.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>قبل: تُنظَّف النسخة خلال نصف ثانية.
بعد: تُنظَّف النسخة فورًا.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>قبل: يُحتفظ بالأصل عشر دقائق لتمكن استعادته.
بعد: لا يُطلب من البرنامج الآخر إلا النص، ولا شيء يُستعاد.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>قبل: الخلايا المنسوخة تصبح نصًا عاديًا.
بعد: خلايا الجداول تبقى كما هي.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>محو التنسيق من الحافظة</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>قبل: «مرحبًا·····بالعالم»، غامق
بعد: «مرحبًا·بالعالم»، عادي</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>التنظيف</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>النافذة والتشغيل</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>فرز الأسطر</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>قبل: كمثرى↵تفاح
بعد: تفاح↵كمثرى</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>الترتيب</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>قبل (A-Z): تفاح↵كمثرى
بعد (Z-A): كمثرى↵تفاح</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>تنتهي العناصر بـ</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>قبل (فاصل أسطر): b,a
بعد («,»): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>فاصل مخصّص</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>قبل: b/a
بعد، مع /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>إزالة الأسطر المكررة</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>قبل: شاي↵شاي↵حليب
بعد: شاي↵حليب</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>تنتهي العناصر بـ</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>قبل (فاصل أسطر): a,a
بعد («,»): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>فاصل مخصّص</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>قبل: a/a
بعد، مع /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>إظهار الإحصاءات بعد التنظيف</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>عدّ محتوى الحافظة</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>قبل: لا شيء يخبرك بما نُسخ.
بعد: نافذة صغيرة تعدّ المحارف والمسافات والكلمات والفقرات.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>الإغلاق تلقائيًا</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>قبل: تبقى النافذة حتى تنقر عليها.
بعد: تُغلق بعد بضع ثوانٍ.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>الثواني</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>مدة بقاء النافذة.
قبل، مع 3: ثلاث ثوانٍ
بعد، مع 10: عشر ثوانٍ</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>قبل (موضع المؤشر): عند المؤشر
بعد (أعلى اليمين): في تلك الزاوية من الشاشة</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>ذكر ما غيّر أكثر</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>قبل: النافذة تعدّ فقط.
بعد: تغيّر: مسافات 12، علامات اقتباس 4، أسطر 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>المسافات المتعددة إلى مسافة واحدة</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>قبل: a····b
بعد: a·b
تضيع الأعمدة والمسافات البادئة أيضًا.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>علامات الجدولة المتعددة إلى واحدة</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>قبل: a⇥⇥⇥b
بعد: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>تحويل علامات الجدولة وأربع مسافات</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>قبل: ⇥a
بعد: ····a، أو العكس</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>قبل (الجدولة إلى 4 مسافات): ⇥a
بعد: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>تحويل ثلاث نقاط وعلامة الحذف</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>قبل: انتظر...
بعد: انتظر…، أو العكس</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>قبل (3 نقاط إلى علامة حذف): انتظر...
بعد: انتظر…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>إزالة المسافة قبل النقطة</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>قبل: النهاية·.
بعد: النهاية.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>إزالة المسافات حول علامات الجدولة</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>قبل: a·⇥·b
بعد: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>إزالة المسافات حول فواصل الأسطر</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>قبل: واحد·↵·اثنان
بعد: واحد↵اثنان
تُحذف المسافات البادئة أيضًا، حتى في الشيفرة والقوائم.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>إزالة كل المسافات</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>قبل: a·b·c
بعد: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>إزالة كل علامات الجدولة</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>قبل: a⇥b⇥c
بعد: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>قبل: a·⇥·b↵c
بعد: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>إزالة الواصلات في نهايات الأسطر</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>قبل: hyphen-↵ated
بعد: hyphenated</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>إزالة كل الواصلات والشرطات وعلامات الناقص</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>قبل: well-known
بعد: wellknown</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>إضافة بادئة</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>قبل: نص
بعد، مع «&gt; »: &gt; نص</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>البادئة</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>قبل: نص
بعد، مع «&gt; »: &gt; نص</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>إضافة لاحقة</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>قبل: نص
بعد، مع «!»: نص!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>اللاحقة</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>قبل: نص
بعد، مع «!»: نص!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>وصل الأسطر المكسورة خطأً</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>قبل: هذا السطر↵انكسر في وسطه.
بعد: هذا السطر·انكسر في وسطه.
تُدمج القوائم والجداول والعناوين أيضًا.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>إصلاح الترميز الخاطئ</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>قبل: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
بعد: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>وصل الكلمات المقطوعة في أواخر الأسطر</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>قبل: a word veri-↵fied
بعد: a word verified</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>إزالة أرقام الصفحات والعناوين المتكررة</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>قبل: ما يتكرر أعلى كل صفحة أو أسفلها يبقى في النص.
بعد: يزول.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>إزالة أرقام الحواشي</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>قبل: a theory4 and its proof.5
بعد: a theory and its proof.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>استعادة نص منسوخ من طرفية</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>قبل: │ جملة واحدة↵│ على سطرين. │
بعد: جملة واحدة·على سطرين.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>ترك الشيفرة والجداول والقوائم كما هي</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>قبل: تصبح القائمة سطرًا واحدًا وتفسد الشيفرة.
بعد: يُرتَّب النص العادي وحده. تبقى علامات القوائم والمسافات البادئة والشيفرة والجداول والعناوين.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>توصَل الأسطر بـ</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>قبل (لا شيء): a↵b يصبح ab
بعد (مسافة): a↵b يصبح a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>تغيير فواصل الأسطر</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>قبل: واحد↵↵↵اثنان
بعد (فاصل أسطر واحد): واحد↵اثنان</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>تصبح فواصل الأسطر</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>قبل (فاصل أسطر واحد): واحد↵اثنان
بعد (مسافة): واحد·اثنان</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>النص المخصّص الأول</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>قبل: واحد↵اثنان
بعد، مع «- »: واحد↵- اثنان</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>النص المخصّص الثاني</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>قبل: واحد
بعد، مع [b] و [/b]: [b]واحد[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>تشذيب طرفي النص</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>قبل: ··نص··
بعد: نص</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>تنظيف المحارف</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>قبل: ﬁ‹U+200B›x‹U+00A0›y
بعد: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>إبقاء محارف التحكم</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>قبل: a␛[1mb␛[0m → ab
بعد: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>إبقاء محارف الوسوم</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>قبل: a‹U+E0041›b → ab
بعد: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>إبقاء محارف الاستعمال الخاص</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>قبل: a‹U+E000›b → ab
بعد: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>إبقاء الشرطات اللينة</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>قبل: a‹U+00AD›b → ab
بعد: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>إبقاء محددات الأشكال</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>قبل: a‹U+FE0F›b → ab
بعد: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>إبقاء علامات الاتجاه</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>قبل: a‹U+200E›b → ab
بعد: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>إبقاء المحارف عديمة العرض</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>قبل: a‹U+200B›b → ab
بعد: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>إبقاء الحروف المركبة</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>قبل: ﬁ → fi
بعد: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>إبقاء المسافات الخاصة</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>قبل: a‹U+00A0›b → a·b
بعد: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>تحويل الحروف كاملة العرض إلى ضيقة</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>قبل: Ａ１
بعد: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>الحرف وحركته محرفًا واحدًا (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>قبل: e + ◌́
بعد: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>علامات اقتباس وشرطات ونقاط بسيطة</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>قبل: “a”—b…
بعد: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>إزالة علامات Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>قبل: ## a↵- **b** `c`
بعد: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>تغيير حالة الأحرف</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>قبل: HELLO. YOU.
بعد (حرف كبير في أول الجملة): Hello. You.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>حالة الأحرف</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>قبل (أحرف كبيرة): HELLO
بعد (أحرف صغيرة): hello</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>تغيير علامات الاقتباس</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>قبل: ‘نص’
بعد (مفردة إلى مزدوجة): “نص”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>قبل (مفردة إلى مزدوجة): ‘نص’
بعد: “نص”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>العلامات المفردة</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>قبل: &apos;نص&apos;
بعد، مع ‚…‘: ‚نص‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>العلامات المزدوجة</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>قبل: &quot;نص&quot;
بعد، مع „…“: „نص“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>العلامات بكل الأنماط</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>قبل: «نص» يبقى كما هو.
بعد: «نص» يتغيّر أيضًا.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>إزالة علامات الاقتباس المفردة</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>قبل: ‘نص’
بعد: نص</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>المفردة بكل الأنماط</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>قبل: ‹نص› يبقى كما هو.
بعد: نص</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>إزالة علامات الاقتباس المزدوجة</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>قبل: “نص”
بعد: نص</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>المزدوجة بكل الأنماط</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>قبل: «نص» يبقى كما هو.
بعد: نص</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>إزالة علامات التعداد</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>قبل: •·حليب↵•·خبز
بعد: حليب↵خبز
تُحذف النقاط داخل الأسطر أيضًا.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>إزالة علامات الرد</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>قبل: &gt;·&gt;·مرحبًا
بعد: مرحبًا
تُحذف كل علامة &gt;، حتى داخل الأسطر، ومعها نهاية كل وسم HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>إزالة وسوم HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>قبل: &lt;b&gt;غامق&lt;/b&gt;
بعد: غامق
يعمل «إزالة علامات الرد» قبل هذا ويأخذ علامة &gt; من الوسوم: فقد يضيع النص كله.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>البرمجيات النصية أيضًا</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>قبل: يبقى نص &lt;script&gt;.
بعد: يزول مع وسمه.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>تنظيف الروابط</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>قبل: https://example.org/a?id=7&amp;utm_source=mail
بعد: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>قواعد أخرى</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>ملف فيه قواعد أخرى بصيغة ClearURLs.
من دونه تُطبَّق قائمة Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>اختيار ملف…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>استخدام نمطك الخاص</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>قبل، مع [0-9]: a1b2
بعد (حذف): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>تعبير نمطي.
قبل، مع [0-9]: a1b2
بعد (حذف): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>هذا ليس تعبيرًا نمطيًا صالحًا، لذلك لا يجد شيئًا.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>تُركت في آخر تنظيف: تتطلب عملاً كثيراً جداً لذلك النص.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>قواعد تُركت لأنها تتطلب عملاً كثيراً جداً لهذا النص: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>التطابقات</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>قبل (حذف [0-9]): a1b2 يصبح ab
بعد (بحث [0-9]): a1b2 يصبح 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>المسافات والجدولة وفواصل الأسطر إلى مسافة واحدة</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>الاستبدال 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>الاستبدال 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>الاستبدال 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>الاستبدال 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>الاستبدال 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>الاستبدال 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>الاستبدال 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>الاستبدال 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>الاستبدال 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>الاستبدال 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>قبل: colour
بعد، مع «colour» و «color»: color</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>ابحث عن</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>النص المطلوب إيجاده.
قبل: colour
بعد، مع «colour» و «color»: color</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>استبدل بـ</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>ما يحلّ محلّه؛ إن تُرك فارغًا حُذف النص.
قبل: colour
بعد، مع «colour» و «color»: color</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>المسافة البادئة</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>الوسم</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصّص</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>تطبيق قائمة البحث والاستبدال</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>قبل: د. سمير
بعد، مع د. → الدكتور: الدكتور سمير</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>قائمة واحدة لكل ملفات الإعدادات</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>قبل: لكل ملف إعدادات قائمته.
بعد: كل ملفات الإعدادات تشترك في قائمة واحدة.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>القواعد، من الأولى إلى الأخيرة</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>تُطبَّق القواعد من الأعلى إلى الأسفل. اسحب قاعدة، أو اضغط Alt+أعلى وAlt+أسفل، لنقلها.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>استبدل بـ</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>ابدأ بـ {search} للإبقاء على ما يجده النمط فقط، أو بـ {delete} لحذفه.
قبل، مع [0-9] و {search}#: a1b2
بعد: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>أضف قاعدة</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>يضيف قاعدة في نهاية القائمة.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>احذف القاعدة</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>يحذف القاعدة المحددة.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>انقل لأعلى</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>ينقل القاعدة المحددة لأعلى لتُطبَّق أبكر.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>انقل لأسفل</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>ينقل القاعدة المحددة لأسفل لتُطبَّق لاحقًا.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>قاعدة جديدة</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>حدد القاعدة التي تريد حذفها</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>حدد قاعدة</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>نص الاستبدال</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>مفعّلة</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>هل تُطبَّق القاعدة.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>ما تبحث عنه القاعدة: نص، أو نمط إن كان نوعها كذلك.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>يُبحث عن النص كما هو؛ والنمط تعبير نمطي.
بلا اختبار: حين لا يبقى إلا المطابقات، يصبح النص الخالي منها فارغًا.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>عدد</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>كم مرة تجد القاعدة شيئًا في نص المعاينة.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>نمط: استبدال</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>نمط: إبقاء المطابقات</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>نمط: استبدال بلا اختبار</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>نمط: إبقاء المطابقات بلا اختبار</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>لا معنى للنمط عند الحرف %@، ولذلك لا يجد شيئًا.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>لا تجد شيئًا في نص المعاينة.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>عدد ما وُجد في نص المعاينة: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>المثال %@ لا يتحقق. القاعدة تجعله هكذا: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>أمثلة القاعدة المحددة</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>ما ينبغي أن تفعله القاعدة بنص. تُجرَّب كلها عند كل تغيير.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>يتحقق</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>لا يتحقق</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>أضف مثالًا</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>يأخذ أول موضع تجده القاعدة في المعاينة لمراجعته.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>ينسخ القواعد ويلصقها، ويستورد القوائم ويصدّرها، ويعرض قوائم جاهزة.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>التواريخ إلى ISO ‏(2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>الفواصل العشرية إلى نقاط</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>إزالة أرقام الحواشي</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>إزالة محثات الصدفة</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>علامات الترقيم الطباعية إلى بسيطة</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>انسخ القاعدة</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>الصق قواعد</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>استورد قائمة…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>صدّر القائمة…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>ما تفعله القائمة «%@» بقواعدك:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>الأثر</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>تُضاف</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>تتغير</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>تبقى</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>استورد</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>هذه ليست قائمة قواعد يمكن قراءتها.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>تعذرت كتابة القائمة.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>لا توجد قواعد في الحافظة.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>حُذف.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>يتراجع عن ذلك.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>معكوس</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>عشوائي</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>فاصل أسطر</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>أسفل اليسار</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>أسفل اليمين</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>أعلى اليسار</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>أعلى اليمين</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>موضع المؤشر</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>الجدولة إلى 4 مسافات, 4 مسافات إلى جدولة</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 نقاط إلى علامة حذف, علامة حذف إلى 3 نقاط</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>لا شيء, مسافة</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>لا شيء, فاصل أسطر واحد, فاصلا أسطر, مسافة, فاصل ومسافة, فاصل وجدولة, فاصل ونص مخصّص, فقرات HTML, وسوم صور HTML, نص مخصّص حول الأسطر</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>حرف كبير في أول الجملة, حرف كبير في كل كلمة, أحرف صغيرة, أحرف كبيرة</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>مفردة إلى مزدوجة, مزدوجة إلى مفردة</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>حذف, بحث</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>المعاينة</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>تعرض ما تفعله الخيارات. لا يصل شيء إلى الحافظة حتى تطلب ذلك.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>قبل</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>اكتب أو ألصق هنا أي نص لتجربة الخيارات عليه.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>بعد</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>النص كما تنظّفه الخيارات. ما تغيّر معلَّم.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>اكتب نصًا، أو خذه من الحافظة</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>خذ من الحافظة</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>ينسخ نص الحافظة إلى المعاينة.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>نظّف الحافظة</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>ينظّف نص الحافظة بهذه الخيارات الآن.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>النص قبل الخطوة المختارة، أو ما تغيّر في نص طويل. لا يمكن تحريره هنا.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>كتابة نص آخر</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>يُخرج النص الطويل من المعاينة حتى تكتب نصًا آخر.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>الخطوات</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>الخطوات التي غيّرت شيئًا، مع عدد التغييرات. اختر خطوة لترى ما فعلته وحدها، واخترها مرة أخرى لترى الكل.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>كل الخطوات</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@، التغييرات: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>نص طويل: لا تظهر إلا الأجزاء التي تغيّرت.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>أخذ خيار «%@» علامات ‎&gt;‎ من وسوم HTML قبل أن يصل إليها خيار «%@». عطّل أحدهما.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ أسطر بلا تغيير: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ أحرف: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ تغييرات أخرى: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>النص أطول من أن يُعاين؛ يظهر أوله فقط.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>لا يوجد نص في الحافظة.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>عزيزي  القارئ .

&gt;  هذا السطر
&gt;  انكسر في وسطه.

•  اشترِ الحليب ‹الطازج›.
•  اشترِ الخبز ‹الأسمر›...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>المحارف</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>المسافات</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>الكلمات</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>الفقرات</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>الإحصاءات</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>انقر للإغلاق</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>التلميح %1 من %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>عرض التلميحات عند كل تشغيل</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>قبل: تُفتح التلميحات من القائمة فقط.
بعد: تُفتح كلما بدأ Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>الجديد في Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### انسخ، نظّف، الصق

انسخ نصًا، ثم اختر «%@» من قائمة الأيقونة أو اضغط اختصارها، ثم الصق. التفضيلات تحدد ما يُنظَّف، والمعاينة تُظهره على نص.

### تلقائيًا

«%@» ينظّف كل نسخة. تبقى الروابط والملفات والصور وكلمات المرور كما هي.

### العودة إلى الأصل

«%@» يعيد ما نُسخ مع تنسيقه، خلال عشر دقائق.

### عملية واحدة

في القائمة كل عملية على حدة. مع `nerlo-pro --choose` اكتب ما تبحث عنه، وشاهد النتيجة، واضغط Enter.

### ملفات الإعدادات

ملف الإعدادات مجموعة خيارات. بدّله من القائمة أو من أعلى التفضيلات.

### المفاتيح في التفضيلات

Ctrl+F للبحث في الخيارات، وCtrl+Z للتراجع، وF1 لفتح هذه المساعدة.

### عندما لا يعمل شيء

`nerlo-pro --doctor` في الطرفية يذكر ما ينقص سطح المكتب هذا، و`nerlo-pro --why` ما آلت إليه آخر نسخة. والباقي في `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>اعرض التلميحات</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **ملفات إعدادات جاهزة**: لملفات PDF والبريد وصفحات الويب والطرفية وإجابات المساعد والشيفرة.
- **الملف المناسب تلقائيًا**: جدول في صفحة «عام» يحدد أي ملف ينظّف أي نسخة.
- **الشيفرة والجداول والقوائم**: يمكن أن تبقى كما هي.
- **عمليات جديدة**: فك مخرجات الطرفية، وإصلاح الترميز الخاطئ، وتنظيف المحارف الخفية، ووصل الكلمات المقطوعة، وتنظيف الروابط.
- **المنتقي**: `nerlo-pro --choose` يجد العملية أثناء الكتابة ويُظهر النص قبلها وبعدها.
- **البحث والاستبدال**: للقواعد عينات وعدّاد، ويمكن نسخها واستيرادها وتصديرها.
- **المعاينة**: تسمّي الخطوة التي أحدثت التغيير وتقود إلى خيارها.
- **التراجع**: يعيد Ctrl+Z تغييرات الخيارات والقواعد والملفات.
- **الاستعادة**: تسمّي ما ستعيده.
- **الاختصارات**: تُسمّى بأسماء المفاتيح، وتعمل في KDE مع Wayland.
- **في الطرفية**: `nerlo check` و`--explain` وأنابيب بلا نهاية وJSON Lines ومكتبة لـ C وPython.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>انسخ، فإذا به نظيف</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>يقيم Nerlo Pro في صينية النظام، ويحوّل ما تنسخه إلى نص عادي نظيف: بلا مسافات زائدة ولا أسطر مكسورة ولا تنسيق.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>يدويًا أو تلقائيًا</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>اختر «محو التنسيق من الحافظة» من القائمة، أو اضغط اختصاره، أو دع «محو التنسيق تلقائيًا» ينظّف كل ما تنسخه.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>انظر قبل أن تنظّف</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>تعرض التفضيلات نصًا قبل وبعد. فعّل خيارًا وانظر ما يفعله؛ تبقى الحافظة كما هي.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>ملف إعدادات لكل عمل</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>احتفظ بمجموعة خيارات للبريد وأخرى للشفرة، وبدّل بينها من قائمة صينية النظام.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>قواعدك الخاصة</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>تطبّق قائمة البحث والاستبدال قواعدك بالترتيب. اسحب قاعدة لنقلها؛ والأنماط تعمل أيضًا.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>لا شيء يضيع</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>«استعادة الأصل» في القائمة يعيد ما كان في الحافظة من قبل مع تنسيقه.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – ينظّف كل ما تنسخه</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – شيء ما لا يعمل هنا</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>ينظّف النص في الحافظة.
الإصدار %1
رخصة MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>لا يوجد أصل لاستعادته.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>تغيّرت الحافظة، لذا لم يُستعَد الأصل.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>عاد الأصل، لكن تعذّرت قراءة بعض صيغه في الوقت المناسب.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>كان الأصل أكبر من %1 م.ب، لذا لم يُحتفَظ به.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>مضت أكثر من %1 دقائق على التنظيف، لذا لم يعد الأصل محفوظًا.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>النص في الحافظة أكبر من %1 م.ب، لذا لم يُنظَّف.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>لطيف</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>بريد</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>صفحة ويب</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>طرفية</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>جواب مساعد</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>الشيفرة كما هي</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (جاهز)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>يبدأ بـ</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>لا شيء: كل الخيارات متوقفة</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>نسخة من «%@»</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>نُظّف باسم: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>تغيّر: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>، </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>علامات جدولة</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>مسافات</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>أسطر</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>حالة الأحرف</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>علامات اقتباس</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>علامات الرد</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>وسوم</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>استبدالات</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>تعداد نقطي</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>نقاط</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>الترتيب</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>مكررات</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>واصلات</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>إضافات</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>الترميز</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>أحرف</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>كلمات</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>روابط</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>أي القواعد يطبّقها التنظيف؟</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>كلها: تُرتَّب فواصل الأسطر وعلامات الاقتباس والتعداد</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>بلطف: المسافات والأسطر المكسورة فقط، وتبقى الشيفرة والجداول والقوائم</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>أي ملف إعدادات ينظف أي نسخة</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>يقرر أول صف مؤشَّر يناسب النسخة، وإن لم يناسبها أي صف نظفها ملف الإعدادات المحدد.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>إضافة صف</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>يضيف صفًا في آخر الجدول.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>حذف الصف</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>يحذف الصف المحدد.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>يرفع الصف المحدد ليُسأل قبل غيره.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>يُنزل الصف المحدد ليُسأل بعد غيره.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>يشبه</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>ما يشبهه النص المنسوخ.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>البرنامج الذي كان في الأمام عند النسخ كما يسميه «nerlo-pro --why»، والعلامة * تعني أي تتمة. لا تخبر به كل أسطح المكتب.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>الموقع الذي نسخ منه المتصفح، مثل example.org، والعلامة * تعني أي صفحة.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>تنسيق تعرضه النسخة، مثل text/rtf، والعلامة * تعني أي تتمة.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>ملف الإعدادات</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>ما ينظف نسخة كهذه، أو أن تُترك كما هي.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>أي نسخة</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>نص من طرفية</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>شيفرة</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>جدول</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>تُترك كما هي</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>اختيار ما يُفعل بالحافظة</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>يفتح نافذة صغيرة عند المؤشر: اكتب للعثور على عملية أو ملف تعريف أو قواعد، وشاهد النتيجة، ثم اضغط Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>ابحث عن عملية أو ملف تعريف أو قواعد</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>كلمات من الاسم؛ مفاتيح الأسهم تختار من بين النتائج</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>ما يمكن فعله</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>يضع Enter النتيجة في الحافظة</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>ملف تعريف</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>ملف تعريف جاهز</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>قواعد</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>عملية</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>قواعد كل ملفات التعريف</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>قواعد «%@»</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>النص في الحافظة</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>ما سيصير إليه</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>‏Enter: إلى الحافظة · Esc: ترك كل شيء كما كان</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>‏Enter: إلى الحافظة · Shift+Enter: لصقه أيضًا · Esc: ترك كل شيء كما كان</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>اختر مفاتيح أخرى في صفحة «%@» من التفضيلات.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>نظّف نظف تنظيف</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Nerlo Pro</source>
        <translation>Nerlo Pro</translation>
    </message>
    <message>
        <source>Automatically clear formatting</source>
        <translation>محو التنسيق تلقائيًا</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>التنظيف فور النسخ</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>عدم الاحتفاظ بالأصل</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>ما عدا النسخ من Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>استعادة الأصل</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>استعادة «%1»</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>عمليات منفردة</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>ملفات الإعدادات</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>التفضيلات…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>التلميحات</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>الجديد</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>قيّم Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>الدعم</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>راسل المطوّر</translation>
    </message>
    <message>
        <source>About</source>
        <translation>عن البرنامج</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>أنهِ Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>أخفِ Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>تنظيف</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>أعد</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ألصق</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>احذف</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>حدد الكل</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>أبدًا في هذا البرنامج</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>أبدًا في «%1»</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>لا يمكن استخدامه</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>انقر لتسجيل اختصار</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>غير معيّن</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>اضغط الاختصار</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>استخدم القديم</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>احذف الاختصار</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>سهم أعلى</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>سهم أسفل</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>سهم يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>سهم يمين</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used!</source>
        <translation>لا يمكن استخدام تركيبة المفاتيح «%@»!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>لا يمكن استخدام تركيبة المفاتيح «%@» لأنها اختصار لوحة مفاتيح على مستوى النظام. إن أردت استخدامها حقًا فيمكن تغيير معظم الاختصارات من قسم لوحة المفاتيح في إعدادات النظام.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>لا يمكن استخدام تركيبة المفاتيح «%@» لأن عنصر القائمة «%@» يستخدمها.</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>يشغّل GNOME إصدارًا أقدم من الإضافة «Nerlo Pro». سجّل الخروج ثم الدخول.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>لا تستجيب إضافة GNOME «Nerlo Pro».</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>يحتاج الاختصار إلى Ctrl أو Super، أو إلى مفتاح وظيفي.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>استخدم برنامج آخر مجموعة المفاتيح هذه.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>لاختصار آخر في هذا البرنامج المفاتيح نفسها.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>رُفض في مربع حوار سطح المكتب.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>لا توجد في سطح المكتب هذا بوابة GlobalShortcuts. عيّن مفتاحًا لـ «nerlo-pro --operation N» أو «nerlo-pro --clean» في إعدادات لوحة المفاتيح الخاصة به.</translation>
    </message>
</context>
</TS>
