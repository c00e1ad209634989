<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Пробелы и табуляция</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Символы</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Буквы и кавычки</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Маркеры, теги, шаблон</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Десять замен</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Поиск и замена</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Поиск параметров</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Введите слово, чтобы найти все связанные с ним параметры.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Нет параметров, связанных с «%@».</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Используемый набор параметров. Переключить его можно и в меню в системном лотке.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Добавить профиль</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Добавляет профиль: пустой, копию или готовый.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Удалить профиль</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Удаляет выбранный профиль. «Восстановить» вернёт его.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Управление…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Показывает список профилей: их можно переименовать, скопировать, упорядочить, импортировать и экспортировать.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Используется выбранный профиль. F2 переименовывает его, Alt+Вверх и Alt+Вниз перемещают, Delete удаляет. Сюда можно перетащить файлы профилей.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Добавляет копию выбранного профиля в конец списка.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Даёт выбранному профилю другое имя. Таблица копий следует за ним.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Перемещает выбранный профиль вверх, здесь и в меню.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Перемещает выбранный профиль вниз, здесь и в меню.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Сбросить на</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Даёт выбранному профилю другие значения: первого запуска или готового профиля. Прежнее можно восстановить.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Значения первого запуска</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Записывает выбранный профиль в файл — для другого компьютера или человека.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Добавляет профили из файла. Ни один не заменяется.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Возвращает один из недавно удалённых профилей.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Добавлено: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Не удалось прочитать профиль.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Не удалось записать профиль.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Комбинация клавиш, которая его выбирает</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>В любой программе эти клавиши включают выбранный профиль. Меню их показывает.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Выбрать профиль «%@»</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Введите имя нового профиля и нажмите OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel исключён</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>При включённом параметре «Автоматически очищать форматирование»</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Комбинация клавиш: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Комбинация клавиш, которая действует во всех приложениях.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Сбросить все комбинации</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Каждая команда получает комбинацию, которая была при первом запуске; у большинства её нет.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Сбросить комбинацию: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Как при первом запуске.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Все комбинации сброшены.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Система отклонила эту комбинацию клавиш. Возможно, её использует другая программа.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Эта рабочая среда не предоставляет программам комбинации клавиш. Назначьте комбинацию команде «%@» в её собственных настройках.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>В этой рабочей среде нет системного лотка, поэтому это окно открывается при каждом запуске.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Не удаётся прочитать «%@».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Его содержимое начинается заново. Повреждённый файл сохранён рядом, с «.unreadable-» и временем в имени.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Настройки не сохранены:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Профили не сохранены:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Не удалось изменить запуск при входе:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Файл правил для ссылок не используется:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Запускать Nerlo Pro при входе в систему</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>До: вы запускаете Nerlo Pro сами.
После: программа уже работает после входа в систему.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Показывать в системном лотке</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>До: Nerlo Pro есть на панели задач.
После: значок с меню в системном лотке.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Работать в фоне</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>До: значок в лотке или кнопка на панели задач.
После: ни того, ни другого. Повторный запуск Nerlo Pro открывает это окно.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Поверх других окон</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>До: другие окна могут закрыть это.
После: это окно остаётся поверх них.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>До: вы сами решаете, когда очищать буфер обмена.
После: всё скопированное очищается само.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Недоступно: эта сборка сделана без адреса для этого пункта.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>До: скопированное очищается в течение полусекунды.
После: скопированное очищается сразу.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>До: оригинал хранится десять минут, и его можно вернуть.
После: у другой программы запрашивается только текст, и вернуть ничего нельзя.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>До: скопированные ячейки становятся простым текстом.
После: ячейки электронной таблицы остаются как есть.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Очистить форматирование в буфере обмена</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>До: «Привет·····мир», жирный
После: «Привет·мир», простой</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Очистка</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Окно и запуск</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Сортировать строки</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>До: яблоко↵груша
После: груша↵яблоко</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>До (A-Z): груша↵яблоко
После (Z-A): яблоко↵груша</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Элементы заканчиваются на</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>До (Перевод строки): b,a
После («,»): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Свой разделитель</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>До: b/a
После, с /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Удалить повторяющиеся строки</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>До: чай↵чай↵молоко
После: чай↵молоко</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Элементы заканчиваются на</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>До (Перевод строки): a,a
После («,»): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Свой разделитель</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>До: a/a
После, с /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Показывать статистику после очистки</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Подсчитать буфер обмена</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>До: неизвестно, что было скопировано.
После: небольшое окно считает символы, пробелы, слова и абзацы.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Закрывать автоматически</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>До: окно видно, пока вы его не щёлкнете.
После: оно закрывается через несколько секунд.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Секунды</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Сколько времени видно окно.
До, с 3: три секунды
После, с 10: десять секунд</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>До (У указателя мыши): у указателя
После (Вверху справа): в этом углу экрана</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Называть, что изменило больше всего</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>До: окно только считает.
После: Изменено: Пробелы 12, Кавычки 4, Строки 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Несколько пробелов в один</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>До: a····b
После: a·b
Исчезают и столбцы с отступами.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Несколько табуляций в одну</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>До: a⇥⇥⇥b
После: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Преобразовать табуляции и четыре пробела</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>До: ⇥a
После: ····a, или наоборот</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>До (Табуляцию в 4 пробела): ⇥a
После: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Преобразовать три точки и многоточие</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>До: Постойте...
После: Постойте…, или наоборот</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>До (3 точки в многоточие): Постойте...
После: Постойте…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Удалить пробел перед точкой</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>До: Конец·.
После: Конец.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Удалить пробелы вокруг табуляций</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>До: a·⇥·b
После: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Удалить пробелы вокруг переводов строки</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>До: один·↵·два
После: один↵два
Исчезают и отступы, даже в коде и списках.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Удалить все пробелы</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>До: a·b·c
После: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Удалить все табуляции</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>До: a⇥b⇥c
После: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>До: a·⇥·b↵c
После: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Удалить переносы в конце строк</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>До: пере-↵нос
После: перенос</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Удалить все дефисы, тире и знаки минус</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>До: кое-что
После: коечто</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Добавить префикс</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>До: текст
После, с «&gt; »: &gt; текст</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Префикс</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>До: текст
После, с «&gt; »: &gt; текст</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Добавить суффикс</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>До: текст
После, с «!»: текст!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Суффикс</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>До: текст
После, с «!»: текст!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Соединить неверно разорванные строки</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>До: Эта строка была↵разорвана посередине.
После: Эта строка была·разорвана посередине.
Списки, таблицы и адреса тоже склеиваются.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Исправить неверную кодировку</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>До: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
После: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Соединить слова, перенесённые в конце строки</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>До: слово прове-↵рено, кто-↵нибудь
После: слово проверено, кто-нибудь</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Без номеров страниц и колонтитулов</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>До: то, что стоит вверху или внизу каждой страницы,
если страницы разделены, есть в тексте.
После: его нет.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Без цифр сносок</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>До: теория4 и доказательство.5
После: теория и доказательство.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Восстановить текст из терминала</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>До: │ Одно предложение↵│ в двух строках. │
После: Одно предложение·в двух строках.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Оставлять код, таблицы и списки как есть</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>До: список сливается в одну строку, а код портится.
После: приводится в порядок только обычный текст. Маркеры, отступы, код, таблицы и адреса остаются.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Строки соединяются через</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>До (ничего): a↵b превращается в ab
После (пробел): a↵b превращается в a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Изменить переводы строки</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>До: один↵↵↵два
После (один перевод строки): один↵два</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Переводы строки становятся</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>До (один перевод строки): один↵два
После (пробел): один·два</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Первый свой текст</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>До: один↵два
После, с «- »: один↵- два</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Второй свой текст</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>До: один
После, с [b] и [/b]: [b]один[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Обрезать пробелы по краям текста</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>До: ··текст··
После: текст</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Очистить символы</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>До: ﬁ‹U+200B›x‹U+00A0›y
После: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Оставлять управляющие символы</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>До: a␛[1mb␛[0m → ab
После: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Оставлять символы-теги</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>До: a‹U+E0041›b → ab
После: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Оставлять символы частного использования</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>До: a‹U+E000›b → ab
После: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Оставлять мягкие переносы</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>До: a‹U+00AD›b → ab
После: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Оставлять селекторы вариантов</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>До: a‹U+FE0F›b → ab
После: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Оставлять знаки направления</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>До: a‹U+200E›b → ab
После: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Оставлять символы нулевой ширины</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>До: a‹U+200B›b → ab
После: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Оставлять лигатуры</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>До: ﬁ → fi
После: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Оставлять особые пробелы</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>До: a‹U+00A0›b → a·b
После: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Полноширинные буквы в узкие</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>До: Ａ１
После: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Буква с акцентом одним символом (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>До: e + ◌́
После: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Простые кавычки, тире и точки</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>До: “a”—b…
После: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Убрать разметку Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>До: ## a↵- **b** `c`
После: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Изменить регистр букв</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>До: ПРИВЕТ. ТЫ.
После (как в предложениях): Привет. Ты.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Регистр</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>До (ПРОПИСНЫЕ): ПРИВЕТ
После (строчные): привет</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Изменить кавычки</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>До: ‘текст’
После (одинарные в двойные): “текст”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>До (одинарные в двойные): ‘текст’
После: “текст”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Одинарные</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>До: &apos;текст&apos;
После, с ‚…‘: ‚текст‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Двойные</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>До: &quot;текст&quot;
После, с „…“: „текст“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Кавычки всех видов</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>До: «текст» остаётся как есть.
После: «текст» тоже меняется.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Удалить одинарные кавычки</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>До: ‘текст’
После: текст</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Одинарные всех видов</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>До: ‹текст› остаётся как есть.
После: текст</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Удалить двойные кавычки</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>До: “текст”
После: текст</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Двойные всех видов</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>До: «текст» остаётся как есть.
После: текст</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Удалить маркеры списков</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>До: •·молоко↵•·хлеб
После: молоко↵хлеб
Маркеры внутри строк тоже исчезают.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Удалить знаки цитирования</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>До: &gt;·&gt;·Привет
После: Привет
Исчезает каждый &gt;, и внутри строк, а с ним конец каждого тега HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Удалить теги HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>До: &lt;b&gt;жирный&lt;/b&gt;
После: жирный
«Удалить знаки цитирования» работает раньше и забирает &gt; у тегов: тогда может исчезнуть весь текст.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>И скрипты</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>До: текст внутри &lt;script&gt; остаётся.
После: он исчезает вместе с тегом.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Очистить ссылки</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>До: https://example.org/a?id=7&amp;utm_source=mail
После: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Другие правила</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Файл с дополнительными правилами в формате ClearURLs.
Без него действует собственный список Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Выбрать файл…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Применить свой шаблон</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>До, с [0-9]: a1b2
После (удалить): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Шаблон</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Регулярное выражение.
До, с [0-9]: a1b2
После (удалить): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Это неверное регулярное выражение, поэтому оно ничего не находит.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Пропущено при последней очистке: слишком трудоёмко для этого текста.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Правила пропущены, так как слишком трудоёмки для этого текста: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Совпадения</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>До (удалить [0-9]): a1b2 превращается в ab
После (найти [0-9]): a1b2 превращается в 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Пробелы, табуляции и переводы строки в один пробел</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Замена 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Замена 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Замена 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Замена 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Замена 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Замена 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Замена 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Замена 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Замена 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Замена 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>До: ёлка
После, с «ёлка» и «елка»: елка</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Искомый текст.
До: ёлка
После, с «ёлка» и «елка»: елка</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Заменить на</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>То, что встанет на его место; если пусто, текст удаляется.
До: ёлка
После, с «ёлка» и «елка»: елка</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Отступ</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Тег</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Свой</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Применить список замен</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>До: г-н Иванов
После, с г-н → господин: господин Иванов</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Один список для всех профилей</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>До: у каждого профиля свой список.
После: у всех профилей один общий список.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Правила, от первого до последнего</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Правила применяются сверху вниз. Чтобы переместить правило, перетащите его или нажмите Alt+Вверх и Alt+Вниз.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Заменить на</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Начните с {search}, чтобы оставить только найденное по шаблону, или с {delete}, чтобы удалить его.
До, с [0-9] и {search}#: a1b2
После: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Добавить правило</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Добавляет правило в конец списка.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Удалить правило</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Удаляет выбранное правило.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Перемещает выбранное правило вверх, чтобы оно применялось раньше.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Перемещает выбранное правило вниз, чтобы оно применялось позже.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Новое правило</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Выберите правило, которое нужно удалить</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Выберите правило</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Текст замены</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Применяется ли правило.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Что ищет правило: текст или, если так указано в виде, шаблон.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Текст ищется как есть; шаблон — это регулярное выражение.
Без проверки: если остаются только совпадения, текст без них становится пустым.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Найдено</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Сколько раз правило что-то находит в тексте предпросмотра.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Шаблон: заменить</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Шаблон: оставить совпадения</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Шаблон: заменить, без проверки</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Шаблон: оставить совпадения, без проверки</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Шаблон не имеет смысла на символе %@ и поэтому ничего не находит.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Ничего не находит в тексте предпросмотра.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Найдено в тексте предпросмотра: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Пример %@ не выполняется. Правило делает из него: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Примеры выбранного правила</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Что правило должно сделать с текстом. Все проверяются при каждом изменении.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Не выполняется</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Добавить пример</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Берёт первое место предпросмотра, которое находит правило, для проверки.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Копирует и вставляет правила, импортирует и экспортирует списки и предлагает готовые.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Даты в ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Десятичные запятые в точки</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Убрать номера сносок</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Убрать приглашения оболочки</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Типографские знаки в простые</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Копировать правило</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Вставить правила</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Импортировать список…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Экспортировать список…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Что список «%@» сделает с вашими правилами:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Добавлено</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Остаётся</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Импортировать</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Это не список правил, который можно прочитать.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Не удалось записать список.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>В буфере обмена нет правил.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Удалено.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Отменяет это.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Обратный</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Случайный</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Перевод строки</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Внизу слева</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Внизу справа</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Вверху слева</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Вверху справа</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>По центру</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>У указателя мыши</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Табуляцию в 4 пробела, 4 пробела в табуляцию</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 точки в многоточие, Многоточие в 3 точки</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>ничего, пробел</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>ничего, один перевод строки, два перевода строки, пробел, перевод строки и пробел, перевод строки и табуляция, перевод строки и свой текст, абзацы HTML, теги рисунков HTML, свой текст вокруг строк</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>как в предложениях, Каждое Слово С Прописной, строчные, ПРОПИСНЫЕ</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>одинарные в двойные, двойные в одинарные</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>удалить, найти</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Показывает, что делают параметры. Ничего не попадёт в буфер обмена, пока вы этого не попросите.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>До</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Введите или вставьте сюда любой текст, чтобы испытать на нём параметры.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>После</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Текст после очистки. Изменения отмечены.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Введите текст или возьмите его из буфера обмена</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Взять из буфера обмена</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Копирует текст из буфера обмена в просмотр.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Очистить буфер обмена</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Сейчас же очищает текст в буфере обмена с этими параметрами.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Текст до выбранного шага или то, что изменилось в длинном тексте. Здесь его нельзя править.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Ввести другой текст</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Убирает длинный текст из просмотра, чтобы можно было ввести другой.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Шаги</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Шаги, которые что-то изменили, и число изменений. Выберите шаг, чтобы увидеть, что сделал он один; выберите его ещё раз, чтобы увидеть всё.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Все шаги</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, изменений: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Длинный текст: показаны только изменённые части.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>«%@» забирает &gt; у тегов HTML раньше, чем до них доходит «%@». Выключите одно из двух.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ строк без изменений: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ символов: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ ещё изменений: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Текст слишком длинный для просмотра; показано только его начало.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>В буфере обмена нет текста.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Дорогой  читатель .

&gt;  Эта строка была
&gt;  разорвана посередине.

•  Купить ‚свежее‘ молоко.
•  Купить ‚чёрный‘ хлеб...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Символы</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Пробелы</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Абзацы</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Щёлкните, чтобы закрыть</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Совет %1 из %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Показывать советы при каждом запуске</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>До: советы открываются только из меню.
После: они открываются при каждом запуске Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Что нового в Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Скопировать, очистить, вставить

Скопируйте текст, выберите «%@» в меню значка или нажмите его сочетание клавиш и вставьте. Что очищается, задают настройки; предпросмотр показывает это на тексте.

### Само

«%@» очищает каждую копию. Ссылки, файлы, картинки и пароли остаются как есть.

### Назад к оригиналу

«%@» возвращает скопированное с его форматированием в течение десяти минут.

### Одна операция

В меню каждая операция стоит отдельно. С `nerlo-pro --choose` наберите, что ищете, посмотрите результат и нажмите Enter.

### Профили

Профиль — это набор параметров. Он меняется в меню или вверху настроек.

### Клавиши в настройках

Ctrl+F ищет параметры, Ctrl+Z отменяет, F1 открывает эту справку.

### Если что-то не работает

`nerlo-pro --doctor` в терминале называет, чего недостаёт этому рабочему столу, `nerlo-pro --why` — что стало с последней копией. Остальное — в `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Показать советы</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Готовые профили**: для PDF, почты, веб-страниц, терминала, ответов помощника и кода.
- **Нужный профиль сам собой**: таблица на странице «Общие» говорит, какой профиль очищает какую копию.
- **Код, таблицы и списки**: могут остаться как есть.
- **Новые операции**: вывод терминала, неверная кодировка, невидимые символы, разрезанные слова и ссылки.
- **Окно выбора**: `nerlo-pro --choose` находит операцию по мере ввода и показывает текст до и после.
- **Поиск и замена**: у правил есть образцы и счётчики; их можно копировать, импортировать и экспортировать.
- **Предпросмотр**: называет шаг, который сделал изменение, и ведёт к его параметру.
- **Отмена**: Ctrl+Z отменяет изменения параметров, правил и профилей.
- **Возврат**: называет, что вернётся.
- **Сочетания клавиш**: названы как на клавишах и работают в KDE с Wayland.
- **В терминале**: `nerlo check`, `--explain`, бесконечные каналы, JSON Lines и библиотека для C и Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Скопировали — и чисто</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro живёт в системном лотке. Он превращает скопированное в чистый простой текст: без лишних пробелов, разорванных строк и форматирования.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>Вручную или само</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Выберите в меню «Очистить форматирование в буфере обмена», нажмите комбинацию клавиш или включите «Автоматически очищать форматирование», чтобы очищалось всё скопированное.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Сначала увидеть, потом очистить</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Окно параметров показывает текст до и после. Отметьте параметр и посмотрите, что он делает; буфер обмена остаётся как есть.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Профиль для каждого дела</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Один набор параметров для почты, другой для кода. Переключайте их в меню в системном лотке.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Ваши правила</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>Список замен применяет ваши правила по порядку. Перетащите правило, чтобы переместить его; шаблоны тоже работают.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Ничего не теряется</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>«Вернуть оригинал» в меню возвращает в буфер обмена то, что там было, вместе с форматированием.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro — очищается всё скопированное</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro — здесь что-то не работает</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Очищает текст в буфере обмена.
Версия %1
Лицензия MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Нет оригинала, который можно вернуть.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Буфер обмена изменился, поэтому оригинал не возвращён.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>Оригинал возвращён, но некоторые его форматы не удалось прочитать вовремя.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>Оригинал был больше %1 МБ, поэтому он не сохранён.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>С очистки прошло больше %1 минут, поэтому оригинал больше не хранится.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Текст в буфере обмена больше %1 МБ, поэтому он не очищен.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Бережный</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Почта</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Веб-страница</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Ответ помощника</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Код не трогать</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (готовый)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Начать с</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Пустой: все параметры выключены</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Копия профиля «%@»</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Очищено как: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Изменено: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Табуляция</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Пробелы</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Строки</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Регистр</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Кавычки</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Знаки ответа</translation>
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
        <translation>Замены</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Маркеры</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Точки</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Повторы</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Дефисы</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Добавления</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Кодировка</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Символы</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Ссылки</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Какие правила применять при очистке?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Все: переносы строк, кавычки и маркеры приводятся в порядок</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Бережно: только пробелы и разорванные строки; код, таблицы и списки остаются</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Какой профиль очищает какую копию</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Решает первая отмеченная строка, которая подходит к копии; если не подходит ни одна, очищает выбранный профиль.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Добавить строку</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Добавляет строку в конец таблицы.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Удалить строку</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Удаляет выбранную строку.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Поднимает выбранную строку, чтобы она проверялась раньше.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Опускает выбранную строку, чтобы она проверялась позже.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Похоже на</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>На что похож скопированный текст.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Программа на переднем плане при копировании, как её называет «nerlo-pro --why»; * заменяет любое окончание. Её сообщает не каждый рабочий стол.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Страница</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Сайт, с которого копировал браузер, например example.org; * — любая страница.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Формат, который предлагает копия, например text/rtf; * заменяет любое окончание.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Чем очищать такую копию, или оставить её как есть.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Любая копия</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Текст из терминала</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>не трогать</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Выбрать, что сделать с буфером обмена</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Открывает небольшое окно у указателя: наберите текст, чтобы найти операцию, профиль или правила, посмотрите результат и нажмите Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Найти операцию, профиль или правила</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Слова из названия; стрелки выбирают среди найденного</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Что можно сделать</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter помещает результат в буфер обмена</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Готовый профиль</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Правила</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Операция</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Правила всех профилей</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Правила «%@»</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Текст в буфере обмена</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Чем он станет</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: в буфер обмена · Esc: ничего не менять</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: в буфер обмена · Shift+Enter: ещё и вставить · Esc: ничего не менять</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Выберите другие клавиши на странице «%@» параметров.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>очистить</translation>
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
        <translation>Автоматически очищать форматирование</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Очищать сразу после копирования</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Не хранить оригинал</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Кроме копий из Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Вернуть оригинал</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Вернуть «%1»</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Отдельные операции</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Профили</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Советы</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Оценить Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Поддержка</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>Написать разработчику</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Завершить Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Скрыть Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Правка</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Никогда в этой программе</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Никогда в «%1»</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Нельзя использовать</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Записать комбинацию</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>не задано</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Нажмите комбинацию</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Оставить прежнюю</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Удалить комбинацию клавиш</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
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
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
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
        <translation>Комбинацию клавиш «%@» использовать нельзя!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>Комбинацию клавиш «%@» использовать нельзя, потому что она уже занята системной комбинацией. Если вам нужна именно она, большинство комбинаций можно изменить в разделе «Клавиатура» системных параметров.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>Комбинацию клавиш «%@» использовать нельзя, потому что она уже занята пунктом меню «%@».</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME использует более старую версию расширения «Nerlo Pro». Выйдите из сеанса и войдите снова.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>Расширение «Nerlo Pro» для GNOME не отвечает.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Комбинации нужна клавиша Ctrl или Super либо функциональная клавиша.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Эту комбинацию клавиш заняла другая программа.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>У другой комбинации этой программы те же клавиши.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Отклонено в диалоге рабочей среды.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>В этой рабочей среде нет портала GlobalShortcuts. Назначьте клавишу для «nerlo-pro --operation N» или «nerlo-pro --clean» в её собственных настройках клавиатуры.</translation>
    </message>
</context>
</TS>
