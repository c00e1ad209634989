<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Blanksteg och tabbar</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Tecken</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Bokstäver och citat</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Punkter, taggar, mönster</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Tio ersättningar</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Sök och ersätt</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Sök alternativ</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Skriv ett ord för att hitta alla alternativ som har med det att göra.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Inget alternativ har med ”%@” att göra.</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Sidor</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Den uppsättning alternativ som används. Den kan också bytas i menyn i systemfältet.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Lägg till profil</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Lägger till en profil: en tom, en kopia eller en färdig.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Ta bort profil</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Tar bort den valda profilen. ”Återställ” hämtar tillbaka den.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Hantera…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Visar listan över profiler, för att byta namn på, kopiera, ordna, importera och exportera dem.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Den valda profilen är den som används. F2 byter namn på den, Alt+Upp och Alt+Ned flyttar den, Delete tar bort den. Filer med profiler kan släppas här.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Duplicera</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Lägger till en kopia av den valda profilen sist i listan.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Ger den valda profilen ett annat namn. Tabellen över kopior följer med.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Flyttar den valda profilen uppåt, här och i menyerna.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Flyttar den valda profilen nedåt, här och i menyerna.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Ställ om till</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Ger den valda profilen andra värden: de vid en första start eller de i en färdig profil. Det den var kan återställas.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Värden vid en första start</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Exportera…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Skriver den valda profilen till en fil, för en annan dator eller person.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importera…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Lägger till profilerna i en fil. Ingen ersätts.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Hämtar tillbaka en av de senast borttagna profilerna.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Tillagt: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Profilen kunde inte läsas.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Profilen kunde inte skrivas.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Genväg som väljer den</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>I alla program gör den här genvägen att den valda profilen används. Menyn visar den.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Välj profilen ”%@”</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Ange namnet på den nya profilen och klicka på OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel undantaget</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Med alternativet ”Rensa formatering automatiskt”</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Genväg: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>En genväg som fungerar i alla program.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Genvägar</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Återställ alla genvägar</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Varje kommando får den genväg som det hade vid första starten; de flesta har ingen.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Återställ genvägen: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Som vid första starten.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Alla genvägar är återställda.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Systemet nekade genvägen. Ett annat program kanske använder den.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Den här skrivbordsmiljön erbjuder inte program några genvägar. Bind kommandot ”%@” i dess egna inställningar.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Den här skrivbordsmiljön visar inget systemfält, så det här fönstret öppnas vid varje start.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>”%@” kan inte läsas.</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Innehållet börjar om från början. Den skadade filen finns kvar bredvid, med ”.unreadable-” och tiden i namnet.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Inställningarna är inte sparade:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Profilerna är inte sparade:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Start vid inloggning kunde inte ändras:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Filen med regler för länkar används inte:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Starta vid inloggning</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Starta Nerlo Pro vid inloggning</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Före: du startar Nerlo Pro för hand.
Efter: det finns där när du har loggat in.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Visa i systemfältet</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Före: Nerlo Pro har en post i aktivitetsfältet.
Efter: det har en ikon med meny i systemfältet.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Kör i bakgrunden</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Före: ikon i systemfältet eller post i aktivitetsfältet.
Efter: ingetdera. Startas Nerlo Pro igen öppnas det här fönstret.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Håll överst</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Före: andra fönster kan täcka det här.
Efter: det här fönstret ligger ovanför dem.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Före: du väljer när urklipp ska rensas.
Efter: varje kopia rensas av sig själv.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Inte tillgängligt: programmet byggdes utan en adress för detta.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Före: en kopia rensas inom en halv sekund.
Efter: en kopia rensas genast.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Före: originalet behålls i tio minuter och kan återställas.
Efter: det andra programmet tillfrågas bara om texten, och inget kan återställas.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Före: celler som du kopierar blir oformaterad text.
Efter: celler från ett kalkylblad förblir som de är.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Rensa formatering från urklipp</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Före: ”Hej·····världen”, fet
Efter: ”Hej·världen”, enkel</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Rensning</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Fönster och start</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Sortera rader</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Före: äpple↵päron
Efter: päron↵äpple</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Ordning</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Före (A-Z): päron↵äpple
Efter (Z-A): äpple↵päron</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Poster slutar med</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Före (Radbrytning): b,a
Efter (”,”): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Egen avgränsare</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Före: b/a
Efter, med /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Ta bort dubblettrader</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Före: te↵te↵mjölk
Efter: te↵mjölk</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Poster slutar med</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Före (Radbrytning): a,a
Efter (”,”): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Egen avgränsare</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Före: a/a
Efter, med /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Visa statistik efter en rensning</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Räkna urklipp</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Före: inget talar om vad som kopierades.
Efter: ett litet fönster räknar tecken, blanksteg, ord och stycken.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Stäng av sig själv</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Före: fönstret ligger kvar tills du klickar på det.
Efter: det stängs efter några sekunder.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Sekunder</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Hur länge fönstret visas.
Före, med 3: tre sekunder
Efter, med 10: tio sekunder</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Placering</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Före (Vid muspekaren): vid muspekaren
Efter (Uppe till höger): i det hörnet av skärmen</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Berätta vad som ändrade mest</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Före: fönstret räknar bara.
Efter: Ändrat: Blanksteg 12, Citattecken 4, Rader 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Flera blanksteg till ett</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Före: a····b
Efter: a·b
Även kolumner och indrag försvinner.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Flera tabbar till en</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Före: a⇥⇥⇥b
Efter: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Omvandla tabbar och fyra blanksteg</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Före: ⇥a
Efter: ····a, eller tvärtom</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Riktning</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Före (Tabb till 4 blanksteg): ⇥a
Efter: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Omvandla tre punkter och uteslutningstecken</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Före: Vänta...
Efter: Vänta…, eller tvärtom</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Riktning</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Före (3 punkter till uteslutningstecken): Vänta...
Efter: Vänta…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Ta bort blanksteg före en punkt</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Före: Slut·.
Efter: Slut.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Ta bort blanksteg runt tabbar</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Före: a·⇥·b
Efter: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Ta bort blanksteg runt radbrytningar</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Före: ett·↵·två
Efter: ett↵två
Även indrag försvinner, också i kod och listor.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Ta bort alla blanksteg</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Före: a·b·c
Efter: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Ta bort alla tabbar</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Före: a⇥b⇥c
Efter: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Före: a·⇥·b↵c
Efter: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Ta bort bindestreck vid radslut</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Före: av-↵stavning
Efter: avstavning</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Ta bort alla bindestreck, tankstreck och minustecken</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Före: e-post
Efter: epost</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Lägg till ett prefix</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Före: text
Efter, med ”&gt; ”: &gt; text</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Prefix</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Före: text
Efter, med ”&gt; ”: &gt; text</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Lägg till ett suffix</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Före: text
Efter, med ”!”: text!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Suffix</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Före: text
Efter, med ”!”: text!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Foga ihop felbrutna rader</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Före: Den här raden blev↵bruten på mitten.
Efter: Den här raden blev·bruten på mitten.
Även listor, tabeller och adresser slås ihop.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Laga fel teckenkodning</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Före: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Efter: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Foga ihop ord som delats vid radslut</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Före: ett kontrol-↵lerat ord, tv-↵apparat
Efter: ett kontrollerat ord, tv-apparat</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Ta bort sidnummer och sidhuvuden</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Före: det som står överst eller nederst på varje sida,
där sidbrytningar skiljer sidorna, finns i texten.
Efter: det är borta.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Ta bort fotnotssiffror</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Före: en teori4 och dess bevis.5
Efter: en teori och dess bevis.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Återställ text från en terminal</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Före: │ En mening↵│ på två rader. │
Efter: En mening·på två rader.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Låt kod, tabeller och listor vara som de är</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Före: en lista blir en enda rad och kod förstörs.
Efter: bara löpande text städas. Punkter, indrag, kod, tabeller och adresser står kvar.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Raderna fogas ihop med</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Före (inget): a↵b blir ab
Efter (blanksteg): a↵b blir a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Ändra radbrytningar</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Före: ett↵↵↵två
Efter (en radbrytning): ett↵två</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Radbrytningar blir</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Före (en radbrytning): ett↵två
Efter (blanksteg): ett·två</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Första egna texten</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Före: ett↵två
Efter, med ”- ”: ett↵- två</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Andra egna texten</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Före: ett
Efter, med [b] och [/b]: [b]ett[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Trimma textens båda ändar</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Före: ··text··
Efter: text</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Rensa tecken</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Före: ﬁ‹U+200B›x‹U+00A0›y
Efter: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Behåll styrtecken</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Före: a␛[1mb␛[0m → ab
Efter: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Behåll taggtecken</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Före: a‹U+E0041›b → ab
Efter: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Behåll tecken för privat bruk</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Före: a‹U+E000›b → ab
Efter: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Behåll mjuka bindestreck</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Före: a‹U+00AD›b → ab
Efter: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Behåll variantväljare</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Före: a‹U+FE0F›b → ab
Efter: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Behåll riktningsmarkeringar</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Före: a‹U+200E›b → ab
Efter: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Behåll tecken utan bredd</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Före: a‹U+200B›b → ab
Efter: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Behåll ligaturer</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Före: ﬁ → fi
Efter: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Behåll särskilda blanksteg</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Före: a‹U+00A0›b → a·b
Efter: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Bokstäver i full bredd till smala</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Före: Ａ１
Efter: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Bokstav och accent som ett tecken (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Före: e + ◌́
Efter: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Enkla citattecken, streck och punkter</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Före: “a”—b…
Efter: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Ta bort Markdown-tecken</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Före: ## a↵- **b** `c`
Efter: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Ändra skiftläge</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Före: HEJ. DU.
Efter (Som i meningar): Hej. Du.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Skiftläge</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Före (VERSALER): HEJ
Efter (gemener): hej</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Ändra citattecken</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Före: ‘text’
Efter (enkla till dubbla): “text”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Riktning</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Före (enkla till dubbla): ‘text’
Efter: “text”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Enkla tecken</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Före: &apos;text&apos;
Efter, med ‚…‘: ‚text‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Dubbla tecken</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Före: &quot;text&quot;
Efter, med „…“: „text“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Tecken av alla slag</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Före: «text» förblir som det är.
Efter: «text» ändras också.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Ta bort enkla citattecken</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Före: ‘text’
Efter: text</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Enkla av alla slag</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Före: ‹text› förblir som det är.
Efter: text</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Ta bort dubbla citattecken</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Före: “text”
Efter: text</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Dubbla av alla slag</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Före: «text» förblir som det är.
Efter: text</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Ta bort punkttecken</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Före: •·mjölk↵•·bröd
Efter: mjölk↵bröd
Punkter inuti rader försvinner också.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Ta bort svarstecken</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Före: &gt;·&gt;·Hej
Efter: Hej
Varje &gt; försvinner, även inuti rader, och därmed slutet på varje HTML-tagg.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Ta bort HTML-taggar</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Före: &lt;b&gt;fet&lt;/b&gt;
Efter: fet
”Ta bort svarstecken” körs före och tar taggarnas &gt;: då kan hela texten försvinna.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Även skript</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Före: texten i ett &lt;script&gt; blir kvar.
Efter: den försvinner med sin tagg.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Rensa länkar</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Före: https://example.org/a?id=7&amp;utm_source=mail
Efter: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Fler regler</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>En fil med fler regler, i formatet från ClearURLs.
Utan den gäller Nerlo Pros egen lista.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Välj en fil…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Använd ett eget mönster</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Före, med [0-9]: a1b2
Efter (ta bort): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Mönster</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Ett reguljärt uttryck.
Före, med [0-9]: a1b2
Efter (ta bort): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Det här är inget giltigt reguljärt uttryck, så det hittar ingenting.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Utelämnad vid den senaste rensningen: den kräver för mycket arbete för texten.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Utelämnade regler, som kräver för mycket arbete för den här texten: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Träffar</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Före (ta bort [0-9]): a1b2 blir ab
Efter (sök [0-9]): a1b2 blir 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Blanksteg, tabbar och radbrytningar till ett blanksteg</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Ersättning 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Ersättning 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Ersättning 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Ersättning 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Ersättning 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Ersättning 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Ersättning 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Ersättning 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Ersättning 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Ersättning 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Före: mejl
Efter, med ”mejl” och ”e-post”: e-post</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Texten som ska sökas.
Före: mejl
Efter, med ”mejl” och ”e-post”: e-post</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Ersätt med</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Det som kommer i dess ställe; tomt tar bort texten.
Före: mejl
Efter, med ”mejl” och ”e-post”: e-post</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Indrag</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Tagg</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egen</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Använd listan för sök och ersätt</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Före: Hr Svensson
Efter, med Hr → Herr: Herr Svensson</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>En lista för alla profiler</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Före: varje profil har en egen lista.
Efter: alla profiler delar en lista.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Regler, från första till sista</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Reglerna används uppifrån och ned. Dra en regel, eller tryck Alt+Upp och Alt+Ned, för att flytta den.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Ersätt med</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Börja med {search} för att bara behålla det som mönstret hittar, eller {delete} för att ta bort det.
Före, med [0-9] och {search}#: a1b2
Efter: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Lägg till en regel</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Lägger till en regel sist i listan.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Ta bort regeln</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Tar bort den valda regeln.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Flytta upp</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Flyttar den valda regeln uppåt, så att den används tidigare.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Flytta ned</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Flyttar den valda regeln nedåt, så att den används senare.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Ny regel</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Välj regeln som ska tas bort</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Välj en regel</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Ersättningstext</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>På</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Om regeln tillämpas.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Vad regeln letar efter: en text, eller ett mönster om dess typ säger det.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>En text hittas som den står; ett mönster är ett reguljärt uttryck.
Oprövat: där bara träffar behålls blir en text utan träffar tom.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Träffar</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Hur ofta regeln hittar något i förhandsvisningens text.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Mönster: ersätt</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Mönster: behåll träffar</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Mönster: ersätt, oprövat</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Mönster: behåll träffar, oprövat</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Mönstret saknar mening vid tecken %@ och hittar därför inget.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Hittar inget i förhandsvisningens text.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Träffar i förhandsvisningens text: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Exempel %@ stämmer inte. Regeln gör detta av det: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Exempel för den valda regeln</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Vad regeln ska göra av en text. Alla prövas vid varje ändring.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Stämmer</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Stämmer inte</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Lägg till ett exempel</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Tar det första stället i förhandsvisningen som regeln hittar, för att ses över.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Mer</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Kopierar och klistrar in regler, importerar och exporterar listor och erbjuder färdiga.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Datum till ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Decimalkomman till punkter</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Ta bort fotnotssiffror</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Ta bort skalprompter</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Typografiska tecken till enkla</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Kopiera regeln</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Klistra in regler</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Importera en lista…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Exportera listan…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Vad listan ”%@” gör med dina regler:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Verkan</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Tillagd</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Blir kvar</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importera</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Det här är ingen lista med regler som går att läsa.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Listan kunde inte skrivas.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>Det finns inga regler på urklippet.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Borttaget.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Tar tillbaka detta.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Omvänd</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Slumpmässig</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Radbrytning</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Nere till vänster</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Nere till höger</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Uppe till vänster</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Uppe till höger</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitten</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Vid muspekaren</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tabb till 4 blanksteg, 4 blanksteg till tabb</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 punkter till uteslutningstecken, Uteslutningstecken till 3 punkter</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>inget, blanksteg</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>inget, en radbrytning, två radbrytningar, blanksteg, radbrytning och blanksteg, radbrytning och tabb, radbrytning och egen text, HTML-stycken, HTML-bildtaggar, egen text runt raderna</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Som i meningar, Stor Bokstav I Varje Ord, gemener, VERSALER</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>enkla till dubbla, dubbla till enkla</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>ta bort, sök</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Förhandsvisning</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Visar vad alternativen gör. Inget hamnar i urklipp förrän du ber om det.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Före</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Skriv eller klistra in en text här för att prova alternativen på den.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Efter</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Texten som alternativen rensar den. Det som ändrats är markerat.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Skriv en text, eller ta den i urklipp</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Ta från urklipp</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Kopierar texten i urklipp till förhandsvisningen.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Rensa urklipp</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Rensar texten i urklipp med de här alternativen, nu.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Texten före det valda steget, eller det som ändrades i en lång text. Den kan inte redigeras här.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Skriv en annan text</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Tar bort den långa texten från förhandsvisningen så att du kan skriva en annan.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Steg</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Stegen som ändrade något, med antalet ändringar. Välj ett för att se vad det gjorde ensamt; välj det igen för att se allt.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Alla steg</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, ändringar: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>En lång text: bara de ändrade delarna visas.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>”%@” tog HTML-taggarnas &gt; innan ”%@” kom till dem. Stäng av ett av de två.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ rader utan ändringar: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ tecken: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ fler ändringar: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Texten är för lång för förhandsvisningen; bara början visas.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>Det finns ingen text i urklipp.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Bästa  läsare .

&gt;  Den här raden blev
&gt;  bruten på mitten.

•  Hämta den ’färska’ mjölken.
•  Hämta det ’mörka’ brödet...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Tecken</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Ord</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Stycken</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Klicka för att stänga</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Föregående</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Börja</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Tips %1 av %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Visa tipsen vid varje start</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Före: tipsen öppnas bara från menyn.
Efter: de öppnas varje gång Nerlo Pro startar.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Nyheter i Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Kopiera, rensa, klistra in

Kopiera en text, välj ”%@” i ikonens meny eller tryck på dess kortkommando och klistra in. Inställningarna säger vad som rensas; förhandsvisningen visar det på en text.

### Av sig självt

”%@” rensar varje kopia. Länkar, filer, bilder och lösenord lämnas i fred.

### Tillbaka till originalet

”%@” hämtar tillbaka det som kopierades, med formatering, i tio minuter.

### En enda åtgärd

Menyn har varje åtgärd för sig. Med `nerlo-pro --choose` skriver du vad du söker, ser resultatet och trycker på Retur.

### Profiler

En profil är en uppsättning alternativ. Byt den i menyn eller överst i inställningarna.

### Tangenter i inställningarna

Ctrl+F söker alternativ, Ctrl+Z ångrar, F1 öppnar den här hjälpen.

### När något inte fungerar

`nerlo-pro --doctor` i en terminal säger vad skrivbordet saknar, `nerlo-pro --why` vad som hände med den senaste kopian. Resten finns i `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Visa tipsen</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Färdiga profiler**: för PDF, e-post, webbsidor, terminal, en assistents svar och kod.
- **Rätt profil av sig självt**: en tabell på sidan Allmänt säger vilken profil som rensar vilken kopia.
- **Kod, tabeller och listor**: kan lämnas som de är.
- **Nya åtgärder**: terminalutskrift, fel kodning, osynliga tecken, avhuggna ord och länkar.
- **Väljaren**: `nerlo-pro --choose` hittar en åtgärd medan du skriver och visar texten före och efter.
- **Sök och ersätt**: regler har prov och räknare och kan kopieras, importeras och exporteras.
- **Förhandsvisningen**: nämner steget som ändrade något och leder till dess alternativ.
- **Ångra**: Ctrl+Z tar tillbaka ändringar av alternativ, regler och profiler.
- **Återställ**: nämner vad som kommer tillbaka.
- **Kortkommandon**: heter som tangenterna och fungerar i KDE med Wayland.
- **I terminalen**: `nerlo check`, `--explain`, rör utan slut, JSON Lines och ett bibliotek för C och Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Kopiera, och det är rent</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro bor i systemfältet. Det gör det du kopierar till ren, oformaterad text: inga överflödiga blanksteg, inga brutna rader, ingen formatering.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>För hand eller av sig självt</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Välj ”Rensa formatering från urklipp” i menyn, tryck på genvägen, eller låt ”Rensa formatering automatiskt” rensa varje kopia.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Se innan du rensar</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Inställningarna visar en text före och efter. Kryssa för ett alternativ och se vad det gör; urklipp förblir som det är.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>En profil för varje uppgift</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Ha en uppsättning alternativ för e-post och en annan för kod. Växla mellan dem i menyn i systemfältet.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Dina egna regler</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>Listan för sök och ersätt använder dina regler i ordning. Dra en regel för att flytta den; mönster fungerar också.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Inget går förlorat</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>”Återställ originalet” i menyn lägger tillbaka det som fanns i urklipp tidigare, med sin formatering.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – rensar varje kopia</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – något fungerar inte här</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Rensar texten i urklipp.
Version %1
MIT-licens</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Det finns inget original att återställa.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Urklipp har ändrats, så originalet återställdes inte.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>Originalet är tillbaka, men några av dess format kunde inte läsas i tid.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>Originalet var större än %1 MB, så det sparades inte.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>Rensningen gjordes för mer än %1 minuter sedan, så originalet finns inte kvar.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Texten i urklipp är större än %1 MB, så den rensades inte.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Varsam</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Webbsida</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Svar från en assistent</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Koden lämnas</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (färdig)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Börjar med</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Ingenting: alla alternativ är av</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>En kopia av ”%@”</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Rensad som: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Ändrat: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabbar</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Rader</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Skiftläge</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Citattecken</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Svarstecken</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Taggar</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Mönster</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Ersättningar</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Punkttecken</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Punkter</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Ordning</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Dubbletter</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Bindestreck</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Tillägg</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Kodning</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Tecken</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Ord</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Länkar</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Vilka regler ska rensningen använda?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Alla: radbrytningar, citattecken och punkter ordnas</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Varsam: bara mellanslag och brutna rader; kod, tabeller och listor lämnas</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Vilken profil som rensar vilken kopia</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Den första ikryssade raden som passar en kopia avgör; passar ingen rensar den valda profilen.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Lägg till en rad</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Lägger till en rad sist i tabellen.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Ta bort raden</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Tar bort den valda raden.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Flyttar upp den valda raden så att den prövas tidigare.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Flyttar ner den valda raden så att den prövas senare.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Ser ut som</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Vad den kopierade texten ser ut som.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Programmet längst fram vid kopieringen, så som ”nerlo-pro --why” kallar det; * står för valfri rest. Alla skrivbord berättar det inte.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Sida</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Webbplatsen som en webbläsare kopierade från, till exempel example.org; * är vilken sida som helst.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Ett format som kopian erbjuder, till exempel text/rtf; * står för valfri rest.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Det som rensar en sådan kopia, eller att den lämnas i fred.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Vilken kopia som helst</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Text från en terminal</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Kod</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>En tabell</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>En länk</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>lämna i fred</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Välj vad som görs med urklipp</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Öppnar ett litet fönster vid pekaren: skriv för att hitta en åtgärd, en profil eller regler, se vad som händer och tryck på Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Hitta en åtgärd, en profil eller regler</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Ord ur namnet; piltangenterna väljer bland det som hittats</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Vad som kan göras</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter lägger resultatet i urklipp</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Färdig profil</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Regler</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Regler för alla profiler</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Regler för ”%@”</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Texten i urklipp</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Vad den skulle bli</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: till urklipp · Esc: lämna allt som det var</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: till urklipp · Skift+Enter: klistra också in · Esc: lämna allt som det var</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Välj andra tangenter på sidan ”%@” i inställningarna.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>rensa</translation>
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
        <translation>Rensa formatering automatiskt</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Rensa direkt efter kopieringen</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Behåll inget original</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Utom kopior från Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Återställ originalet</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Återställ ”%1”</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Enskilda åtgärder</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiler</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Inställningar…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Nyheter</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Betygsätt Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-post till utvecklaren</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Avsluta Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Dölj Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Klipp ut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera allt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Aldrig i det här programmet</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Aldrig i ”%1”</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Kan inte användas</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Spela in en genväg</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>inte angivet</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Tryck genvägen</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Använd den gamla</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Ta bort genvägen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Blanksteg</translation>
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
        <translation>Skift</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabb</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retur</translation>
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
        <translation>Backsteg</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used!</source>
        <translation>Tangentkombinationen ”%@” kan inte användas!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>Tangentkombinationen ”%@” kan inte användas eftersom den redan är en tangentbordsgenväg i hela systemet. Om du verkligen vill använda den kan de flesta genvägar ändras i panelen Tangentbord i systeminställningarna.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>Tangentkombinationen ”%@” kan inte användas eftersom den redan används av menyposten ”%@”.</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME kör en äldre version av tillägget ”Nerlo Pro”. Logga ut och in igen.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>GNOME-tillägget ”Nerlo Pro” svarar inte.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>En genväg behöver Ctrl eller Super, eller en funktionstangent.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Ett annat program har tagit den här tangentkombinationen.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>En annan genväg i det här programmet har samma tangenter.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Den avböjdes i skrivbordets dialogruta.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Det här skrivbordet har ingen GlobalShortcuts-portal. Koppla ”nerlo-pro --operation N” eller ”nerlo-pro --clean” till en tangent i dess egna tangentbordsinställningar.</translation>
    </message>
</context>
</TS>
