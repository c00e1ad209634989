<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Leerzeichen und Tabs</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Buchstaben und Zitate</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Aufzählung, Tags, Muster</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Zehn Ersetzungen</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Optionen suchen</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Geben Sie ein Wort ein, um alle Optionen zu finden, die damit zu tun haben.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Keine Option hat mit „%@“ zu tun.</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Der Satz Optionen, der benutzt wird. Auch das Menü im Infobereich kann ihn wechseln.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Profil hinzufügen</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Fügt ein Profil hinzu: ein leeres, eine Kopie oder ein fertiges.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Profil entfernen</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Entfernt das gewählte Profil. „Wiederherstellen“ holt es zurück.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Verwalten…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Zeigt die Liste der Profile: zum Umbenennen, Kopieren, Ordnen, Importieren und Exportieren.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Das gewählte Profil wird benutzt. F2 benennt es um, Alt+Auf und Alt+Ab verschieben es, Entf entfernt es. Dateien mit Profilen können hier abgelegt werden.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Fügt am Ende der Liste eine Kopie des gewählten Profils hinzu.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Gibt dem gewählten Profil einen anderen Namen. Die Tabelle der Kopien richtet sich danach.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Verschiebt das gewählte Profil nach oben, hier und in den Menüs.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Verschiebt das gewählte Profil nach unten, hier und in den Menüs.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Zurücksetzen auf</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Gibt dem gewählten Profil andere Werte: die eines ersten Starts oder eines fertigen Profils. Was es war, lässt sich wiederherstellen.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Werte eines ersten Starts</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Schreibt das gewählte Profil in eine Datei, für einen anderen Rechner oder Menschen.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Fügt die Profile einer Datei hinzu. Keines wird ersetzt.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Holt eines der zuletzt entfernten Profile zurück.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Hinzugefügt: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Das Profil konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Das Profil konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Tastenkürzel, das es wählt</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>In jedem Programm macht dieses Tastenkürzel das gewählte Profil zu dem, das benutzt wird. Das Menü zeigt es.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Profil „%@“ wählen</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Geben Sie den Namen des neuen Profils ein und klicken Sie auf OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel ausgenommen</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Mit der Option „Formatierung automatisch entfernen“</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Tastenkürzel: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Ein Tastenkürzel, das in jeder Anwendung wirkt.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Alle Tastenkürzel zurücksetzen</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Jeder Befehl bekommt das Tastenkürzel wie beim ersten Start; die meisten haben keines.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Tastenkürzel zurücksetzen: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Wie beim ersten Start.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Alle Tastenkürzel sind zurückgesetzt.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Das System hat dieses Tastenkürzel abgelehnt. Vielleicht benutzt es ein anderes Programm.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Diese Arbeitsumgebung bietet Programmen keine Tastenkürzel an. Legen Sie in deren Einstellungen eines für den Befehl „%@“ fest.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Diese Arbeitsumgebung zeigt keinen Infobereich, darum öffnet sich dieses Fenster bei jedem Start.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>„%@“ lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Was darin stand, beginnt neu. Die beschädigte Datei liegt daneben, mit „.unreadable-“ und der Zeit im Namen.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Die Einstellungen sind nicht gespeichert:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Die Profile sind nicht gespeichert:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Der Start bei der Anmeldung ließ sich nicht ändern:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Die Datei mit Regeln für Links wird nicht verwendet:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Nerlo Pro bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Vorher: Sie starten Nerlo Pro von Hand.
Nachher: Es ist nach der Anmeldung da.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Vorher: Nerlo Pro hat einen Eintrag in der Fensterleiste.
Nachher: Es hat ein Symbol mit Menü im Infobereich.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Im Hintergrund ausführen</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Vorher: Symbol im Infobereich oder Eintrag in der Fensterleiste.
Nachher: Keines von beiden. Ein erneuter Start von Nerlo Pro öffnet dieses Fenster.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Im Vordergrund halten</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Vorher: Andere Fenster können dieses verdecken.
Nachher: Dieses Fenster bleibt über ihnen.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Vorher: Sie bestimmen, wann die Zwischenablage bereinigt wird.
Nachher: Jede Kopie wird von selbst bereinigt.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Nicht verfügbar: Dieses Programm wurde ohne eine Adresse dafür gebaut.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Vorher: Eine Kopie wird innerhalb einer halben Sekunde bereinigt.
Nachher: Eine Kopie wird sofort bereinigt.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Vorher: Das Original wird zehn Minuten aufbewahrt und lässt sich zurückholen.
Nachher: Das andere Programm wird nur nach dem Text gefragt, und nichts lässt sich zurückholen.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Vorher: Kopierte Zellen werden zu einfachem Text.
Nachher: Zellen aus einer Tabelle bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Zwischenablage von Formatierung befreien</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Vorher: „Hallo·····Welt“, fett
Nachher: „Hallo·Welt“, einfach</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Fenster und Start</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Zeilen sortieren</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Vorher: Birne↵Apfel
Nachher: Apfel↵Birne</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Vorher (A-Z): Apfel↵Birne
Nachher (Z-A): Birne↵Apfel</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Einträge enden mit</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Vorher (Zeilenumbruch): b,a
Nachher („,“): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Eigenes Trennzeichen</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Vorher: b/a
Nachher, mit /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Doppelte Zeilen entfernen</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Vorher: Tee↵Tee↵Milch
Nachher: Tee↵Milch</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Einträge enden mit</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Vorher (Zeilenumbruch): a,a
Nachher („,“): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Eigenes Trennzeichen</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Vorher: a/a
Nachher, mit /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Nach dem Bereinigen die Statistik zeigen</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Zwischenablage zählen</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Vorher: Nichts sagt Ihnen, was kopiert wurde.
Nachher: Ein kleines Fenster zählt Zeichen, Leerzeichen, Wörter und Absätze.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Von selbst schließen</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Vorher: Das Fenster bleibt, bis Sie darauf klicken.
Nachher: Es schließt sich nach einigen Sekunden.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Wie lange das Fenster stehen bleibt.
Vorher, mit 3: drei Sekunden
Nachher, mit 10: zehn Sekunden</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Vorher (Am Mauszeiger): beim Mauszeiger
Nachher (Oben rechts): in dieser Ecke des Bildschirms</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Nennen, was am meisten geändert hat</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Vorher: Das Fenster zählt nur.
Nachher: Geändert: Leerzeichen 12, Anführungszeichen 4, Zeilen 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Mehrere Leerzeichen zu einem</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Vorher: a····b
Nachher: a·b
Auch Spalten und Einzüge fallen weg.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Mehrere Tabs zu einem</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Vorher: a⇥⇥⇥b
Nachher: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Tabs und vier Leerzeichen umwandeln</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Vorher: ⇥a
Nachher: ····a, oder umgekehrt</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Vorher (Tab zu 4 Leerzeichen): ⇥a
Nachher: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Drei Punkte und Auslassungszeichen umwandeln</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Vorher: Moment...
Nachher: Moment…, oder umgekehrt</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Vorher (3 Punkte zu Auslassungszeichen): Moment...
Nachher: Moment…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Leerzeichen vor einem Punkt entfernen</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Vorher: Ende·.
Nachher: Ende.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Leerzeichen um Tabs entfernen</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Vorher: a·⇥·b
Nachher: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Leerzeichen um Zeilenumbrüche entfernen</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Vorher: eins·↵·zwei
Nachher: eins↵zwei
Auch Einzüge fallen weg, von Code und Listen ebenso.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Alle Leerzeichen entfernen</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Vorher: a·b·c
Nachher: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Alle Tabs entfernen</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Vorher: a⇥b⇥c
Nachher: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Vorher: a·⇥·b↵c
Nachher: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Trennstriche am Zeilenende entfernen</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Vorher: Silben-↵trennung
Nachher: Silbentrennung</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Alle Bindestriche, Gedankenstriche und Minuszeichen entfernen</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Vorher: E-Mail
Nachher: EMail</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Präfix hinzufügen</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Vorher: Text
Nachher, mit „&gt; “: &gt; Text</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Präfix</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Vorher: Text
Nachher, mit „&gt; “: &gt; Text</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Suffix hinzufügen</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Vorher: Text
Nachher, mit „!“: Text!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Suffix</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Vorher: Text
Nachher, mit „!“: Text!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Falsch umbrochene Zeilen zusammenfügen</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Vorher: Diese Zeile wurde↵mittendrin umbrochen.
Nachher: Diese Zeile wurde·mittendrin umbrochen.
Auch Listen, Tabellen und Adressen werden verbunden.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Falsche Kodierung reparieren</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Vorher: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Nachher: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Am Zeilenende getrennte Wörter zusammenfügen</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Vorher: ein ge-↵trenntes Wort, ein CD-↵Laufwerk
Nachher: ein getrenntes Wort, ein CD-Laufwerk</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Seitenzahlen und Kolumnentitel entfernen</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Vorher: Was auf jeder Seite oben oder unten steht,
wo Seitenvorschübe die Seiten trennen, ist im Text.
Nachher: Es ist weg.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Ziffern von Fußnoten entfernen</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Vorher: eine Theorie4 und ihr Beweis.5
Nachher: eine Theorie und ihr Beweis.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Text aus einem Terminal entpacken</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Vorher: │ Ein Satz auf↵│ zwei Zeilen. │
Nachher: Ein Satz auf·zwei Zeilen.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Code, Tabellen und Listen so lassen, wie sie sind</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Vorher: Beim Aufräumen wird eine Liste zu einer Zeile und Code beschädigt.
Nachher: Nur Fließtext wird aufgeräumt. Listenzeichen, Einzüge, Code, Tabellen und Adressen bleiben.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Zeilen werden verbunden mit</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Vorher (nichts): a↵b wird zu ab
Nachher (Leerzeichen): a↵b wird zu a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Zeilenumbrüche ändern</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Vorher: eins↵↵↵zwei
Nachher (ein Umbruch): eins↵zwei</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Aus Umbrüchen wird</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Vorher (ein Umbruch): eins↵zwei
Nachher (Leerzeichen): eins·zwei</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Erster eigener Text</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Vorher: eins↵zwei
Nachher, mit „- “: eins↵- zwei</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Zweiter eigener Text</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Vorher: eins
Nachher, mit [b] und [/b]: [b]eins[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Beide Enden des Textes beschneiden</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Vorher: ··Text··
Nachher: Text</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Zeichen säubern</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Vorher: ﬁ‹U+200B›x‹U+00A0›y
Nachher: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Steuerzeichen behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Vorher: a␛[1mb␛[0m → ab
Nachher: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Tag-Zeichen behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Vorher: a‹U+E0041›b → ab
Nachher: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Zeichen zum privaten Gebrauch behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Vorher: a‹U+E000›b → ab
Nachher: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Weiche Trennstriche behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Vorher: a‹U+00AD›b → ab
Nachher: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Variantenwähler behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Vorher: a‹U+FE0F›b → ab
Nachher: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Richtungszeichen behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Vorher: a‹U+200E›b → ab
Nachher: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Zeichen ohne Breite behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Vorher: a‹U+200B›b → ab
Nachher: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Ligaturen behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Vorher: ﬁ → fi
Nachher: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Besondere Leerzeichen behalten</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Vorher: a‹U+00A0›b → a·b
Nachher: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Vollbreite Buchstaben schmal machen</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Vorher: Ａ１
Nachher: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Buchstaben mit Akzent als ein Zeichen (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Vorher: e + ◌́
Nachher: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Einfache Anführungszeichen, Striche und Punkte</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Vorher: “a”—b…
Nachher: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Markdown-Zeichen entfernen</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Vorher: ## a↵- **b** `c`
Nachher: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Groß- und Kleinschreibung ändern</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Vorher: HALLO. DU.
Nachher (Satzanfänge groß): Hallo. Du.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Schreibung</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Vorher (GROSSBUCHSTABEN): HALLO
Nachher (Kleinbuchstaben): hallo</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Anführungszeichen ändern</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Vorher: ‘Text’
Nachher (einfache zu doppelten): “Text”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Vorher (einfache zu doppelten): ‘Text’
Nachher: “Text”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Einfache Zeichen</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Vorher: &apos;Text&apos;
Nachher, mit ‚…‘: ‚Text‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Doppelte Zeichen</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Vorher: &quot;Text&quot;
Nachher, mit „…“: „Text“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Zeichen jeder Art</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Vorher: «Text» bleibt, wie es ist.
Nachher: «Text» wird auch geändert.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Einfache Anführungszeichen entfernen</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Vorher: ‘Text’
Nachher: Text</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Einfache Zeichen jeder Art</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Vorher: ‹Text› bleibt, wie es ist.
Nachher: Text</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Doppelte Anführungszeichen entfernen</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Vorher: “Text”
Nachher: Text</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Doppelte Zeichen jeder Art</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Vorher: «Text» bleibt, wie es ist.
Nachher: Text</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Aufzählungszeichen entfernen</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Vorher: •·Milch↵•·Brot
Nachher: Milch↵Brot
Aufzählungszeichen mitten in Zeilen fallen auch weg.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Antwortzeichen entfernen</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Vorher: &gt;·&gt;·Hallo
Nachher: Hallo
Jedes &gt; fällt weg, auch mitten in Zeilen, und damit das Ende jedes HTML-Tags.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>HTML-Tags entfernen</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Vorher: &lt;b&gt;fett&lt;/b&gt;
Nachher: fett
„Antwortzeichen entfernen“ läuft davor und nimmt den Tags das &gt;: Dann kann der ganze Text wegfallen.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Auch Skripte</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Vorher: Der Text eines &lt;script&gt; bleibt.
Nachher: Er verschwindet mit seinem Tag.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Links säubern</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Vorher: https://example.org/a?id=7&amp;utm_source=mail
Nachher: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Weitere Regeln</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Eine Datei mit weiteren Regeln, im Format von ClearURLs.
Ohne sie gilt die eigene Liste von Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Datei wählen…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Eigenes Muster verwenden</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Vorher, mit [0-9]: a1b2
Nachher (löschen): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Ein regulärer Ausdruck.
Vorher, mit [0-9]: a1b2
Nachher (löschen): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Das ist kein gültiger regulärer Ausdruck, er findet also nichts.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Beim letzten Bereinigen ausgelassen: zu aufwendig für diesen Text.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Ausgelassene Regeln, weil zu aufwendig für diesen Text: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Vorher (löschen [0-9]): a1b2 wird zu ab
Nachher (suchen [0-9]): a1b2 wird zu 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Leerzeichen, Tabs und Umbrüche zu einem Leerzeichen</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Ersetzung 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Ersetzung 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Ersetzung 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Ersetzung 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Ersetzung 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Ersetzung 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Ersetzung 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Ersetzung 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Ersetzung 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Ersetzung 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Vorher: Photo
Nachher, mit „Photo“ und „Foto“: Foto</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Der Text, der gesucht wird.
Vorher: Photo
Nachher, mit „Photo“ und „Foto“: Foto</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Was an seine Stelle tritt; bleibt es leer, wird der Text gelöscht.
Vorher: Photo
Nachher, mit „Photo“ und „Foto“: Foto</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Einzug</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Liste zum Suchen und Ersetzen anwenden</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Vorher: Hr. Meier
Nachher, mit Hr. → Herr: Herr Meier</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Eine Liste für alle Profile</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Vorher: Jedes Profil hat eine eigene Liste.
Nachher: Alle Profile teilen sich eine Liste.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Regeln, von der ersten zur letzten</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Die Regeln werden von oben nach unten angewandt. Ziehen Sie eine Regel oder drücken Sie Alt+Auf und Alt+Ab, um sie zu verschieben.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Mit {search} am Anfang bleibt nur, was das Muster findet; mit {delete} wird es gelöscht.
Vorher, mit [0-9] und {search}#: a1b2
Nachher: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Regel hinzufügen</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Fügt am Ende der Liste eine Regel hinzu.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Regel löschen</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Löscht die gewählte Regel.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Schiebt die gewählte Regel nach oben, sodass sie früher angewandt wird.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Schiebt die gewählte Regel nach unten, sodass sie später angewandt wird.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Neue Regel</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Wählen Sie die Regel, die gelöscht werden soll</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Wählen Sie eine Regel</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Ersatztext</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>An</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Ob die Regel angewandt wird.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Was die Regel sucht: einen Text oder, je nach Art, ein Muster.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Ein Text wird gefunden, wie er dasteht; ein Muster ist ein regulärer Ausdruck.
Ungeprüft: Wo nur Treffer bleiben, wird ein Text ohne Treffer leer.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Wie oft die Regel im Text der Vorschau etwas findet.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Muster: ersetzen</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Muster: Treffer behalten</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Muster: ersetzen, ungeprüft</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Muster: Treffer behalten, ungeprüft</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Das Muster ergibt ab Zeichen %@ keinen Sinn und findet deshalb nichts.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Findet nichts im Text der Vorschau.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Treffer im Text der Vorschau: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Beispiel %@ stimmt nicht. Die Regel macht daraus: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Beispiele der gewählten Regel</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Was die Regel aus einem Text machen soll. Bei jeder Änderung werden alle geprüft.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Stimmt</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Stimmt nicht</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Beispiel hinzufügen</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Nimmt die erste Stelle der Vorschau, die die Regel findet, zum Durchsehen.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Kopiert Regeln und fügt sie ein, importiert und exportiert Listen und bietet fertige an.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Datumsangaben nach ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Dezimalkommas zu Punkten</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Fußnotenziffern entfernen</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Eingabezeichen der Shell entfernen</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Typografische Zeichen zu einfachen</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Regel kopieren</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Regeln einfügen</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Liste importieren …</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Liste exportieren …</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Was die Liste „%@“ mit Ihren Regeln macht:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Bleibt</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Das ist keine lesbare Liste von Regeln.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Die Liste konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>In der Zwischenablage sind keine Regeln.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Gelöscht.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Nimmt das zurück.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Zeilenumbruch</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Am Mauszeiger</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tab zu 4 Leerzeichen, 4 Leerzeichen zu Tab</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 Punkte zu Auslassungszeichen, Auslassungszeichen zu 3 Punkten</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nichts, Leerzeichen</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nichts, ein Umbruch, zwei Umbrüche, Leerzeichen, Umbruch und Leerzeichen, Umbruch und Tab, Umbruch und eigener Text, HTML-Absätze, HTML-Bild-Tags, eigener Text um die Zeilen</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Satzanfänge groß, Wortanfänge groß, Kleinbuchstaben, GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>einfache zu doppelten, doppelte zu einfachen</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>löschen, suchen</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Zeigt, was die Optionen bewirken. Nichts gelangt in die Zwischenablage, bevor Sie es verlangen.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Geben Sie hier einen beliebigen Text ein, um die Optionen daran auszuprobieren.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Der Text, wie ihn die Optionen bereinigen. Geändertes ist markiert.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Text eingeben oder aus der Zwischenablage holen</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Aus der Zwischenablage holen</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Übernimmt den Text der Zwischenablage in die Vorschau.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Zwischenablage bereinigen</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Bereinigt den Text der Zwischenablage sofort mit diesen Optionen.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Der Text vor dem gewählten Schritt, oder was sich in einem langen Text geändert hat. Hier lässt er sich nicht bearbeiten.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Anderen Text eingeben</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Nimmt den langen Text aus der Vorschau, sodass sich ein anderer eingeben lässt.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Die Schritte, die etwas geändert haben, mit der Zahl der Änderungen. Wählen Sie einen, um zu sehen, was er allein tut; wählen Sie ihn noch einmal, um alles zu sehen.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Alle Schritte</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, Änderungen: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Ein langer Text: Gezeigt werden nur die geänderten Teile.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>„%@“ hat den HTML-Tags das &gt; genommen, bevor „%@“ an der Reihe war. Schalten Sie eines von beiden aus.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ Zeilen ohne Änderung: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ Zeichen: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ weitere Änderungen: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Der Text ist zu lang für die Vorschau; nur sein Anfang wird gezeigt.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>In der Zwischenablage ist kein Text.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Liebe  Leserin .

&gt;  Diese Zeile wurde
&gt;  mittendrin umbrochen.

•  Bitte die ‚frische‘ Milch holen.
•  Bitte das ‚dunkle‘ Brot holen...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Absätze</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Zum Schließen klicken</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Loslegen</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Tipp %1 von %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Tipps bei jedem Start zeigen</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Vorher: Die Tipps öffnen sich nur aus dem Menü.
Nachher: Sie öffnen sich bei jedem Start von Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Neues in Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Kopieren, bereinigen, einfügen

Kopieren Sie einen Text, wählen Sie „%@“ im Menü des Infobereichs oder drücken Sie das Tastenkürzel, und fügen Sie ein. Was bereinigt wird, steht in den Einstellungen; die Vorschau zeigt es an einem Text.

### Von selbst

„%@“ bereinigt jede Kopie. Links, Dateien, Bilder und Passwörter bleiben, wie sie sind.

### Zurück zum Original

„%@“ bringt zehn Minuten lang zurück, was kopiert wurde, samt Formatierung.

### Ein einzelner Vorgang

Das Menü hat jeden Vorgang für sich. Mit `nerlo-pro --choose` tippen Sie, was Sie suchen, sehen das Ergebnis und drücken die Eingabetaste.

### Profile

Ein Profil ist ein Satz von Optionen. Gewechselt wird im Menü oder oben in den Einstellungen.

### Tasten in den Einstellungen

Strg+F sucht Optionen, Strg+Z macht rückgängig, F1 öffnet diese Hilfe.

### Wenn etwas nicht geht

`nerlo-pro --doctor` in einem Terminal nennt, was diesem Desktop fehlt, `nerlo-pro --why`, was aus der letzten Kopie wurde. Den Rest hat `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Tipps anzeigen</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Fertige Profile**: für PDF, Mail, Webseiten, Terminal, Antworten eines Assistenten und Code.
- **Das richtige Profil von selbst**: Eine Tabelle auf der Seite Allgemein sagt, welches Profil welche Kopie bereinigt.
- **Code, Tabellen und Listen**: können bleiben, wie sie sind.
- **Neue Vorgänge**: Terminalausgaben auflösen, falsche Kodierung reparieren, unsichtbare Zeichen bereinigen, getrennte Wörter verbinden, Links bereinigen.
- **Die Auswahl**: `nerlo-pro --choose` findet beim Tippen einen Vorgang und zeigt den Text vorher und nachher.
- **Suchen und Ersetzen**: Regeln haben Proben und Zähler und lassen sich kopieren, importieren und exportieren.
- **Die Vorschau**: nennt den Schritt, der etwas geändert hat, und führt zu seiner Option.
- **Rückgängig**: Strg+Z nimmt Änderungen an Optionen, Regeln und Profilen zurück.
- **Zurückholen**: nennt, was zurückkommt.
- **Tastenkürzel**: heißen wie die Tasten und gehen auch in KDE mit Wayland.
- **Im Terminal**: `nerlo check`, `--explain`, Pipes ohne Ende, JSON Lines und eine Bibliothek für C und Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Kopieren, und es ist sauber</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro wohnt im Infobereich. Es macht aus dem, was Sie kopieren, sauberen, einfachen Text: keine überzähligen Leerzeichen, keine zerbrochenen Zeilen, keine Formatierung.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>Von Hand oder von selbst</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Wählen Sie „Zwischenablage von Formatierung befreien“ im Menü, drücken Sie das Tastenkürzel dafür, oder lassen Sie mit „Formatierung automatisch entfernen“ jede Kopie bereinigen.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Erst sehen, dann bereinigen</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Die Einstellungen zeigen einen Text vorher und nachher. Haken Sie eine Option an und sehen Sie, was sie tut; die Zwischenablage bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Ein Profil für jede Aufgabe</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Ein Satz Optionen für E-Mails, ein anderer für Quelltext: Im Menü des Infobereichs wechseln Sie dazwischen.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Eigene Regeln</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>Die Liste zum Suchen und Ersetzen wendet Ihre Regeln der Reihe nach an. Ziehen Sie eine Regel an ihren Platz; auch Muster sind möglich.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Nichts geht verloren</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>„Original zurückholen“ im Menü bringt zurück, was vorher in der Zwischenablage stand, mitsamt Formatierung.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – jede Kopie wird bereinigt</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – hier funktioniert etwas nicht</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Bereinigt den Text in der Zwischenablage.
Version %1
MIT-Lizenz</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Es gibt kein Original, das zurückgeholt werden könnte.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Die Zwischenablage hat sich geändert, darum wurde das Original nicht zurückgeholt.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>Das Original ist zurück, aber einige seiner Formate konnten nicht rechtzeitig gelesen werden.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>Das Original war größer als %1 MB und wurde darum nicht aufgehoben.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>Das Aufräumen ist mehr als %1 Minuten her, darum ist das Original nicht mehr aufgehoben.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Der Text in der Zwischenablage ist größer als %1 MB und wurde darum nicht bereinigt.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Sanft</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Antwort eines Assistenten</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Code bleibt</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (fertig)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Beginnt mit</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Nichts: alle Optionen sind ausgeschaltet</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Einer Kopie von „%@“</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Bereinigt als: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Geändert: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Groß/klein</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Anführungszeichen</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Antwortzeichen</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Ersetzungen</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Aufzählungszeichen</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Doppelte</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Trennstriche</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Zusätze</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Kodierung</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Welche Regeln soll das Bereinigen anwenden?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Alle: jeder Umbruch, jedes Anführungs- und Aufzählungszeichen</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Sanft: nur Leerzeichen und Umbrüche; Code, Tabellen und Listen bleiben</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Welches Profil welche Kopie bereinigt</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Die erste angehakte Zeile, die auf eine Kopie passt, entscheidet; passt keine, bereinigt das gewählte Profil.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Zeile hinzufügen</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Fügt am Ende der Tabelle eine Zeile hinzu.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Löscht die gewählte Zeile.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Schiebt die gewählte Zeile nach oben, sodass sie früher gefragt wird.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Schiebt die gewählte Zeile nach unten, sodass sie später gefragt wird.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Sieht aus wie</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Wonach der kopierte Text aussieht.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Das Programm, das beim Kopieren vorn war, wie „nerlo-pro --why“ es nennt; * steht für jeden Rest. Nicht jeder Desktop verrät es.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Die Website, von der ein Browser kopiert hat, etwa example.org; * ist jede Seite.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Ein Format, das die Kopie anbietet, etwa text/rtf; * steht für jeden Rest.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Was eine solche Kopie bereinigt, oder dass sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Jede Kopie</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Text aus einem Terminal</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Eine Tabelle</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Ein Link</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>in Ruhe lassen</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Wählen, was mit der Zwischenablage geschieht</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Öffnet ein kleines Fenster am Mauszeiger: tippen, um eine Funktion, ein Profil oder Regeln zu finden, sehen, was geschieht, und Enter drücken.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Funktion, Profil oder Regeln finden</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Wörter aus dem Namen; die Pfeiltasten wählen unter dem Gefundenen</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Was möglich ist</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter legt das Ergebnis in die Zwischenablage</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Fertiges Profil</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Regeln aller Profile</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Regeln von „%@“</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Der Text in der Zwischenablage</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Was daraus würde</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: in die Zwischenablage · Esc: alles lassen, wie es war</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: in die Zwischenablage · Umschalt+Enter: auch einfügen · Esc: alles lassen, wie es war</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Wählen Sie auf der Seite „%@“ der Einstellungen andere Tasten.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>bereinigen säubern reinigen</translation>
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
        <translation>Formatierung automatisch entfernen</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Gleich nach dem Kopieren bereinigen</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Kein Original aufbewahren</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Außer bei Kopien aus Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Original zurückholen</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>„%1“ zurückholen</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Einzelne Vorgänge</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Tipps</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Neuigkeiten</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Nerlo Pro bewerten</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Hilfe im Netz</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-Mail an den Entwickler</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Nerlo Pro beenden</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Nerlo Pro ausblenden</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Nie in diesem Programm</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Nie in „%1“</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Nicht verwendbar</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Tastenkürzel aufnehmen</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Tastenkürzel drücken</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Altes behalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Tastenkürzel löschen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
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
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Pfeil auf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Pfeil ab</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used!</source>
        <translation>Die Tastenkombination „%@“ kann nicht verwendet werden!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>Die Tastenkombination „%@“ kann nicht verwendet werden, weil das System sie schon für ein Tastenkürzel benutzt. Wenn Sie genau diese Kombination möchten: Die meisten Tastenkürzel lassen sich in den Systemeinstellungen unter „Tastatur“ ändern.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>Die Tastenkombination „%@“ kann nicht verwendet werden, weil der Menüeintrag „%@“ sie schon benutzt.</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME hat noch eine ältere Version der Erweiterung „Nerlo Pro“ geladen. Melden Sie sich ab und wieder an.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>GNOMEs Erweiterung „Nerlo Pro“ antwortet nicht.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Ein Tastenkürzel braucht Strg oder Super oder eine Funktionstaste.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Ein anderes Programm hat diese Tastenkombination belegt.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Ein anderes Tastenkürzel dieses Programms hat dieselben Tasten.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Es wurde im Dialog der Arbeitsumgebung abgelehnt.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Diese Arbeitsumgebung hat kein Portal „GlobalShortcuts“. Legen Sie „nerlo-pro --operation N“ oder „nerlo-pro --clean“ in deren eigenen Tastatureinstellungen auf eine Taste.</translation>
    </message>
</context>
</TS>
