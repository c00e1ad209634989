<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Spazi e tabulazioni</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Caratteri</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Lettere e virgolette</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Elenchi, tag, modello</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Dieci sostituzioni</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Trova e sostituisci</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Statistiche</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Cerca opzioni</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Scriva una parola per trovare tutte le opzioni che la riguardano.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Nessuna opzione riguarda «%@».</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>L’insieme di opzioni in uso. Si cambia anche dal menu del vassoio.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Aggiungi profilo</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Aggiunge un profilo: vuoto, una copia o uno di quelli pronti.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Rimuovi profilo</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Rimuove il profilo selezionato. «Ripristina» lo riporta.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Gestisci…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Mostra l’elenco dei profili, per rinominarli, copiarli, ordinarli, importarli ed esportarli.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Il profilo selezionato è quello in uso. F2 lo rinomina, Alt+Su e Alt+Giù lo spostano, Canc lo rimuove. Qui si possono trascinare file di profili.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Duplica</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Aggiunge una copia del profilo selezionato in fondo all’elenco.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Dà un altro nome al profilo selezionato. La tabella delle copie lo segue.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Sposta in alto il profilo selezionato, qui e nei menu.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Sposta in basso il profilo selezionato, qui e nei menu.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Reimposta a</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Dà altri valori al profilo selezionato: quelli di un primo avvio o di un profilo pronto. Quello che era si può ripristinare.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Valori di un primo avvio</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Scrive il profilo selezionato in un file, per un altro computer o un’altra persona.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Aggiunge i profili di un file. Nessuno viene sostituito.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Riporta uno degli ultimi profili rimossi.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Aggiunto: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Non è stato possibile leggere il profilo.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Non è stato possibile scrivere il profilo.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Scorciatoia che lo seleziona</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>In ogni programma, questa scorciatoia fa sì che si usi il profilo selezionato. Il menu la mostra.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Seleziona il profilo «%@»</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Inserisca il nome del nuovo profilo e faccia clic su OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel escluso</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Con l’opzione «Rimuovi automaticamente la formattazione»</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Scorciatoia: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Una scorciatoia che funziona in ogni applicazione.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Scorciatoie</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Ripristina tutte le scorciatoie</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Ogni comando riceve la scorciatoia del primo avvio; la maggior parte non ne ha.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Ripristina la scorciatoia: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Come al primo avvio.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Tutte le scorciatoie sono state ripristinate.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Il sistema ha rifiutato questa scorciatoia. Forse la usa un altro programma.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Questo desktop non offre scorciatoie alle applicazioni. Ne assegni una al comando «%@» nelle sue impostazioni.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Questo desktop non mostra un vassoio, perciò questa finestra si apre a ogni avvio.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Impossibile leggere «%@».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Il suo contenuto riparte da zero. Il file danneggiato è conservato accanto, con “.unreadable-” e l’ora nel nome.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Le impostazioni non sono salvate:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>I profili non sono salvati:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>L’avvio all’accesso non è stato cambiato:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Il file di regole per i link non viene usato:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Avvia all’accesso</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Avvia Nerlo Pro all’accesso</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Prima: Nerlo Pro si avvia a mano.
Dopo: c’è già dopo l’accesso.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Mostra nel vassoio</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Prima: Nerlo Pro ha una voce nella barra delle applicazioni.
Dopo: ha un’icona con un menu nel vassoio.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Esegui in background</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Prima: icona nel vassoio o voce nella barra delle applicazioni.
Dopo: né l’una né l’altra. Riavviando Nerlo Pro si apre questa finestra.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Tieni in primo piano</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Prima: altre finestre possono coprire questa.
Dopo: questa finestra resta sopra le altre.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Prima: si sceglie quando ripulire gli appunti.
Dopo: ogni copia viene ripulita da sola.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Non disponibile: questa versione è stata creata senza un indirizzo per questa voce.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Prima: una copia viene ripulita entro mezzo secondo.
Dopo: una copia viene ripulita subito.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Prima: l’originale viene conservato dieci minuti per poterlo ripristinare.
Dopo: all’altro programma si chiede solo il testo e nulla può essere ripristinato.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Prima: le celle copiate diventano testo semplice.
Dopo: le celle di un foglio di calcolo restano come sono.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Rimuovi la formattazione dagli appunti</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Prima: «Ciao·····mondo», grassetto
Dopo: «Ciao·mondo», semplice</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Pulizia</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Finestra e avvio</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Ordina le righe</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Prima: pera↵mela
Dopo: mela↵pera</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Prima (A-Z): mela↵pera
Dopo (Z-A): pera↵mela</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Gli elementi finiscono con</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Prima (A capo): b,a
Dopo («,»): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Separatore personalizzato</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Prima: b/a
Dopo, con /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Rimuovi le righe duplicate</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Prima: tè↵tè↵latte
Dopo: tè↵latte</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Gli elementi finiscono con</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Prima (A capo): a,a
Dopo («,»): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Separatore personalizzato</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Prima: a/a
Dopo, con /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Mostra le statistiche dopo la pulizia</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Conta gli appunti</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Prima: niente dice che cosa è stato copiato.
Dopo: una finestrella conta caratteri, spazi, parole e paragrafi.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Chiudi da sola</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Prima: la finestra resta finché non si fa clic.
Dopo: si chiude dopo qualche secondo.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Secondi</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Per quanto tempo resta la finestra.
Prima, con 3: tre secondi
Dopo, con 10: dieci secondi</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Prima (Posizione del puntatore): presso il puntatore
Dopo (In alto a destra): in quell’angolo dello schermo</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Dire che cosa ha cambiato di più</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Prima: la finestra conta soltanto.
Dopo: Cambiati: Spazi 12, Virgolette 4, Righe 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Più spazi in uno</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Prima: a····b
Dopo: a·b
Anche colonne e rientri se ne vanno.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Più tabulazioni in una</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Prima: a⇥⇥⇥b
Dopo: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Converti tabulazioni e quattro spazi</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Prima: ⇥a
Dopo: ····a, o viceversa</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Prima (Tabulazione in 4 spazi): ⇥a
Dopo: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Converti tre punti e puntini di sospensione</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Prima: Aspetta...
Dopo: Aspetta…, o viceversa</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Prima (3 punti in puntini di sospensione): Aspetta...
Dopo: Aspetta…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Rimuovi lo spazio prima di un punto</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Prima: Fine·.
Dopo: Fine.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Rimuovi gli spazi attorno alle tabulazioni</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Prima: a·⇥·b
Dopo: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Rimuovi gli spazi attorno agli a capo</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Prima: uno·↵·due
Dopo: uno↵due
Anche i rientri se ne vanno, pure quelli di codice ed elenchi.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Rimuovi tutti gli spazi</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Prima: a·b·c
Dopo: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Rimuovi tutte le tabulazioni</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Prima: a⇥b⇥c
Dopo: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Prima: a·⇥·b↵c
Dopo: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Rimuovi i trattini a fine riga</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Prima: silla-↵bato
Dopo: sillabato</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Rimuovi tutti i trattini, le lineette e i segni meno</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Prima: italo-svizzero
Dopo: italosvizzero</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Aggiungi un prefisso</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Prima: testo
Dopo, con «&gt; »: &gt; testo</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Prefisso</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Prima: testo
Dopo, con «&gt; »: &gt; testo</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Aggiungi un suffisso</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Prima: testo
Dopo, con «!»: testo!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Suffisso</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Prima: testo
Dopo, con «!»: testo!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Ricongiungi le righe spezzate male</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Prima: Questa riga è stata↵spezzata a metà.
Dopo: Questa riga è stata·spezzata a metà.
Anche elenchi, tabelle e indirizzi vengono uniti.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Ripara la codifica errata</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Prima: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Dopo: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Ricomponi le parole spezzate a fine riga</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Prima: una parola veri-↵ficata, tecnico-↵scientifica
Dopo: una parola verificata, tecnico-scientifica</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Senza numeri di pagina e titoli ripetuti</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Prima: ciò che sta in alto o in basso in ogni pagina,
dove i salti le separano, è nel testo.
Dopo: non c’è più.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Senza cifre delle note</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Prima: una teoria4 e la sua prova.5
Dopo: una teoria e la sua prova.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Ricomporre il testo di un terminale</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Prima: │ Una frase↵│ su due righe. │
Dopo: Una frase·su due righe.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Lasciare codice, tabelle ed elenchi come sono</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Prima: un elenco diventa una sola riga e il codice si rovina.
Dopo: si pulisce solo il testo normale. Segni e rientri, codice, tabelle e indirizzi restano.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Le righe si uniscono con</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Prima (niente): a↵b diventa ab
Dopo (spazio): a↵b diventa a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Cambia gli a capo</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Prima: uno↵↵↵due
Dopo (un a capo): uno↵due</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Gli a capo diventano</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Prima (un a capo): uno↵due
Dopo (spazio): uno·due</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Primo testo personalizzato</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Prima: uno↵due
Dopo, con «- »: uno↵- due</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Secondo testo personalizzato</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Prima: uno
Dopo, con [b] e [/b]: [b]uno[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Rifila le estremità del testo</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Prima: ··testo··
Dopo: testo</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Pulisci i caratteri</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Prima: ﬁ‹U+200B›x‹U+00A0›y
Dopo: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Mantieni i caratteri di controllo</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Prima: a␛[1mb␛[0m → ab
Dopo: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Mantieni i caratteri tag</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Prima: a‹U+E0041›b → ab
Dopo: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Mantieni i caratteri di uso privato</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Prima: a‹U+E000›b → ab
Dopo: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Mantieni i trattini facoltativi</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Prima: a‹U+00AD›b → ab
Dopo: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Mantieni i selettori di variazione</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Prima: a‹U+FE0F›b → ab
Dopo: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Mantieni i segni di direzione</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Prima: a‹U+200E›b → ab
Dopo: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Mantieni i caratteri a larghezza zero</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Prima: a‹U+200B›b → ab
Dopo: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Mantieni le legature</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Prima: ﬁ → fi
Dopo: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Mantieni gli spazi speciali</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Prima: a‹U+00A0›b → a·b
Dopo: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Lettere a larghezza piena in lettere strette</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Prima: Ａ１
Dopo: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Lettera e accento in un carattere (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Prima: e + ◌́
Dopo: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Virgolette, trattini e puntini semplici</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Prima: “a”—b…
Dopo: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Togli i segni di Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Prima: ## a↵- **b** `c`
Dopo: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Cambia maiuscole e minuscole</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Prima: CIAO. TU.
Dopo (maiuscola a inizio frase): Ciao. Tu.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Maiuscole e minuscole</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Prima (maiuscole): CIAO
Dopo (minuscole): ciao</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Cambia le virgolette</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Prima: ‘testo’
Dopo (da singole a doppie): “testo”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Prima (da singole a doppie): ‘testo’
Dopo: “testo”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Virgolette singole</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Prima: &apos;testo&apos;
Dopo, con ‚…‘: ‚testo‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Virgolette doppie</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Prima: &quot;testo&quot;
Dopo, con „…“: „testo“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Virgolette di ogni stile</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Prima: «testo» resta com’è.
Dopo: anche «testo» viene cambiato.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Rimuovi le virgolette singole</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Prima: ‘testo’
Dopo: testo</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Singole di ogni stile</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Prima: ‹testo› resta com’è.
Dopo: testo</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Rimuovi le virgolette doppie</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Prima: “testo”
Dopo: testo</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Doppie di ogni stile</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Prima: «testo» resta com’è.
Dopo: testo</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Rimuovi i punti elenco</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Prima: •·latte↵•·pane
Dopo: latte↵pane
Anche i punti elenco dentro le righe se ne vanno.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Rimuovi i segni di risposta</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Prima: &gt;·&gt;·Ciao
Dopo: Ciao
Se ne va ogni &gt;, anche dentro le righe, e con esso la fine di ogni tag HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Rimuovi i tag HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Prima: &lt;b&gt;grassetto&lt;/b&gt;
Dopo: grassetto
«Rimuovi i segni di risposta» agisce prima e toglie il &gt; ai tag: così può sparire tutto il testo.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Anche gli script</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Prima: il testo di uno &lt;script&gt; resta.
Dopo: scompare con il suo tag.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Pulisci i link</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Prima: https://example.org/a?id=7&amp;utm_source=mail
Dopo: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Altre regole</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Un file con altre regole, nel formato di ClearURLs.
Senza di esso vale la lista di Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Scegli un file…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Usa un modello personale</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Prima, con [0-9]: a1b2
Dopo (elimina): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Un’espressione regolare.
Prima, con [0-9]: a1b2
Dopo (elimina): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Non è un’espressione regolare valida, quindi non trova nulla.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Tralasciata nell’ultima pulizia: richiede troppo lavoro per quel testo.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Regole tralasciate perché richiedono troppo lavoro per questo testo: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Corrispondenze</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Prima (elimina [0-9]): a1b2 diventa ab
Dopo (cerca [0-9]): a1b2 diventa 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Spazi, tabulazioni e a capo in uno spazio</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Sostituzione 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Sostituzione 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Sostituzione 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Sostituzione 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Sostituzione 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Sostituzione 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Sostituzione 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Sostituzione 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Sostituzione 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Sostituzione 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Prima: giovine
Dopo, con «giovine» e «giovane»: giovane</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Il testo da cercare.
Prima: giovine
Dopo, con «giovine» e «giovane»: giovane</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Sostituisci con</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Ciò che ne prende il posto; se è vuoto, il testo viene eliminato.
Prima: giovine
Dopo, con «giovine» e «giovane»: giovane</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Rientro</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Applica l’elenco trova e sostituisci</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Prima: Sig. Rossi
Dopo, con Sig. → Signor: Signor Rossi</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Un elenco per tutti i profili</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Prima: ogni profilo ha il proprio elenco.
Dopo: tutti i profili condividono un elenco.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Regole, dalla prima all’ultima</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Le regole si applicano dall’alto in basso. Trascini una regola, o prema Alt+Su e Alt+Giù, per spostarla.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Sostituisci con</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Inizi con {search} per tenere solo ciò che il modello trova, o con {delete} per eliminarlo.
Prima, con [0-9] e {search}#: a1b2
Dopo: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Aggiungi una regola</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Aggiunge una regola in fondo all’elenco.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Elimina la regola</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Elimina la regola selezionata.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Sposta su la regola selezionata, così si applica prima.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Sposta giù la regola selezionata, così si applica dopo.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Nuova regola</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Selezioni la regola da eliminare</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Selezioni una regola</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Testo sostitutivo</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Se la regola viene applicata.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Ciò che la regola cerca: un testo, o un modello se il tipo lo dice.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Un testo si cerca così com’è; un modello è un’espressione regolare.
Senza verifica: dove restano solo le corrispondenze, un testo che non ne ha diventa vuoto.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Trovati</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Quante volte la regola trova qualcosa nel testo dell’anteprima.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Modello: sostituisci</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Modello: tieni le corrispondenze</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Modello: sostituisci, senza verifica</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Modello: tieni le corrispondenze, senza verifica</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Il modello non ha senso al carattere %@ e perciò non trova nulla.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Non trova nulla nel testo dell’anteprima.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Trovati nel testo dell’anteprima: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>L’esempio %@ non vale. La regola ne fa questo: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Esempi della regola selezionata</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Ciò che la regola deve fare di un testo. Tutti vengono provati a ogni modifica.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Vale</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Non vale</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Aggiungi un esempio</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Prende il primo punto dell’anteprima che la regola trova, da controllare.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Copia e incolla regole, importa ed esporta elenchi e ne offre di pronti.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Date in ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Virgole decimali in punti</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Togli i numeri delle note</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Togli i prompt della shell</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Punteggiatura tipografica in semplice</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Copia la regola</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Incolla regole</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Importa un elenco…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Esporta l’elenco…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Che cosa fa l’elenco “%@” alle regole:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Effetto</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Aggiunta</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Modificata</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Resta</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Non è un elenco di regole leggibile.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Impossibile scrivere l’elenco.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>Negli appunti non ci sono regole.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Eliminato.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Annulla questa azione.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverso</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Casuale</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>A capo</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Posizione del puntatore</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tabulazione in 4 spazi, 4 spazi in tabulazione</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 punti in puntini di sospensione, puntini di sospensione in 3 punti</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>niente, spazio</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>niente, un a capo, due a capo, spazio, a capo e spazio, a capo e tabulazione, a capo e testo personalizzato, paragrafi HTML, tag HTML immagine, testo personalizzato attorno alle righe</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>maiuscola a inizio frase, maiuscola a ogni parola, minuscole, maiuscole</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>da singole a doppie, da doppie a singole</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>elimina, cerca</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Mostra che cosa fanno le opzioni. Nulla arriva negli appunti finché non lo si chiede.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Scriva o incolli qui un testo qualsiasi per provare le opzioni.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Dopo</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Il testo come lo ripuliscono le opzioni. Ciò che è cambiato è evidenziato.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Scriva un testo, o prenda quello negli appunti</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Prendi dagli appunti</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Copia nell’anteprima il testo negli appunti.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Ripulisci gli appunti</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Ripulisce subito il testo negli appunti con queste opzioni.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Il testo prima del passo scelto, o ciò che è cambiato in un testo lungo. Qui non si può modificare.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Scrivi un altro testo</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Toglie il testo lungo dall’anteprima, così che se ne possa scrivere un altro.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Passi</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>I passi che hanno cambiato qualcosa, con il numero di modifiche. Sceglietene uno per vedere che cosa ha fatto da solo; sceglietelo di nuovo per vedere tutto.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Tutti i passi</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, modifiche: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Un testo lungo: si vedono solo le parti cambiate.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>«%@» ha tolto i &gt; dei tag HTML prima che toccasse a «%@». Disattivate una delle due.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ righe senza modifiche: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ caratteri: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ altre modifiche: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Il testo è troppo lungo per l’anteprima; se ne mostra solo l’inizio.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>Non c’è testo negli appunti.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Gentile  lettore .

&gt;  Questa riga è stata
&gt;  spezzata a metà.

•  Comprare il latte ‘fresco’.
•  Comprare il pane ‘integrale’...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Caratteri</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Spazi</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Parole</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Paragrafi</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Statistiche</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Clic per chiudere</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Suggerimento %1 di %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Mostra i suggerimenti a ogni avvio</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Prima: i suggerimenti si aprono solo dal menu.
Dopo: si aprono a ogni avvio di Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Novità in Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Copiare, ripulire, incollare

Copia un testo, scegli «%@» nel menu dell’icona o premi la sua scorciatoia, e incolla. Le preferenze dicono che cosa viene ripulito; l’anteprima lo mostra su un testo.

### Da sé

«%@» ripulisce ogni copia. Link, file, immagini e password restano come sono.

### Tornare all’originale

«%@» riporta ciò che era stato copiato, con la sua formattazione, per dieci minuti.

### Una sola operazione

Il menu ha ogni operazione a sé. Con `nerlo-pro --choose` scrivi che cosa cerchi, vedi il risultato e premi Invio.

### Profili

Un profilo è un insieme di opzioni. Si cambia nel menu o in alto nelle preferenze.

### Tasti nelle preferenze

Ctrl+F cerca le opzioni, Ctrl+Z annulla, F1 apre questo aiuto.

### Quando qualcosa non funziona

`nerlo-pro --doctor` in un terminale dice che cosa manca a questo desktop, `nerlo-pro --why` che ne è stato dell’ultima copia. Il resto è in `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Mostra i suggerimenti</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Profili pronti**: per PDF, posta, pagine web, terminale, risposte di un assistente e codice.
- **Il profilo giusto da sé**: una tabella nella pagina Generale dice quale profilo ripulisce quale copia.
- **Codice, tabelle ed elenchi**: possono restare come sono.
- **Nuove operazioni**: uscite del terminale, codifica errata, caratteri invisibili, parole spezzate e link.
- **Il selettore**: `nerlo-pro --choose` trova un’operazione mentre scrivi e mostra il testo prima e dopo.
- **Trova e sostituisci**: le regole hanno esempi e contatori, e si copiano, importano ed esportano.
- **L’anteprima**: dice quale passo ha fatto una modifica e porta alla sua opzione.
- **Annulla**: Ctrl+Z riprende le modifiche a opzioni, regole e profili.
- **Ripristina**: dice che cosa torna.
- **Scorciatoie**: si chiamano come i tasti e funzionano in KDE con Wayland.
- **Nel terminale**: `nerlo check`, `--explain`, pipe senza fine, JSON Lines e una libreria per C e Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Copia, ed è pulito</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro vive nel vassoio. Trasforma ciò che si copia in testo semplice e pulito: niente spazi di troppo, righe spezzate o formattazione.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>A mano o da solo</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Scelga «Rimuovi la formattazione dagli appunti» nel menu, prema la sua scorciatoia, o lasci che «Rimuovi automaticamente la formattazione» ripulisca ogni copia.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Vedere prima di pulire</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Le preferenze mostrano un testo prima e dopo. Spunti un’opzione e guardi che cosa fa; gli appunti restano come sono.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Un profilo per ogni lavoro</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Tenga un insieme di opzioni per la posta e un altro per il codice. Si passa dall’uno all’altro nel menu del vassoio.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Le proprie regole</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>L’elenco trova e sostituisci applica le regole in ordine. Trascini una regola per spostarla; funzionano anche i modelli.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Niente va perso</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>«Ripristina l’originale» nel menu rimette negli appunti ciò che c’era prima, con la sua formattazione.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – ripulisce ogni copia</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – qui qualcosa non funziona</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Ripulisce il testo negli appunti.
Versione %1
Licenza MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Non c’è un originale da ripristinare.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Gli appunti sono cambiati, perciò l’originale non è stato ripristinato.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>L’originale è tornato, ma alcuni dei suoi formati non sono stati letti in tempo.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>L’originale superava %1 MB, perciò non è stato conservato.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>La pulizia risale a più di %1 minuti fa, perciò l’originale non è più conservato.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Il testo negli appunti supera %1 MB, perciò non è stato ripulito.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Delicato</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Pagina web</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminale</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Risposta di un assistente</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Codice intatto</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (pronto)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Comincia con</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Niente: tutte le opzioni sono disattivate</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Una copia di “%@”</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Pulito come: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Cambiati: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabulazioni</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Spazi</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Maiuscole</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Virgolette</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Segni di risposta</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Sostituzioni</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Punti elenco</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Puntini</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Doppioni</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Trattini</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Aggiunte</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Codifica</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Caratteri</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Parole</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Quali regole deve applicare la pulizia?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Tutte: a capo, virgolette e punti elenco vengono sistemati</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Delicato: solo spazi e righe spezzate; codice, tabelle ed elenchi restano</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Quale profilo pulisce quale copia</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Decide la prima riga spuntata adatta a una copia; se nessuna è adatta, la pulisce il profilo scelto.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Aggiungi una riga</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Aggiunge una riga alla fine della tabella.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Elimina la riga</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Elimina la riga scelta.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Sposta in su la riga scelta, così viene considerata prima.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Sposta in giù la riga scelta, così viene considerata dopo.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Sembra</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Che cosa sembra il testo copiato.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Il programma in primo piano alla copia, come lo chiama “nerlo-pro --why”; * sta per qualsiasi resto. Non tutti i desktop lo dicono.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Il sito da cui un browser ha copiato, come example.org; * è qualsiasi pagina.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Un formato che la copia offre, come text/rtf; * sta per qualsiasi resto.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Che cosa pulisce una copia simile, o che resta com’è.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Qualsiasi copia</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Testo da un terminale</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Codice</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Una tabella</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Un collegamento</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>lascia com’è</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Scegli cosa fare degli appunti</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Apre una piccola finestra vicino al puntatore: digita per trovare un’operazione, un profilo o regole, guarda l’effetto e premi Invio.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Trova un’operazione, un profilo o regole</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Parole del nome; le frecce scelgono fra i risultati</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Che cosa si può fare</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Invio mette il risultato negli appunti</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Profilo pronto</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Regole</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Regole di tutti i profili</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Regole di «%@»</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Il testo negli appunti</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Che cosa diventerebbe</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Invio: negli appunti · Esc: lascia tutto com’era</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Invio: negli appunti · Maiusc+Invio: incolla anche · Esc: lascia tutto com’era</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Scelga altri tasti nella pagina «%@» delle preferenze.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>ripulisci ripulire pulisci pulire</translation>
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
        <translation>Rimuovi automaticamente la formattazione</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Ripulisci subito dopo la copia</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Non conservare l’originale</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Tranne le copie da Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Ripristina l’originale</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Ripristina «%1»</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Singole operazioni</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferenze…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Suggerimenti</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Valuta Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistenza</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-mail allo sviluppatore</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Esci da Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Nascondi Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Ripulisci</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Mai in questo programma</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Mai in “%1”</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Non utilizzabile</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Registra una scorciatoia</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>non impostata</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Digiti la scorciatoia</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Usa la vecchia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Elimina la scorciatoia</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Freccia su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Freccia giù</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Freccia sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Freccia destra</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Pag su</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Pag giù</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Ins</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Canc</translation>
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
        <translation>La combinazione di tasti «%@» non può essere usata!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>La combinazione di tasti «%@» non può essere usata perché è già una scorciatoia da tastiera di sistema. Se si vuole proprio usarla, la maggior parte delle scorciatoie si può cambiare nel pannello Tastiera delle impostazioni di sistema.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>La combinazione di tasti «%@» non può essere usata perché la usa già la voce di menu «%@».</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME usa una versione precedente dell’estensione «Nerlo Pro». Terminare la sessione e accedere di nuovo.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>L’estensione «Nerlo Pro» di GNOME non risponde.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Una scorciatoia richiede Ctrl o Super, oppure un tasto funzione.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Un altro programma ha preso questa combinazione di tasti.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Un’altra scorciatoia di questo programma ha gli stessi tasti.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>È stata rifiutata nella finestra di dialogo del desktop.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Questo desktop non ha il portale GlobalShortcuts. Si può assegnare «nerlo-pro --operation N» o «nerlo-pro --clean» a un tasto nelle sue impostazioni della tastiera.</translation>
    </message>
</context>
</TS>
