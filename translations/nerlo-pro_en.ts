<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>General</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Spaces and tabs</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Letters and quotes</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Bullets, tags, pattern</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Ten replacements</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Find and replace</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Search options</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Type a word to find every option that has to do with it.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>No option has to do with “%@”.</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Pages</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Options</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>The set of options that is used. The tray menu switches it too.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Add profile</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Adds a profile: an empty one, a copy, or one of the ready ones.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Remove profile</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Removes the selected profile. “Restore” brings it back.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Manage…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Shows the list of profiles: to rename, copy, sort, import and export them.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>The selected profile is the one that is used. F2 renames it, Alt+Up and Alt+Down move it, Delete removes it. Files of profiles can be dropped here.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Adds a copy of the selected profile at the end of the list.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Gives the selected profile another name. The table of copies follows it.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Moves the selected profile up, here and in the menus.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Moves the selected profile down, here and in the menus.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Reset to</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Gives the selected profile other values: those of a first start, or of a ready profile. What it was can be restored.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Values of a first start</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Writes the selected profile to a file, for another computer or person.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Import…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Adds the profiles of a file. None is replaced.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Brings back one of the profiles that were removed last.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Added: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>The profile could not be read.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>The profile could not be written.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Shortcut that selects it</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>In every program, this shortcut makes the selected profile the one that is used. The menu shows it.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Select the profile “%@”</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Insert new profile name and click OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel disabled</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>With option &quot;Automatically clear formatting&quot;</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Shortcut: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>A shortcut that works in every application.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Reset all shortcuts</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Gives each command the shortcut that it had at the first start; most have none.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <extracomment>Name of a button, for screen readers; %@ is the command.</extracomment>
        <translation>Reset shortcut: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>As at the first start.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>All shortcuts are reset.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>The system refused this shortcut. Another program may use it.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>This desktop offers programs no shortcuts. Bind the command “%@” in its own settings.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>This desktop shows no tray, so this window opens at each start.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <extracomment>%@ is a file.</extracomment>
        <translation>“%@” cannot be read.</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>What it held begins anew. The damaged file is kept beside its place, with “.unreadable-” and the time in its name.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>The settings are not saved:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>The profiles are not saved:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>The start at login could not be changed:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>The file of rules for links is not used:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Start at login</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Start Nerlo Pro at login</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Before: you start Nerlo Pro by hand.
After: it is there once you have logged in.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Show in the tray</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Before: Nerlo Pro has an entry in the taskbar.
After: it has an icon with a menu in the tray.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Run in the background</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Before: icon in the tray or entry in the taskbar.
After: neither. Starting Nerlo Pro again opens this window.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Stay on top</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Before: other windows can cover this one.
After: this window stays above them.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Before: you choose when the clipboard is cleaned.
After: every copy is cleaned by itself.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Not available: this build was made without an address for it.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Before: a copy is cleaned within half a second.
After: a copy is cleaned at once.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Before: the original is kept for ten minutes, to be restored.
After: the other program is asked for the text alone, and nothing can be restored.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Before: cells that you copy become plain text.
After: cells from a spreadsheet stay as they are.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <extracomment>The English spelling is kept on purpose.</extracomment>
        <translation>Clear formating from clipboard</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Before: “Hello·····world”, bold
After: “Hello·world”, plain</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Window and start</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Sort lines</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Before: pear↵apple
After: apple↵pear</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Before (A-Z): apple↵pear
After (Z-A): pear↵apple</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Items end with</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Before (Return): b,a stays b,a
After (“,”): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Custom separator</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Before: b/a with nothing here stays b/a
After, with /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Remove duplicate lines</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Before: tea↵tea↵milk
After: tea↵milk</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Items end with</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Before (Return): a,a stays a,a
After (“,”): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Custom separator</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Before: a/a with nothing here stays a/a
After, with /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Show the statistics after a clean</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <extracomment>The command; sStatistics is the option.</extracomment>
        <translation>Count the clipboard</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Before: nothing tells you what was copied.
After: a small window counts characters, spaces, words and paragraphs.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Close by itself</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Before: the window stays until you click it.
After: it closes after some seconds.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Seconds</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>How long the window stays.
Before, with 3: three seconds
After, with 10: ten seconds</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Before (Cursor position): at the pointer
After (Top right): in that corner of the screen</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Tell what changed most</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Before: the window only counts.
After: Changed: Spaces 12, Quotes 4, Lines 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Multiple spaces to one space</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Before: a····b
After: a·b
Columns and indents go too.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Multiple tabs to one tab</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Before: a⇥⇥⇥b
After: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Convert tabs and four spaces</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Before: ⇥a
After: ····a, or the other way round</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Before (tab to 4 spaces): ⇥a
After: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Convert three dots and ellipsis</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Before: Wait...
After: Wait…, or the other way round</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Before (3 dots to ellipsis): Wait...
After: Wait…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Remove the space before a dot</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Before: The end·.
After: The end.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Remove spaces around tabs</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Before: a·⇥·b
After: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Remove spaces around line breaks</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Before: one·↵·two
After: one↵two
Indents go too, also those of code and lists.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Remove all spaces</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Before: a·b·c
After: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Remove all tabs</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Before: a⇥b⇥c
After: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Before: a·⇥·b↵c
After: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Remove hyphens at line ends</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Before: hyphen-↵ated
After: hyphenated</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Remove all hyphens, dashes and minus signs</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Before: well-known
After: wellknown</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Add a prefix</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Before: text
After, with “&gt; ”: &gt; text</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Prefix</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Before: text
After, with “&gt; ”: &gt; text</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Add a suffix</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Before: text
After, with “!”: text!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Suffix</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Before: text
After, with “!”: text!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Rejoin wrongly broken lines</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Before: This line was↵broken in the middle.
After: This line was·broken in the middle.
Lists, tables and addresses are joined too.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Repair wrong encoding</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Before: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
After: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Rejoin words cut at line ends</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Before: a word veri-↵fied, a well-↵known one
After: a word verified, a well-known one</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Page numbers and running titles out</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Before: what stands above or below on every page,
where form feeds part the pages, is in the text.
After: it is gone.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Digits of footnotes out</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Before: a theory4 and its proof.5
After: a theory and its proof.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Unwrap text from a terminal</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Before: │ One sentence↵│ on two rows. │
After: One sentence·on two rows.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Leave code, tables and lists as they are</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Before: tidying makes one line of a list and spoils code.
After: only prose is tidied. Marks and indents, code, tables and addresses stay.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Broken lines are joined with</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Before (none): a↵b becomes ab
After (space): a↵b becomes a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Change line breaks</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Before: one↵↵↵two
After (single return): one↵two</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Line breaks become</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Before (single return): one↵two
After (space): one·two</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>First custom text</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Before: one↵two
After, with “- ”: one↵- two</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Second custom text</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Before: one
After, with [b] and [/b]: [b]one[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Trim both ends of the text</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Before: ··text··
After: text</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Clean characters</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Before: ﬁ‹U+200B›x‹U+00A0›y
After: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Keep control characters</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Before: a␛[1mb␛[0m → ab
After: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Keep tag characters</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Before: a‹U+E0041›b → ab
After: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Keep private-use characters</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Before: a‹U+E000›b → ab
After: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Keep soft hyphens</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Before: a‹U+00AD›b → ab
After: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Keep variation selectors</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Before: a‹U+FE0F›b → ab
After: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Keep direction marks</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Before: a‹U+200E›b → ab
After: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Keep zero-width characters</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Before: a‹U+200B›b → ab
After: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Keep ligatures</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Before: ﬁ → fi
After: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Keep special spaces</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Before: a‹U+00A0›b → a·b
After: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Full-width letters to narrow ones</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Before: Ａ１
After: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Letters and accents as one (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Before: e + ◌́
After: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Plain quotes, dashes and dots</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Before: “a”—b…
After: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Take Markdown marks out</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Before: ## a↵- **b** `c`
After: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Change the letter case</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Before: HELLO. YOU.
After (smart capitalized): Hello. You.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Letter case</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Before (uppercase): HELLO
After (lowercase): hello</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Change quotation marks</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Before: ‘text’
After (single to double): “text”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Before (single to double): ‘text’
After: “text”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Single marks</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Before: &apos;text&apos;
After, with ‚…‘: ‚text‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Double marks</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Before: &quot;text&quot;
After, with „…“: „text“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Marks of every style</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Before: «text» stays as it is.
After: «text» is changed too.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Remove single quotation marks</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Before: ‘text’
After: text</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Single marks of every style</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Before: ‹text› stays as it is.
After: text</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Remove double quotation marks</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Before: “text”
After: text</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Double marks of every style</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Before: «text» stays as it is.
After: text</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Remove bullets</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Before: •·milk↵•·bread
After: milk↵bread
Bullets inside lines go too.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Remove reply marks</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Before: &gt;·&gt;·Hello
After: Hello
Every &gt; goes, also inside lines, and with it the end of every HTML tag.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Remove HTML tags</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Before: &lt;b&gt;bold&lt;/b&gt;
After: bold
“Remove reply marks” runs before this and takes the &gt; of the tags: then whole texts may go.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Scripts too</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Before: the text of a &lt;script&gt; stays.
After: it goes with its tag.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Clean links</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Before: https://example.org/a?id=7&amp;utm_source=mail
After: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>More rules</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>A file with more rules, in the format of ClearURLs.
Without it, Nerlo Pro's own list applies.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Choose a file…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Use your own pattern</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Before: a1b2, with the pattern [0-9]
After (delete): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>A regular expression.
Before: a1b2, with [0-9]
After (delete): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>This is no valid regular expression, so it finds nothing.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Left out of the last clean: it takes too much work on that text.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Rules left out, as they take too much work on this text: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Before (delete): a1b2, with [0-9], becomes ab
After (search): it becomes 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>All spaces, tabs and line breaks to one space</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Replacement 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Replacement 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Replacement 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Replacement 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Replacement 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Replacement 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Replacement 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Replacement 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Replacement 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Replacement 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Before: colour
After, with “colour” and “color”: color</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>The text to find.
Before: colour
After, with “colour” and “color”: color</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Replace with</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>What stands in its place; nothing deletes it.
Before: colour
After, with “colour” and “color”: color</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Indent</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Apply the find-and-replace list</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Before: Mr Smith, with a rule from “Mr” to “Mister”
After: Mister Smith</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>One list for all profiles</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Before: each profile has a list of its own.
After: all profiles share one list.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Rules, from first to last</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>The rules are applied from top to bottom. Drag a rule, or press Alt+Up and Alt+Down, to move it.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Replace with</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Begin with {search} to keep only what the pattern finds, or {delete} to delete it.
Before: a1b2, with [0-9] and {search}#
After: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Add a rule</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Adds a rule at the end of the list.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Delete the rule</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Deletes the selected rule.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Moves the selected rule up, so that it is applied earlier.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Moves the selected rule down, so that it is applied later.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>New rule</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Select a rule to delete it</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Select a rule</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Replacement text</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>On</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Whether the rule is applied.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>What the rule looks for: a text, or a pattern if its kind says so.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>A text is found as it stands; a pattern is a regular expression.
Untested: where only matches are kept, a text without any becomes empty.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Found</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>How often the rule finds something in the text of the preview.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Pattern: replace</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Pattern: keep matches</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Pattern: replace, untested</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Pattern: keep matches, untested</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>The pattern makes no sense at character %@, so it finds nothing.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Finds nothing in the text of the preview.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Found in the text of the preview: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Sample %@ does not hold. The rule makes this of it: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Samples of the selected rule</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>What the rule is to make of a text. All are tried at each change.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Holds</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Does not hold</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Take a sample</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Takes the first place in the preview that the rule finds, to be looked over.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>More</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Copies and pastes rules, imports and exports lists, and offers ready ones.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Dates to ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Decimal commas to points</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Footnote numbers out</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Shell prompts out</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Typographic punctuation to plain</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Copy the rule</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Paste rules</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Import a list…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Export the list…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>What the list “%@” does to your rules:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Effect</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Added</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Stays</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>This is no list of rules that can be read.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>The list could not be written.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>There are no rules on the clipboard.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Deleted.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Takes this back.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Reverse</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Cursor position</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Change tab to 4 spaces, Change 4 spaces to tab</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Change 3 dots to ellipsis, Change ellipsis to 3 dots</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>none, space</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>none, single return, double returns, space, return and space, return and tab, return and custom text, HTML paragraphs, HTML image tags, custom text around lines</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>smart capitalized, capitalized, lowercase, uppercase</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>single to double, double to single</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>delete, search</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Shows what the options do. Nothing reaches the clipboard until you ask for it.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Type or paste any text here to try the options on it.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>After</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>The text as the options clean it. What was changed is marked.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Type a text, or take the one on the clipboard</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Take from the clipboard</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Copies the text on the clipboard into the preview.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Clean the clipboard</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Cleans the text on the clipboard with these options, now.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>The text before the chosen step, or what was changed in a long text. It cannot be edited here.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <extracomment>Button that takes a long text out of the preview.</extracomment>
        <translation>Type another text</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Takes the long text out of the preview, so that you can type one.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <extracomment>Above the list of the steps of a clean that changed something.</extracomment>
        <translation>Steps</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>The steps that changed something, with the number of changes. Choose one to see what it did alone; choose it again to see all.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>All steps</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <extracomment>A step of the list, as a screen reader says it, and the number of its changes.</extracomment>
        <translation>%@, changes: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>A long text: only the parts that were changed are shown.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <extracomment>The titles of two options.</extracomment>
        <translation>“%@” took the &gt; of the HTML tags before “%@” came to them. Turn one of the two off.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <extracomment>In the place of lines that the preview does not show.</extracomment>
        <translation>⋯ lines without changes: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <extracomment>In the place of a part of a long line.</extracomment>
        <translation> ⋯ characters: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <extracomment>Behind the last change that the preview shows.</extracomment>
        <translation>⋯ further changes: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>The text is too long for the preview; only its beginning is shown.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>There is no text on the clipboard.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Dear  reader .

&gt;  This line was
&gt;  broken in the middle.

•  Fetch the ‘fresh’ milk.
•  Fetch the ‘brown’ bread...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Spaces</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Paragraphs</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Click to close</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Tip %1 of %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Show the tips at each start</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Before: the tips open from the menu only.
After: they open each time Nerlo Pro starts.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>What&apos;s new in Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <extracomment>Markdown. %@ are three titles of the menu: clean, automatic cleaning, restore.</extracomment>
        <translation>### Copy, clean, paste

Copy a text, choose “%@” in the tray menu or press its shortcut, and paste. The preferences say what is cleaned; the preview shows it on a text.

### By itself

“%@” cleans every copy. Links, files, pictures and passwords are left alone.

### Back to the original

“%@” brings back what was copied, with its formatting, for ten minutes.

### One operation

The tray menu has each operation by itself. With `nerlo-pro --choose` you type what you look for, see the result and press Enter.

### Profiles

A profile is a set of options. Switch it in the tray menu or at the top of the preferences.

### Keys in the preferences

Ctrl+F searches the options, Ctrl+Z takes back, F1 opens this help.

### When something does not work

`nerlo-pro --doctor` in a terminal names what this desktop lacks, `nerlo-pro --why` what became of the last copy. `man nerlo-pro` has the rest.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Show the tips</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <extracomment>Markdown. The whole list is in CHANGELOG.md.</extracomment>
        <translation>- **Ready profiles**: for PDF, mail, web pages, the terminal, an assistant’s answers and code.
- **The right profile by itself**: a table on the page General says which profile cleans which copy.
- **Code, tables and lists**: can be left as they are.
- **New operations**: take apart terminal output, repair wrong encoding, clean invisible characters, rejoin cut words, and clean links.
- **The chooser**: `nerlo-pro --choose` finds an operation as you type and shows the text before and after.
- **Find and replace**: rules have samples and counts, and can be copied, imported and exported.
- **The preview**: names the step that made a change and leads to its option.
- **Undo**: Ctrl+Z takes back changes of options, rules and profiles.
- **Restore**: names what it brings back.
- **Shortcuts**: are called by the names on the keys, and work on KDE with Wayland.
- **In the terminal**: `nerlo check`, `--explain`, pipes without end, JSON Lines, and a library for C and Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Copy, and it is clean</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro lives in the tray. It turns what you copy into clean, plain text: no stray spaces, no broken lines, no formatting.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>By hand or by itself</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Choose “Clear formating from clipboard” in the menu, press its shortcut, or let “Automatically clear formatting” clean every copy.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>See before you clean</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>The preferences show a text before and after. Tick an option and watch what it does; the clipboard stays as it is.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>A profile for each job</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Keep one set of options for mail, another for code. Switch between them from the tray menu.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Your own rules</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>The find-and-replace list applies your rules in order. Drag a rule to move it; patterns work too.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Nothing is lost</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>“Restore the original” in the menu puts back what stood on the clipboard before, with its formatting.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – cleaning every copy</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – something does not work here</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Cleans the text on the clipboard.
Version %1
MIT licence</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>There is no original to put back.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>The clipboard has changed, so the original was not put back.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>The original is back, but some of its formats could not be read in time.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>The original was larger than %1 MB, so it was not kept.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>The text was cleaned more than %1 minutes ago, so the original is not kept any more.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>The text on the clipboard is larger than %1 MB, so it was not cleaned.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Gentle</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Web page</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Answer of an assistant</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Code-safe</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (ready)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Begins with</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Nothing: every option is off</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>A copy of “%@”</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Cleaned as: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <extracomment>In the window with the counts: names of rules, each with a number.</extracomment>
        <translation>Changed: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <extracomment>Between the items of a list in one line.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <extracomment>Short name of a rule, in the window with the counts: what was changed.</extracomment>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Spaces</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Letter case</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Quotes</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Reply marks</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Replacements</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Bullets</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Dots</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Duplicates</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Hyphens</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Additions</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Encoding</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Which rules shall a clean apply?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>All: every line break, quotation mark and bullet is tidied</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Gentle: spaces and broken lines only; code, tables and lists stay</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Which profile cleans which copy</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>The first ticked row that fits a copy decides; where none fits, the selected profile cleans it.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Add a row</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Adds a row at the end of the table.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Delete the row</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Deletes the selected row.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Moves the selected row up, so that it is asked earlier.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Moves the selected row down, so that it is asked later.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Looks like</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>What the copied text looks like.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>The program in front at the copy, as “nerlo-pro --why” calls it; * stands for any rest. Not every desktop tells it.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>The site that a browser copied from, such as example.org; * is any page.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>A format that the copy offers, such as text/rtf; * stands for any rest.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>What cleans such a copy, or that it is left alone.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Any copy</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Text from a terminal</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>A table</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>A link</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>leave alone</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Choose what to do with the clipboard</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Opens a small window at the pointer: type to find an operation, a profile or rules, see what it does, and press Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Find an operation, a profile or rules</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Words of its name; the arrow keys choose among what is found</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>What can be done</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter puts the result on the clipboard</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Ready profile</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Rules</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Rules of all profiles</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Rules of “%@”</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>The text on the clipboard</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>What it would become</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: to the clipboard · Esc: leave all as it was</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: to the clipboard · Shift+Enter: paste it too · Esc: leave all as it was</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <extracomment>%@ is the name of the page.</extracomment>
        <translation>Choose other keys on the page “%@” of the preferences.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <extracomment>Words for cleaning, with blanks between them, each one word: one of them begins what is typed into the desktop&apos;s search.</extracomment>
        <translation>clean clear</translation>
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
        <translation>Automatically clear formatting</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Clean right after the copy</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Keep no original</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Except copies from Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Restore the original</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <extracomment>%1 is the beginning of the text that comes back.</extracomment>
        <translation>Restore “%1”</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Single operations</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Tips</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>What&apos;s new</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Rate Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-mail to the developer</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Quit Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Hide Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <extracomment>Copies from the program that the last copy came from are left alone.</extracomment>
        <translation>Never in this program</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <extracomment>%1 is the name of a program.</extracomment>
        <translation>Never in “%1”</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Cannot be used</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Click to record shortcut</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>not set</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Type shortcut</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Use old shortcut</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Delete shortcut</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
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
        <translation>Up</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
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
        <translation>Escape</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used!</source>
        <translation>The key combination &quot;%@&quot; can&apos;t be used!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the system settings, under Keyboard.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;. Log out and in.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>A shortcut needs Ctrl or Super, or a function key.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Another program has taken this key combination.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Another shortcut of this program has the same keys.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>It was declined in the desktop&apos;s dialog.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>This desktop has no GlobalShortcuts portal. Bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in its own keyboard settings.</translation>
    </message>
</context>
</TS>
