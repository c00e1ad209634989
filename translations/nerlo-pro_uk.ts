<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk_UA" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Загальні</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Пробіли й табуляція</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Рядки</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Символи</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Літери й лапки</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Маркери, теги, шаблон</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Десять замін</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Пошук і заміна</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Пошук параметрів</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Введіть слово, щоб знайти всі пов’язані з ним параметри.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Немає параметрів, пов’язаних із «%@».</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Сторінки</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Профіль</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Набір параметрів, який використовується. Його можна перемкнути й у меню системного лотка.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Додати профіль</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Додає профіль: порожній, копію або готовий.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Вилучити профіль</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Вилучає вибраний профіль. «Відновити» поверне його.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Керування…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Показує список профілів: їх можна перейменувати, скопіювати, впорядкувати, імпортувати й експортувати.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Використовується вибраний профіль. F2 перейменовує його, Alt+Вгору й Alt+Вниз переміщують, Delete вилучає. Сюди можна перетягнути файли профілів.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Дублювати</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Додає копію вибраного профілю в кінець списку.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Дає вибраному профілю інше ім’я. Таблиця копій іде за ним.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Переміщує вибраний профіль угору, тут і в меню.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Переміщує вибраний профіль униз, тут і в меню.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Скинути до</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Дає вибраному профілю інші значення: першого запуску або готового профілю. Попереднє можна відновити.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Значення першого запуску</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Експорт…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Записує вибраний профіль у файл — для іншого комп’ютера чи людини.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Імпорт…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Додає профілі з файлу. Жоден не замінюється.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Відновити</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Повертає один з нещодавно вилучених профілів.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Додано: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Не вдалося прочитати профіль.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Не вдалося записати профіль.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Клавіші, що його вибирають</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>У будь-якій програмі ці клавіші вмикають вибраний профіль. Меню їх показує.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Вибрати профіль «%@»</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Введіть назву нового профілю й натисніть «Гаразд»</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel виключено</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>З увімкненим параметром «Автоматично очищати форматування»</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Комбінація клавіш: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Комбінація клавіш, що діє в усіх програмах.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Комбінації клавіш</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Скинути всі комбінації</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Кожна команда отримує комбінацію, яка була під час першого запуску; у більшості її немає.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Скинути комбінацію: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Як під час першого запуску.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Усі комбінації скинуто.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Система відхилила цю комбінацію клавіш. Можливо, її використовує інша програма.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Це середовище не надає програмам комбінацій клавіш. Призначте комбінацію команді «%@» у його власних параметрах.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>У цьому середовищі немає системного лотка, тому це вікно відкривається під час кожного запуску.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Не вдається прочитати «%@».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Його вміст починається наново. Пошкоджений файл збережено поруч, з «.unreadable-» і часом у назві.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Налаштування не збережено:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Профілі не збережено:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Не вдалося змінити запуск під час входу:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Файл правил для посилань не використовується:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Запускати під час входу до системи</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Запускати Nerlo Pro під час входу до системи</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>До: ви запускаєте Nerlo Pro самі.
Після: програма вже працює після входу до системи.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Показувати в системному лотку</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>До: Nerlo Pro є на панелі завдань.
Після: значок із меню в системному лотку.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Працювати у тлі</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>До: значок у лотку або кнопка на панелі завдань.
Після: ні того, ні іншого. Повторний запуск Nerlo Pro відкриває це вікно.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Поверх інших вікон</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>До: інші вікна можуть перекрити це.
Після: це вікно лишається поверх них.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>До: ви самі вирішуєте, коли очищати буфер обміну.
Після: усе скопійоване очищається саме.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Недоступно: цю збірку зроблено без адреси для цього пункту.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>До: скопійоване очищається протягом пів секунди.
Після: скопійоване очищається одразу.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>До: оригінал зберігається десять хвилин, і його можна повернути.
Після: в іншої програми запитується лише текст, і повернути нічого не можна.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>До: скопійовані комірки стають простим текстом.
Після: комірки електронної таблиці лишаються як є.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Очистити форматування в буфері обміну</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>До: «Привіт·····світе», жирний
Після: «Привіт·світе», простий</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Очищення</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Вікно й запуск</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Упорядкувати рядки</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>До: яблуко↵груша
Після: груша↵яблуко</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>До (A-Z): груша↵яблуко
Після (Z-A): яблуко↵груша</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Елементи закінчуються на</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>До (Розрив рядка): b,a
Після («,»): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Власний роздільник</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>До: b/a
Після, з /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Вилучити повторювані рядки</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>До: чай↵чай↵молоко
Після: чай↵молоко</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Елементи закінчуються на</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>До (Розрив рядка): a,a
Після («,»): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Власний роздільник</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>До: a/a
Після, з /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Показувати статистику після очищення</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Підрахувати буфер обміну</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>До: невідомо, що було скопійовано.
Після: невелике вікно рахує символи, пробіли, слова й абзаци.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Закривати автоматично</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>До: вікно видно, доки ви його не клацнете.
Після: воно закривається за кілька секунд.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Секунди</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Скільки часу видно вікно.
До, з 3: три секунди
Після, з 10: десять секунд</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Розташування</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>До (Біля вказівника): біля вказівника
Після (Вгорі праворуч): у цьому куті екрана</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Називати, що змінило найбільше</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>До: вікно лише рахує.
Після: Змінено: Пробіли 12, Лапки 4, Рядки 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Кілька пробілів в один</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>До: a····b
Після: a·b
Зникають і стовпці з відступами.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Кілька табуляцій в одну</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>До: a⇥⇥⇥b
Після: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Перетворити табуляції й чотири пробіли</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>До: ⇥a
Після: ····a, або навпаки</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Напрямок</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>До (Табуляцію в 4 пробіли): ⇥a
Після: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Перетворити «...» і «…»</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>До: Зачекайте...
Після: Зачекайте…, або навпаки</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Напрямок</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>До («...» на «…»): Зачекайте...
Після: Зачекайте…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Вилучити пробіл перед крапкою</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>До: Кінець·.
Після: Кінець.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Вилучити пробіли навколо табуляцій</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>До: a·⇥·b
Після: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Вилучити пробіли навколо розривів рядка</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>До: один·↵·два
Після: один↵два
Зникають і відступи, навіть у коді та списках.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Вилучити всі пробіли</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>До: a·b·c
Після: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Вилучити всі табуляції</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>До: a⇥b⇥c
Після: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>До: a·⇥·b↵c
Після: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Вилучити переноси в кінці рядків</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>До: пере-↵нос
Після: перенос</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Вилучити всі дефіси, тире й знаки мінус</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>До: будь-що
Після: будьщо</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Додати префікс</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>До: текст
Після, з «&gt; »: &gt; текст</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Префікс</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>До: текст
Після, з «&gt; »: &gt; текст</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Додати суфікс</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>До: текст
Після, з «!»: текст!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Суфікс</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>До: текст
Після, з «!»: текст!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>З’єднати неправильно розірвані рядки</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>До: Цей рядок було↵розірвано посередині.
Після: Цей рядок було·розірвано посередині.
Списки, таблиці й адреси теж з’єднуються.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Виправити хибне кодування</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>До: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Після: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>З’єднати слова, перенесені в кінці рядка</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>До: слово пере-↵вірено, хто-↵небудь
Після: слово перевірено, хто-небудь</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Без номерів сторінок і колонтитулів</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>До: те, що стоїть угорі або внизу кожної сторінки,
якщо сторінки розділено, є в тексті.
Після: його немає.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Без цифр виносок</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>До: теорія4 і доказ.5
Після: теорія і доказ.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Відновити текст із термінала</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>До: │ Одне речення↵│ у двох рядках. │
Після: Одне речення·у двох рядках.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Залишати код, таблиці та списки як є</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>До: список зливається в один рядок, а код псується.
Після: упорядковується лише звичайний текст. Маркери, відступи, код, таблиці та адреси залишаються.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Рядки з’єднуються через</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>До (нічого): a↵b стає ab
Після (пробіл): a↵b стає a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Змінити розриви рядка</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>До: один↵↵↵два
Після (один розрив рядка): один↵два</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Розриви рядка стають</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>До (один розрив рядка): один↵два
Після (пробіл): один·два</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Перший власний текст</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>До: один↵два
Після, з «- »: один↵- два</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Другий власний текст</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>До: один
Після, з [b] і [/b]: [b]один[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Обрізати пробіли з країв тексту</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>До: ··текст··
Після: текст</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Очистити символи</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>До: ﬁ‹U+200B›x‹U+00A0›y
Після: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Залишати керівні символи</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>До: a␛[1mb␛[0m → ab
Після: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Залишати символи-теги</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>До: a‹U+E0041›b → ab
Після: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Залишати символи приватного вжитку</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>До: a‹U+E000›b → ab
Після: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Залишати м’які переноси</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>До: a‹U+00AD›b → ab
Після: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Залишати селектори варіантів</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>До: a‹U+FE0F›b → ab
Після: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Залишати знаки напрямку</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>До: a‹U+200E›b → ab
Після: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Залишати символи нульової ширини</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>До: a‹U+200B›b → ab
Після: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Залишати лігатури</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>До: ﬁ → fi
Після: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Залишати особливі пробіли</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>До: a‹U+00A0›b → a·b
Після: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Повноширинні літери у вузькі</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>До: Ａ１
Після: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Літера з наголосом одним символом (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>До: e + ◌́
Після: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Прості лапки, тире та крапки</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>До: “a”—b…
Після: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Прибрати розмітку Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>До: ## a↵- **b** `c`
Після: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Змінити регістр літер</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>До: ПРИВІТ. ТИ.
Після (як у реченнях): Привіт. Ти.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Регістр</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>До (ВЕЛИКІ ЛІТЕРИ): ПРИВІТ
Після (малі літери): привіт</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Змінити лапки</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>До: ‘текст’
Після (одинарні в подвійні): “текст”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Напрямок</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>До (одинарні в подвійні): ‘текст’
Після: “текст”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Одинарні</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>До: &apos;текст&apos;
Після, з ‚…‘: ‚текст‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Подвійні</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>До: &quot;текст&quot;
Після, з „…“: „текст“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Лапки всіх видів</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>До: «текст» лишається як є.
Після: «текст» теж змінюється.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Вилучити одинарні лапки</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>До: ‘текст’
Після: текст</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Одинарні всіх видів</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>До: ‹текст› лишається як є.
Після: текст</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Вилучити подвійні лапки</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>До: “текст”
Після: текст</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Подвійні всіх видів</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>До: «текст» лишається як є.
Після: текст</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Вилучити маркери списків</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>До: •·молоко↵•·хліб
Після: молоко↵хліб
Маркери всередині рядків теж зникають.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Вилучити знаки цитування</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>До: &gt;·&gt;·Привіт
Після: Привіт
Зникає кожен &gt;, і всередині рядків, а з ним кінець кожного тегу HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Вилучити теги HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>До: &lt;b&gt;жирний&lt;/b&gt;
Після: жирний
«Вилучити знаки цитування» працює раніше й забирає &gt; у тегів: тоді може зникнути весь текст.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>І скрипти</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>До: текст усередині &lt;script&gt; лишається.
Після: він зникає разом із тегом.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Очистити посилання</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>До: https://example.org/a?id=7&amp;utm_source=mail
Після: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Інші правила</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Файл із додатковими правилами у форматі ClearURLs.
Без нього діє власний список Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Вибрати файл…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Застосувати власний шаблон</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>До, з [0-9]: a1b2
Після (вилучити): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Формальний вираз.
До, з [0-9]: a1b2
Після (вилучити): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Це неправильний формальний вираз, тому він нічого не знаходить.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Пропущено під час останнього очищення: надто трудомістко для цього тексту.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Правила пропущено, бо вони надто трудомісткі для цього тексту: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Збіги</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>До (вилучити [0-9]): a1b2 стає ab
Після (знайти [0-9]): a1b2 стає 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Пробіли, табуляції й розриви рядка в один пробіл</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Заміна 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Заміна 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Заміна 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Заміна 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Заміна 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Заміна 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Заміна 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Заміна 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Заміна 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Заміна 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>До: проэкт
Після, з «проэкт» і «проєкт»: проєкт</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Знайти</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Текст, який слід знайти.
До: проэкт
Після, з «проэкт» і «проєкт»: проєкт</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Замінити на</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Те, що стане на його місце; якщо порожньо, текст вилучається.
До: проэкт
Після, з «проэкт» і «проєкт»: проєкт</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Відступ</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Тег</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Власний</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Застосувати список замін</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>До: п. Шевченко
Після, з п. → пан: пан Шевченко</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Один список для всіх профілів</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>До: кожен профіль має власний список.
Після: усі профілі мають спільний список.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Правила, від першого до останнього</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Правила застосовуються згори донизу. Щоб перемістити правило, перетягніть його або натисніть Alt+Вгору й Alt+Вниз.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Замінити на</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Почніть з {search}, щоб лишити тільки знайдене за шаблоном, або з {delete}, щоб вилучити його.
До, з [0-9] і {search}#: a1b2
Після: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Додати правило</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Додає правило в кінець списку.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Вилучити правило</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Вилучає вибране правило.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Вгору</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Переміщує вибране правило вгору, щоб воно застосовувалося раніше.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Переміщує вибране правило вниз, щоб воно застосовувалося пізніше.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Нове правило</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Виберіть правило, яке слід вилучити</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Виберіть правило</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Текст заміни</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Увімк.</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Чи застосовується правило.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Знайти</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Що шукає правило: текст або, якщо так каже його вид, шаблон.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Текст шукається як є; шаблон — це регулярний вираз.
Без перевірки: якщо лишаються тільки збіги, текст без них стає порожнім.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Знайдено</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Скільки разів правило щось знаходить у тексті попереднього перегляду.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Шаблон: замінити</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Шаблон: лишити збіги</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Шаблон: замінити, без перевірки</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Шаблон: лишити збіги, без перевірки</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Шаблон не має сенсу на символі %@, тому нічого не знаходить.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Нічого не знаходить у тексті попереднього перегляду.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Знайдено в тексті попереднього перегляду: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Приклад %@ не справджується. Правило робить із нього: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Приклади вибраного правила</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Що правило має зробити з текстом. Усі перевіряються за кожної зміни.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Справджується</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Не справджується</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Додати приклад</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Бере перше місце попереднього перегляду, яке знаходить правило, для перевірки.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Ще</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Копіює та вставляє правила, імпортує й експортує списки та пропонує готові.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Дати в ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Десяткові коми на крапки</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Прибрати номери виносок</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Прибрати запрошення оболонки</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Типографські знаки на прості</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Копіювати правило</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Вставити правила</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Імпортувати список…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Експортувати список…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Що список «%@» зробить із вашими правилами:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Дія</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Додано</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Змінено</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Лишається</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Імпортувати</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Це не список правил, який можна прочитати.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Не вдалося записати список.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>У буфері обміну немає правил.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Видалено.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Скасовує це.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Зворотний</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Випадковий</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Розрив рядка</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Внизу ліворуч</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Внизу праворуч</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Вгорі ліворуч</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Вгорі праворуч</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>По центру</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Біля вказівника</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Табуляцію в 4 пробіли, 4 пробіли в табуляцію</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>«...» на «…», «…» на «...»</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>нічого, пробіл</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>нічого, один розрив рядка, два розриви рядка, пробіл, розрив рядка й пробіл, розрив рядка й табуляція, розрив рядка й власний текст, абзаци HTML, теги зображень HTML, власний текст навколо рядків</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>як у реченнях, Кожне Слово З Великої, малі літери, ВЕЛИКІ ЛІТЕРИ</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>одинарні в подвійні, подвійні в одинарні</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>вилучити, знайти</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Перегляд</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Показує, що роблять параметри. Ніщо не потрапить до буфера обміну, доки ви цього не попросите.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>До</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Введіть або вставте сюди будь-який текст, щоб випробувати на ньому параметри.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Після</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Текст після очищення. Зміни позначено.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Введіть текст або візьміть його з буфера обміну</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Взяти з буфера обміну</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Копіює текст із буфера обміну до перегляду.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Очистити буфер обміну</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Негайно очищає текст у буфері обміну з цими параметрами.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Текст до вибраного кроку або те, що змінилося в довгому тексті. Тут його не можна редагувати.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Ввести інший текст</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Прибирає довгий текст із перегляду, щоб можна було ввести інший.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Кроки</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Кроки, які щось змінили, і кількість змін. Виберіть крок, щоб побачити, що зробив він сам; виберіть його ще раз, щоб побачити все.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Усі кроки</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, змін: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Довгий текст: показано лише змінені частини.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>«%@» забирає &gt; у тегів HTML раніше, ніж до них доходить «%@». Вимкніть одне з двох.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ рядків без змін: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ символів: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ ще змін: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Текст задовгий для перегляду; показано лише його початок.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>У буфері обміну немає тексту.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Шановний  читачу .

&gt;  Цей рядок було
&gt;  розірвано посередині.

•  Купити ‚свіже‘ молоко.
•  Купити ‚чорний‘ хліб...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Символи</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Пробіли</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Абзаци</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Клацніть, щоб закрити</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Далі</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Почати</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Порада %1 з %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Показувати поради під час кожного запуску</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>До: поради відкриваються лише з меню.
Після: вони відкриваються під час кожного запуску Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Що нового в Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Скопіювати, очистити, вставити

Скопіюйте текст, виберіть «%@» у меню значка або натисніть його сполучення клавіш і вставте. Що очищається, визначають налаштування; перегляд показує це на тексті.

### Само

«%@» очищає кожну копію. Посилання, файли, зображення й паролі залишаються як є.

### Назад до оригіналу

«%@» повертає скопійоване з його форматуванням протягом десяти хвилин.

### Одна операція

У меню кожна операція стоїть окремо. З `nerlo-pro --choose` наберіть, що шукаєте, подивіться результат і натисніть Enter.

### Профілі

Профіль — це набір параметрів. Він змінюється в меню або вгорі налаштувань.

### Клавіші в налаштуваннях

Ctrl+F шукає параметри, Ctrl+Z скасовує, F1 відкриває цю довідку.

### Якщо щось не працює

`nerlo-pro --doctor` у терміналі називає, чого бракує цій стільниці, `nerlo-pro --why` — що сталося з останньою копією. Решта — у `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Показати поради</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Готові профілі**: для PDF, пошти, вебсторінок, термінала, відповідей помічника й коду.
- **Потрібний профіль сам собою**: таблиця на сторінці «Загальні» каже, який профіль очищає яку копію.
- **Код, таблиці й списки**: можуть залишитися як є.
- **Нові операції**: вивід термінала, хибне кодування, невидимі символи, розрізані слова й посилання.
- **Вікно вибору**: `nerlo-pro --choose` знаходить операцію під час набору й показує текст до і після.
- **Пошук і заміна**: правила мають зразки й лічильники; їх можна копіювати, імпортувати й експортувати.
- **Перегляд**: називає крок, що зробив зміну, і веде до його параметра.
- **Скасування**: Ctrl+Z скасовує зміни параметрів, правил і профілів.
- **Повернення**: називає, що повернеться.
- **Сполучення клавіш**: названо як на клавішах; вони працюють у KDE з Wayland.
- **У терміналі**: `nerlo check`, `--explain`, нескінченні канали, JSON Lines і бібліотека для C та Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Скопіювали — і чисто</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro живе в системному лотку. Він перетворює скопійоване на чистий простий текст: без зайвих пробілів, розірваних рядків і форматування.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>Вручну або саме</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Виберіть у меню «Очистити форматування в буфері обміну», натисніть комбінацію клавіш або увімкніть «Автоматично очищати форматування», щоб очищалося все скопійоване.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Спершу побачити, тоді очистити</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Вікно параметрів показує текст до й після. Позначте параметр і подивіться, що він робить; буфер обміну лишається як є.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Профіль для кожної справи</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Один набір параметрів для пошти, інший для коду. Перемикайте їх у меню системного лотка.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Ваші правила</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>Список замін застосовує ваші правила по черзі. Перетягніть правило, щоб перемістити його; шаблони теж працюють.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Ніщо не губиться</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>«Повернути оригінал» у меню повертає до буфера обміну те, що там було, разом із форматуванням.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro — очищається все скопійоване</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro — тут щось не працює</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Очищає текст у буфері обміну.
Версія %1
Ліцензія MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Немає оригіналу, який можна повернути.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Буфер обміну змінився, тому оригінал не повернуто.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>Оригінал повернуто, але деякі його формати не вдалося прочитати вчасно.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>Оригінал був більший за %1 МБ, тому його не збережено.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>Від очищення минуло понад %1 хвилин, тому оригінал більше не зберігається.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Текст у буфері обміну більший за %1 МБ, тому його не очищено.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Дбайливий</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Пошта</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Вебсторінка</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Термінал</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Відповідь помічника</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Код не чіпати</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (готовий)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Почати з</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Порожній: усі параметри вимкнено</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Копія профілю «%@»</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Очищено як: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Змінено: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Табуляція</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Пробіли</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Рядки</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Регістр</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Лапки</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Знаки відповіді</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Теги</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Заміни</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Маркери</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Крапки</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Повтори</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Дефіси</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Додавання</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Кодування</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Символи</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Посилання</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Які правила застосовувати під час очищення?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Усі: розриви рядків, лапки й маркери впорядковуються</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Дбайливо: лише пробіли й розірвані рядки; код, таблиці та списки лишаються</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Який профіль очищує яку копію</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Вирішує перший позначений рядок, що підходить до копії; якщо не підходить жоден, очищує вибраний профіль.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Додати рядок</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Додає рядок у кінець таблиці.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Видалити рядок</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Видаляє вибраний рядок.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Піднімає вибраний рядок, щоб його перевіряли раніше.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Опускає вибраний рядок, щоб його перевіряли пізніше.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Схоже на</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>На що схожий скопійований текст.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Програма</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Програма на передньому плані під час копіювання, як її називає «nerlo-pro --why»; * заміняє будь-яке закінчення. Її повідомляє не кожна стільниця.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Сторінка</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Сайт, з якого копіював браузер, наприклад example.org; * — будь-яка сторінка.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Формат, який пропонує копія, наприклад text/rtf; * заміняє будь-яке закінчення.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Профіль</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Чим очищувати таку копію, або лишити її як є.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Будь-яка копія</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Текст із термінала</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Таблиця</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Посилання</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>не чіпати</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Вибрати, що зробити з буфером обміну</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Відкриває невелике вікно біля вказівника: введіть текст, щоб знайти операцію, профіль або правила, перегляньте результат і натисніть Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Знайти операцію, профіль або правила</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Слова з назви; стрілки вибирають серед знайденого</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Що можна зробити</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter кладе результат у буфер обміну</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Профіль</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Готовий профіль</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Правила</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Операція</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Правила всіх профілів</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Правила «%@»</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Текст у буфері обміну</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Чим він стане</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: у буфер обміну · Esc: нічого не змінювати</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: у буфер обміну · Shift+Enter: ще й вставити · Esc: нічого не змінювати</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Виберіть інші клавіші на сторінці «%@» параметрів.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>очистити</translation>
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
        <translation>Автоматично очищати форматування</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Очищати одразу після копіювання</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Не зберігати оригінал</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Крім копій з Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Повернути оригінал</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Повернути «%1»</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Окремі операції</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профілі</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Параметри…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Поради</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Що нового</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Оцінити Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Підтримка</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>Написати розробникові</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Вийти з Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Сховати Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистити</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Зміни</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторити</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вирізати</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставити</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Позначити все</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Ніколи в цій програмі</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Ніколи в «%1»</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Не можна використати</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Записати комбінацію</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>не задано</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Натисніть комбінацію</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Лишити попередню</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Вилучити комбінацію клавіш</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробіл</translation>
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
        <translation>Вгору</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Ліворуч</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Праворуч</translation>
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
        <translation>Комбінацію клавіш «%@» використати не можна!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>Комбінацію клавіш «%@» використати не можна, бо вона вже зайнята системною комбінацією. Якщо вам потрібна саме вона, більшість комбінацій можна змінити в розділі «Клавіатура» системних параметрів.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>Комбінацію клавіш «%@» використати не можна, бо вона вже зайнята пунктом меню «%@».</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME використовує старішу версію розширення «Nerlo Pro». Вийдіть із сеансу та увійдіть знову.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>Розширення «Nerlo Pro» для GNOME не відповідає.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Комбінації потрібна клавіша Ctrl або Super чи функціональна клавіша.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Цю комбінацію клавіш зайняла інша програма.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Інша комбінація цієї програми має ті самі клавіші.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Відхилено в діалозі робочого середовища.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>У цьому робочому середовищі немає порталу GlobalShortcuts. Призначте клавішу для «nerlo-pro --operation N» або «nerlo-pro --clean» у його власних налаштуваннях клавіатури.</translation>
    </message>
</context>
</TS>
