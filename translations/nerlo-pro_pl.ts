<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Spacje i tabulatory</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Znaki</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Litery i cudzysłowy</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Punktory, znaczniki, wzorzec</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Dziesięć zamian</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Znajdź i zamień</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Statystyka</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Szukaj opcji</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Wpisz słowo, aby znaleźć wszystkie związane z nim opcje.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Żadna opcja nie dotyczy „%@”.</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Strony</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Używany zestaw opcji. Można go też zmienić w menu zasobnika.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Dodaj profil</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Dodaje profil: pusty, kopię albo gotowy.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Usuń profil</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Usuwa wybrany profil. „Przywróć” go odzyskuje.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Zarządzaj…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Pokazuje listę profili: do zmiany nazw, kopiowania, porządkowania, importu i eksportu.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Używany jest wybrany profil. F2 zmienia jego nazwę, Alt+Góra i Alt+Dół przesuwają go, Delete usuwa. Można tu upuścić pliki z profilami.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Powiel</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Dodaje kopię wybranego profilu na końcu listy.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Nadaje wybranemu profilowi inną nazwę. Tabela kopii ją przejmuje.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Przesuwa wybrany profil w górę, tutaj i w menu.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Przesuwa wybrany profil w dół, tutaj i w menu.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Resetuj do</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Nadaje wybranemu profilowi inne wartości: z pierwszego uruchomienia albo gotowego profilu. To, czym był, można przywrócić.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Wartości pierwszego uruchomienia</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Zapisuje wybrany profil do pliku, dla innego komputera lub innej osoby.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importuj…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Dodaje profile z pliku. Żaden nie jest zastępowany.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Odzyskuje jeden z ostatnio usuniętych profili.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Dodano: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Nie udało się odczytać profilu.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Nie udało się zapisać profilu.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Skrót, który go wybiera</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>W każdym programie ten skrót sprawia, że używany jest wybrany profil. Menu go pokazuje.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Wybierz profil „%@”</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Wpisz nazwę nowego profilu i kliknij OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel wykluczony</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Z opcją „Automatycznie usuwaj formatowanie”</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Skrót: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Skrót działający we wszystkich programach.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Skróty</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Przywróć wszystkie skróty</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Każde polecenie dostaje skrót z pierwszego uruchomienia; większość nie ma żadnego.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Przywróć skrót: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Jak przy pierwszym uruchomieniu.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Przywrócono wszystkie skróty.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>System odrzucił ten skrót. Może go używać inny program.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>To środowisko nie udostępnia programom skrótów. Przypisz skrót do polecenia „%@” w jego ustawieniach.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>To środowisko nie ma zasobnika, więc to okno otwiera się przy każdym uruchomieniu.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Nie można odczytać „%@”.</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Jego zawartość zaczyna się od nowa. Uszkodzony plik został obok, z „.unreadable-” i czasem w nazwie.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Ustawienia nie są zapisane:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Profile nie są zapisane:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Nie udało się zmienić uruchamiania przy logowaniu:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Plik reguł dla linków nie jest używany:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Uruchamiaj Nerlo Pro przy logowaniu</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Przed: uruchamiasz Nerlo Pro ręcznie.
Po: program działa zaraz po zalogowaniu.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Pokazuj w zasobniku</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Przed: Nerlo Pro ma pozycję na pasku zadań.
Po: ma ikonę z menu w zasobniku.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Działaj w tle</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Przed: ikona w zasobniku albo pozycja na pasku zadań.
Po: ani jedno, ani drugie. Ponowne uruchomienie Nerlo Pro otwiera to okno.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Zawsze na wierzchu</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Przed: inne okna mogą zasłonić to okno.
Po: to okno pozostaje nad nimi.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Przed: decydujesz, kiedy oczyścić schowek.
Po: każda kopia jest czyszczona sama.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Niedostępne: ten program zbudowano bez adresu dla tej pozycji.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Przed: kopia jest czyszczona w ciągu pół sekundy.
Po: kopia jest czyszczona od razu.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Przed: oryginał jest przechowywany dziesięć minut i można go przywrócić.
Po: drugi program jest pytany tylko o tekst i niczego nie można przywrócić.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Przed: skopiowane komórki stają się zwykłym tekstem.
Po: komórki arkusza pozostają bez zmian.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Usuń formatowanie ze schowka</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Przed: „Witaj·····świecie”, pogrubiony
Po: „Witaj·świecie”, zwykły</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Czyszczenie</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Okno i uruchamianie</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Sortuj wiersze</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Przed: jabłko↵gruszka
Po: gruszka↵jabłko</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Kolejność</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Przed (A-Z): gruszka↵jabłko
Po (Z-A): jabłko↵gruszka</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Elementy kończą się na</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Przed (Koniec wiersza): b,a
Po („,”): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Własny separator</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Przed: b/a
Po, z /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Usuń powtórzone wiersze</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Przed: herbata↵herbata↵mleko
Po: herbata↵mleko</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Elementy kończą się na</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Przed (Koniec wiersza): a,a
Po („,”): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Własny separator</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Przed: a/a
Po, z /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Pokazuj statystykę po czyszczeniu</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Policz schowek</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Przed: nic nie mówi, co skopiowano.
Po: małe okno liczy znaki, spacje, słowa i akapity.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Zamykaj samoczynnie</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Przed: okno zostaje do kliknięcia.
Po: zamyka się po kilku sekundach.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Jak długo widać okno.
Przed, z 3: trzy sekundy
Po, z 10: dziesięć sekund</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Przed (Przy wskaźniku): przy wskaźniku
Po (Prawy górny róg): w tym rogu ekranu</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Podawaj, co zmieniło najwięcej</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Przed: okno tylko liczy.
Po: Zmieniono: Spacje 12, Cudzysłowy 4, Wiersze 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Wiele spacji w jedną</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Przed: a····b
Po: a·b
Znikają też kolumny i wcięcia.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Wiele tabulatorów w jeden</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Przed: a⇥⇥⇥b
Po: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Zamień tabulatory i cztery spacje</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Przed: ⇥a
Po: ····a, albo odwrotnie</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Przed (Tabulator na 4 spacje): ⇥a
Po: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Zamień trzy kropki i wielokropek</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Przed: Chwila...
Po: Chwila…, albo odwrotnie</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Przed (3 kropki na wielokropek): Chwila...
Po: Chwila…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Usuń spację przed kropką</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Przed: Koniec·.
Po: Koniec.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Usuń spacje wokół tabulatorów</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Przed: a·⇥·b
Po: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Usuń spacje wokół końców wiersza</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Przed: jeden·↵·dwa
Po: jeden↵dwa
Znikają też wcięcia, także w kodzie i listach.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Usuń wszystkie spacje</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Przed: a·b·c
Po: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Usuń wszystkie tabulatory</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Przed: a⇥b⇥c
Po: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Przed: a·⇥·b↵c
Po: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Usuń łączniki na końcach wierszy</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Przed: prze-↵niesienie
Po: przeniesienie</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Usuń wszystkie łączniki, myślniki i znaki minus</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Przed: biało-czerwony
Po: białoczerwony</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Dodaj przedrostek</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Przed: tekst
Po, z „&gt; ”: &gt; tekst</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Przedrostek</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Przed: tekst
Po, z „&gt; ”: &gt; tekst</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Dodaj przyrostek</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Przed: tekst
Po, z „!”: tekst!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Przyrostek</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Przed: tekst
Po, z „!”: tekst!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Złącz błędnie złamane wiersze</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Przed: Ten wiersz został↵złamany w środku.
Po: Ten wiersz został·złamany w środku.
Łączone są też listy, tabele i adresy.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Napraw błędne kodowanie</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Przed: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Po: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Połącz wyrazy przeniesione na końcu wiersza</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Przed: wyraz spraw-↵dzony, biało-↵czerwony
Po: wyraz sprawdzony, biało-czerwony</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Bez numerów stron i powtarzanych nagłówków</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Przed: to, co stoi u góry lub u dołu każdej strony,
gdy strony dzieli znak nowej strony, jest w tekście.
Po: znika.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Bez cyfr przypisów</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Przed: teoria4 i jej dowód.5
Po: teoria i jej dowód.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Scal tekst z terminala</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Przed: │ Jedno zdanie↵│ w dwóch wierszach. │
Po: Jedno zdanie·w dwóch wierszach.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Zostaw kod, tabele i listy bez zmian</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Przed: lista staje się jednym wierszem, a kod się psuje.
Po: porządkowany jest tylko zwykły tekst. Znaki list, wcięcia, kod, tabele i adresy zostają.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Wiersze są łączone przez</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Przed (nic): a↵b zmienia się w ab
Po (spacja): a↵b zmienia się w a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Zmień końce wiersza</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Przed: jeden↵↵↵dwa
Po (jeden koniec wiersza): jeden↵dwa</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Końce wiersza zmieniają się w</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Przed (jeden koniec wiersza): jeden↵dwa
Po (spacja): jeden·dwa</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Pierwszy własny tekst</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Przed: jeden↵dwa
Po, z „- ”: jeden↵- dwa</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Drugi własny tekst</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Przed: jeden
Po, z [b] i [/b]: [b]jeden[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Przytnij oba końce tekstu</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Przed: ··tekst··
Po: tekst</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Oczyść znaki</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Przed: ﬁ‹U+200B›x‹U+00A0›y
Po: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Zachowaj znaki sterujące</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Przed: a␛[1mb␛[0m → ab
Po: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Zachowaj znaki etykiet</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Przed: a‹U+E0041›b → ab
Po: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Zachowaj znaki użytku prywatnego</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Przed: a‹U+E000›b → ab
Po: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Zachowaj miękkie łączniki</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Przed: a‹U+00AD›b → ab
Po: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Zachowaj selektory wariantów</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Przed: a‹U+FE0F›b → ab
Po: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Zachowaj znaki kierunku</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Przed: a‹U+200E›b → ab
Po: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Zachowaj znaki zerowej szerokości</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Przed: a‹U+200B›b → ab
Po: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Zachowaj ligatury</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Przed: ﬁ → fi
Po: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Zachowaj odstępy specjalne</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Przed: a‹U+00A0›b → a·b
Po: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Litery pełnej szerokości na wąskie</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Przed: Ａ１
Po: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Litera z akcentem jako jeden znak (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Przed: e + ◌́
Po: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Proste cudzysłowy, kreski i kropki</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Przed: “a”—b…
Po: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Usuń znaczniki Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Przed: ## a↵- **b** `c`
Po: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Zmień wielkość liter</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Przed: WITAJ. TY.
Po (Jak w zdaniu): Witaj. Ty.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Wielkość liter</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Przed (WIELKIE LITERY): WITAJ
Po (małe litery): witaj</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Zmień cudzysłowy</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Przed: ‘tekst’
Po (pojedyncze na podwójne): “tekst”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Kierunek</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Przed (pojedyncze na podwójne): ‘tekst’
Po: “tekst”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Pojedyncze</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Przed: &apos;tekst&apos;
Po, z ‚…‘: ‚tekst‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Podwójne</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Przed: &quot;tekst&quot;
Po, z „…“: „tekst“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Cudzysłowy każdego rodzaju</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Przed: «tekst» pozostaje bez zmian.
Po: «tekst» też się zmienia.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Usuń pojedyncze cudzysłowy</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Przed: ‘tekst’
Po: tekst</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Pojedyncze każdego rodzaju</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Przed: ‹tekst› pozostaje bez zmian.
Po: tekst</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Usuń podwójne cudzysłowy</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Przed: “tekst”
Po: tekst</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Podwójne każdego rodzaju</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Przed: «tekst» pozostaje bez zmian.
Po: tekst</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Usuń punktory</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Przed: •·mleko↵•·chleb
Po: mleko↵chleb
Znikają też punktory wewnątrz wierszy.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Usuń znaki odpowiedzi</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Przed: &gt;·&gt;·Witaj
Po: Witaj
Znika każdy &gt;, także wewnątrz wierszy, a z nim koniec każdego znacznika HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Usuń znaczniki HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Przed: &lt;b&gt;pogrubiony&lt;/b&gt;
Po: pogrubiony
„Usuń znaki odpowiedzi” działa wcześniej i zabiera znacznikom &gt;: wtedy może zniknąć cały tekst.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Skrypty też</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Przed: tekst w &lt;script&gt; pozostaje.
Po: znika razem ze znacznikiem.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Oczyść adresy</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Przed: https://example.org/a?id=7&amp;utm_source=mail
Po: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Więcej reguł</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Plik z dodatkowymi regułami w formacie ClearURLs.
Bez niego obowiązuje własna lista Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Wybierz plik…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Użyj własnego wzorca</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Przed, z [0-9]: a1b2
Po (usuń): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Wzorzec</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Wyrażenie regularne.
Przed, z [0-9]: a1b2
Po (usuń): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>To nie jest poprawne wyrażenie regularne, więc niczego nie znajduje.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Pominięta przy ostatnim czyszczeniu: wymaga zbyt wiele pracy dla tego tekstu.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Pominięte reguły, bo wymagają zbyt wiele pracy dla tego tekstu: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Dopasowania</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Przed (usuń [0-9]): a1b2 zmienia się w ab
Po (znajdź [0-9]): a1b2 zmienia się w 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Spacje, tabulatory i końce wiersza w jedną spację</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Zamiana 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Zamiana 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Zamiana 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Zamiana 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Zamiana 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Zamiana 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Zamiana 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Zamiana 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Zamiana 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Zamiana 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Przed: dyskietka
Po, z „dyskietka” i „pendrive”: pendrive</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Szukany tekst.
Przed: dyskietka
Po, z „dyskietka” i „pendrive”: pendrive</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Zamień na</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>To, co go zastąpi; gdy puste, tekst zostaje usunięty.
Przed: dyskietka
Po, z „dyskietka” i „pendrive”: pendrive</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Wcięcie</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Znacznik</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Własny</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Zastosuj listę zamian</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Przed: P. Nowak
Po, z P. → Pan: Pan Nowak</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Jedna lista dla wszystkich profili</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Przed: każdy profil ma własną listę.
Po: wszystkie profile mają wspólną listę.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Reguły, od pierwszej do ostatniej</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Reguły są stosowane z góry na dół. Przeciągnij regułę albo naciśnij Alt+Góra i Alt+Dół, aby ją przesunąć.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Zamień na</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Zacznij od {search}, aby zostawić tylko to, co znajdzie wzorzec, albo od {delete}, aby to usunąć.
Przed, z [0-9] i {search}#: a1b2
Po: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Dodaj regułę</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Dodaje regułę na końcu listy.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Usuń regułę</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Usuwa wybraną regułę.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Przesuwa wybraną regułę w górę, aby była stosowana wcześniej.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>W dół</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Przesuwa wybraną regułę w dół, aby była stosowana później.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Nowa reguła</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Wybierz regułę do usunięcia</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Wybierz regułę</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Tekst zastępczy</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Czy reguła jest stosowana.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Znajdź</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Czego szuka reguła: tekstu albo wzorca, jeśli tak mówi jej rodzaj.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Tekst jest szukany dosłownie; wzorzec to wyrażenie regularne.
Bez sprawdzenia: gdy zostają tylko dopasowania, tekst bez żadnego staje się pusty.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Trafienia</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Ile razy reguła coś znajduje w tekście podglądu.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Wzorzec: zamień</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Wzorzec: zachowaj dopasowania</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Wzorzec: zamień, bez sprawdzenia</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Wzorzec: zachowaj dopasowania, bez sprawdzenia</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Wzorzec nie ma sensu przy znaku %@, więc niczego nie znajduje.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Niczego nie znajduje w tekście podglądu.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Trafienia w tekście podglądu: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Przykład %@ się nie zgadza. Reguła robi z niego: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Przykłady wybranej reguły</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Co reguła ma zrobić z tekstem. Wszystkie są sprawdzane przy każdej zmianie.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Zgadza się</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Nie zgadza się</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Dodaj przykład</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Bierze pierwsze miejsce podglądu, które reguła znajduje, do przejrzenia.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Więcej</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Kopiuje i wkleja reguły, importuje i eksportuje listy oraz proponuje gotowe.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Daty do ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Przecinki dziesiętne na kropki</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Usuń numery przypisów</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Usuń znaki zachęty powłoki</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Znaki typograficzne na proste</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Kopiuj regułę</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Wklej reguły</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Importuj listę…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Eksportuj listę…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Co lista „%@” zrobi z regułami:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Skutek</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Dodana</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Zmieniona</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Zostaje</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>To nie jest lista reguł, którą da się odczytać.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Nie udało się zapisać listy.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>W schowku nie ma reguł.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Usunięto.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Cofa to.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Odwrotnie</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Losowo</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Koniec wiersza</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Lewy dolny róg</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Prawy dolny róg</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Lewy górny róg</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Prawy górny róg</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Środek</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Przy wskaźniku</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tabulator na 4 spacje, 4 spacje na tabulator</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 kropki na wielokropek, Wielokropek na 3 kropki</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nic, spacja</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nic, jeden koniec wiersza, dwa końce wiersza, spacja, koniec wiersza i spacja, koniec wiersza i tabulator, koniec wiersza i własny tekst, akapity HTML, znaczniki obrazów HTML, własny tekst wokół wierszy</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Jak w zdaniu, Każde Słowo Wielką Literą, małe litery, WIELKIE LITERY</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>pojedyncze na podwójne, podwójne na pojedyncze</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>usuń, znajdź</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Pokazuje, co robią opcje. Nic nie trafia do schowka, dopóki o to nie poprosisz.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Wpisz lub wklej tu dowolny tekst, aby wypróbować na nim opcje.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Tekst oczyszczony według opcji. Zmiany są zaznaczone.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Wpisz tekst albo weź go ze schowka</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Weź ze schowka</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Kopiuje tekst ze schowka do podglądu.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Oczyść schowek</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Od razu czyści tekst w schowku z tymi opcjami.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Tekst przed wybranym krokiem albo to, co zmieniło się w długim tekście. Tutaj nie można go edytować.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Wpisz inny tekst</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Usuwa długi tekst z podglądu, aby można było wpisać inny.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Kroki</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Kroki, które coś zmieniły, z liczbą zmian. Wybierz krok, aby zobaczyć, co zrobił sam; wybierz go ponownie, aby zobaczyć wszystko.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Wszystkie kroki</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, zmiany: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Długi tekst: widać tylko zmienione części.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>„%@” zabrało znaki &gt; znaczników HTML, zanim przyszła kolej na „%@”. Wyłącz jedną z tych opcji.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ wiersze bez zmian: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ znaki: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ dalsze zmiany: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Tekst jest za długi na podgląd; widać tylko jego początek.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>W schowku nie ma tekstu.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Drogi  czytelniku .

&gt;  Ten wiersz został
&gt;  złamany w środku.

•  Kupić ‘świeże’ mleko.
•  Kupić ‘razowy’ chleb...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Znaki</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Spacje</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Słowa</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Akapity</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Statystyka</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Kliknij, aby zamknąć</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Wskazówka %1 z %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Pokazuj wskazówki przy każdym uruchomieniu</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Przed: wskazówki otwierają się tylko z menu.
Po: otwierają się przy każdym uruchomieniu Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Co nowego w Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Kopiuj, czyść, wklej

Skopiuj tekst, wybierz „%@” w menu ikony lub naciśnij jego skrót i wklej. Preferencje mówią, co jest czyszczone; podgląd pokazuje to na tekście.

### Samo

„%@” czyści każdą kopię. Linki, pliki, obrazy i hasła pozostają bez zmian.

### Z powrotem do oryginału

„%@” przywraca to, co skopiowano, z formatowaniem, przez dziesięć minut.

### Jedna operacja

Menu ma każdą operację osobno. Z `nerlo-pro --choose` wpisz, czego szukasz, zobacz wynik i naciśnij Enter.

### Profile

Profil to zestaw opcji. Zmienia się go w menu lub u góry preferencji.

### Klawisze w preferencjach

Ctrl+F szuka opcji, Ctrl+Z cofa, F1 otwiera tę pomoc.

### Gdy coś nie działa

`nerlo-pro --doctor` w terminalu mówi, czego brakuje temu środowisku, a `nerlo-pro --why`, co stało się z ostatnią kopią. Resztę ma `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Pokaż wskazówki</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Gotowe profile**: dla PDF, poczty, stron WWW, terminala, odpowiedzi asystenta i kodu.
- **Właściwy profil samoczynnie**: tabela na stronie Ogólne mówi, który profil czyści którą kopię.
- **Kod, tabele i listy**: mogą zostać, jakie są.
- **Nowe operacje**: wyjście terminala, złe kodowanie, niewidoczne znaki, przecięte słowa i linki.
- **Okno wyboru**: `nerlo-pro --choose` znajduje operację podczas pisania i pokazuje tekst przed i po.
- **Znajdź i zamień**: reguły mają próbki i liczniki, można je kopiować, importować i eksportować.
- **Podgląd**: nazywa krok, który coś zmienił, i prowadzi do jego opcji.
- **Cofanie**: Ctrl+Z cofa zmiany opcji, reguł i profili.
- **Przywracanie**: nazywa to, co wraca.
- **Skróty**: nazywają się jak klawisze i działają w KDE z Waylandem.
- **W terminalu**: `nerlo check`, `--explain`, potoki bez końca, JSON Lines i biblioteka dla C i Pythona.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Kopiujesz i jest czysto</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro mieszka w zasobniku. Zmienia to, co kopiujesz, w czysty, zwykły tekst: bez zbędnych spacji, złamanych wierszy i formatowania.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>Ręcznie albo samo</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Wybierz w menu „Usuń formatowanie ze schowka”, naciśnij skrót albo włącz „Automatycznie usuwaj formatowanie”, aby czyścić każdą kopię.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Najpierw zobacz, potem czyść</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Preferencje pokazują tekst przed i po. Zaznacz opcję i zobacz, co robi; schowek pozostaje bez zmian.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Profil do każdego zadania</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Miej jeden zestaw opcji do poczty, a drugi do kodu. Przełączaj je w menu zasobnika.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Twoje reguły</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>Lista zamian stosuje reguły po kolei. Przeciągnij regułę, aby ją przesunąć; wzorce też działają.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Nic nie ginie</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>„Przywróć oryginał” w menu przywraca to, co było w schowku, razem z formatowaniem.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – każda kopia jest czyszczona</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – coś tu nie działa</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Czyści tekst w schowku.
Wersja %1
Licencja MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Nie ma oryginału do przywrócenia.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Schowek się zmienił, więc oryginału nie przywrócono.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>Oryginał wrócił, ale niektórych jego formatów nie udało się odczytać na czas.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>Oryginał był większy niż %1 MB, więc go nie zachowano.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>Czyszczenie odbyło się ponad %1 minut temu, więc oryginału już nie ma.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Tekst w schowku jest większy niż %1 MB, więc go nie oczyszczono.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Łagodny</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Poczta</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Strona WWW</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Odpowiedź asystenta</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Kod nietknięty</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (gotowy)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Zaczyna się od</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Niczego: wszystkie opcje wyłączone</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Kopii profilu „%@”</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Wyczyszczono jako: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Zmieniono: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabulatory</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Spacje</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Wiersze</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Wielkość liter</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Cudzysłowy</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Znaki odpowiedzi</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Znaczniki</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Wzorzec</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Zamiany</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Punktory</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Kropki</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Kolejność</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Duplikaty</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Łączniki</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Dodatki</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Kodowanie</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Znaki</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Słowa</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Linki</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Jakie reguły ma stosować czyszczenie?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Wszystkie: podziały wierszy, cudzysłowy i punktory są porządkowane</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Łagodnie: tylko spacje i złamane wiersze; kod, tabele i listy zostają</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Który profil czyści którą kopię</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Decyduje pierwszy zaznaczony wiersz pasujący do kopii; gdy żaden nie pasuje, czyści wybrany profil.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Dodaj wiersz</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Dodaje wiersz na końcu tabeli.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Usuń wiersz</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Usuwa wybrany wiersz.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Przesuwa wybrany wiersz w górę, aby był sprawdzany wcześniej.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Przesuwa wybrany wiersz w dół, aby był sprawdzany później.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Wygląda jak</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Na co wygląda skopiowany tekst.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Program na wierzchu podczas kopiowania, tak jak nazywa go „nerlo-pro --why”; * oznacza dowolną resztę. Nie każdy pulpit to podaje.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Strona</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Witryna, z której kopiowała przeglądarka, na przykład example.org; * to dowolna strona.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Format, który oferuje kopia, na przykład text/rtf; * oznacza dowolną resztę.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Co czyści taką kopię albo że zostaje ona bez zmian.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Dowolna kopia</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Tekst z terminala</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Tabela</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Odnośnik</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>zostaw bez zmian</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Wybierz, co zrobić ze schowkiem</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Otwiera małe okno przy wskaźniku: wpisz, aby znaleźć operację, profil lub reguły, zobacz wynik i naciśnij Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Znajdź operację, profil lub reguły</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Słowa z nazwy; klawisze strzałek wybierają spośród znalezionych</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Co można zrobić</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter umieszcza wynik w schowku</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Gotowy profil</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Reguły</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Operacja</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Reguły wszystkich profili</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Reguły profilu „%@”</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Tekst w schowku</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Czym by się stał</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: do schowka · Esc: zostaw bez zmian</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: do schowka · Shift+Enter: także wklej · Esc: zostaw bez zmian</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Wybierz inne klawisze na stronie „%@” preferencji.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>oczyść oczyszczanie wyczyść</translation>
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
        <translation>Automatycznie usuwaj formatowanie</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Czyść zaraz po skopiowaniu</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Nie zachowuj oryginału</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Z wyjątkiem kopii z Excela</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Przywróć oryginał</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Przywróć „%1”</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Pojedyncze operacje</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencje…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Wskazówki</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Co nowego</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Oceń Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Wsparcie</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-mail do autora</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Zakończ Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Ukryj Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edycja</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Nigdy w tym programie</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Nigdy w „%1”</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Nie można użyć</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Nagraj skrót</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>nie ustawiono</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Naciśnij skrót</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Zostaw stary</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Usuń skrót</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
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
        <translation>Strzałka w górę</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Strzałka w dół</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Strzałka w lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Strzałka w prawo</translation>
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
        <translation>Nie można użyć kombinacji klawiszy „%@”!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>Nie można użyć kombinacji klawiszy „%@”, bo jest już skrótem systemowym. Jeśli naprawdę jej potrzebujesz, większość skrótów można zmienić w panelu Klawiatura w ustawieniach systemu.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>Nie można użyć kombinacji klawiszy „%@”, bo używa jej już pozycja menu „%@”.</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME używa starszej wersji rozszerzenia „Nerlo Pro”. Wyloguj się i zaloguj ponownie.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>Rozszerzenie „Nerlo Pro” środowiska GNOME nie odpowiada.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Skrót wymaga klawisza Ctrl lub Super albo klawisza funkcyjnego.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Inny program zajął tę kombinację klawiszy.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Inny skrót tego programu ma te same klawisze.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Został odrzucony w oknie dialogowym pulpitu.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Ten pulpit nie ma portalu GlobalShortcuts. Przypisz klawisz do „nerlo-pro --operation N” lub „nerlo-pro --clean” w jego własnych ustawieniach klawiatury.</translation>
    </message>
</context>
</TS>
