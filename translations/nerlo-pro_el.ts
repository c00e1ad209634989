<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Προτιμήσεις</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Γενικά</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Κενά και στηλοθέτες</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Γραμμές</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Χαρακτήρες</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Γράμματα και εισαγωγικά</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Κουκκίδες, ετικέτες, μοτίβο</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Δέκα αντικαταστάσεις</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Εύρεση και αντικατάσταση</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Στατιστικά</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Αναζήτηση επιλογών</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Πληκτρολογήστε μια λέξη για να βρείτε κάθε σχετική επιλογή.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Καμία επιλογή δεν σχετίζεται με το «%@».</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Σελίδες</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Επιλογές</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Το σύνολο επιλογών που χρησιμοποιείται. Αλλάζει και από το μενού στην περιοχή ειδοποιήσεων.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Προσθήκη προφίλ</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Προσθέτει ένα προφίλ: κενό, αντίγραφο ή έτοιμο.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Αφαίρεση προφίλ</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Αφαιρεί το επιλεγμένο προφίλ. Η «Επαναφορά» το φέρνει πίσω.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Διαχείριση…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Εμφανίζει τη λίστα των προφίλ, για μετονομασία, αντιγραφή, ταξινόμηση, εισαγωγή και εξαγωγή.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Χρησιμοποιείται το επιλεγμένο προφίλ. Το F2 το μετονομάζει, τα Alt+Πάνω και Alt+Κάτω το μετακινούν, το Delete το αφαιρεί. Εδώ μπορούν να αποτεθούν αρχεία προφίλ.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Αντίγραφο</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Προσθέτει ένα αντίγραφο του επιλεγμένου προφίλ στο τέλος της λίστας.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Μετονομασία</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Δίνει άλλο όνομα στο επιλεγμένο προφίλ. Ο πίνακας των αντιγραφών το ακολουθεί.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Μετακινεί το επιλεγμένο προφίλ προς τα πάνω, εδώ και στα μενού.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Μετακινεί το επιλεγμένο προφίλ προς τα κάτω, εδώ και στα μενού.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Επαναφορά σε</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Δίνει στο επιλεγμένο προφίλ άλλες τιμές: της πρώτης εκκίνησης ή ενός έτοιμου προφίλ. Ό,τι ήταν μπορεί να επανέλθει.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Τιμές της πρώτης εκκίνησης</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Εξαγωγή…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Γράφει το επιλεγμένο προφίλ σε αρχείο, για άλλον υπολογιστή ή άνθρωπο.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Εισαγωγή…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Προσθέτει τα προφίλ ενός αρχείου. Κανένα δεν αντικαθίσταται.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Φέρνει πίσω ένα από τα προφίλ που αφαιρέθηκαν τελευταία.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Προστέθηκε: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Δεν ήταν δυνατή η ανάγνωση του προφίλ.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Δεν ήταν δυνατή η εγγραφή του προφίλ.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Συντόμευση που το επιλέγει</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>Σε κάθε πρόγραμμα, αυτή η συντόμευση θέτει σε χρήση το επιλεγμένο προφίλ. Το μενού την εμφανίζει.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Επιλογή του προφίλ «%@»</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Δώστε το όνομα του νέου προφίλ και πατήστε Εντάξει</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Εντάξει</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Όνομα</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Το Excel εξαιρείται</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Με την επιλογή «Αυτόματη εκκαθάριση μορφοποίησης»</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Συντόμευση: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Μια συντόμευση που λειτουργεί σε κάθε εφαρμογή.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Συντομεύσεις</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Επαναφορά όλων των συντομεύσεων</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Κάθε εντολή παίρνει τη συντόμευση της πρώτης εκκίνησης· οι περισσότερες δεν έχουν.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Επαναφορά συντόμευσης: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Όπως στην πρώτη εκκίνηση.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Έγινε επαναφορά όλων των συντομεύσεων.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Το σύστημα απέρριψε αυτή τη συντόμευση. Ίσως τη χρησιμοποιεί άλλο πρόγραμμα.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Αυτό το περιβάλλον δεν προσφέρει συντομεύσεις στα προγράμματα. Αντιστοιχίστε την εντολή «%@» στις δικές του ρυθμίσεις.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Αυτό το περιβάλλον δεν έχει περιοχή ειδοποιήσεων, γι’ αυτό το παράθυρο ανοίγει σε κάθε εκκίνηση.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Δεν είναι δυνατή η ανάγνωση του «%@».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Το περιεχόμενό του ξεκινά από την αρχή. Το κατεστραμμένο αρχείο φυλάσσεται δίπλα, με «.unreadable-» και την ώρα στο όνομά του.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Οι ρυθμίσεις δεν αποθηκεύτηκαν:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Τα προφίλ δεν αποθηκεύτηκαν:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Η εκκίνηση κατά τη σύνδεση δεν άλλαξε:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Το αρχείο κανόνων για συνδέσμους δεν χρησιμοποιείται:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Εκκίνηση κατά τη σύνδεση</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Εκκίνηση του Nerlo Pro κατά τη σύνδεση</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Πριν: ξεκινάτε το Nerlo Pro μόνοι σας.
Μετά: είναι εκεί μόλις συνδεθείτε.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Εμφάνιση στην περιοχή ειδοποιήσεων</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Πριν: το Nerlo Pro έχει καταχώριση στη γραμμή εργασιών.
Μετά: έχει εικονίδιο με μενού στην περιοχή ειδοποιήσεων.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Εκτέλεση στο παρασκήνιο</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Πριν: εικονίδιο ειδοποίησης ή καταχώριση στη γραμμή εργασιών.
Μετά: κανένα από τα δύο. Νέα εκκίνηση του Nerlo Pro ανοίγει αυτό το παράθυρο.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Πάντα σε πρώτο πλάνο</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Πριν: άλλα παράθυρα μπορούν να καλύψουν αυτό.
Μετά: αυτό το παράθυρο μένει πάνω από τα άλλα.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Πριν: εσείς επιλέγετε πότε καθαρίζεται το πρόχειρο.
Μετά: κάθε αντίγραφο καθαρίζεται μόνο του.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Μη διαθέσιμο: αυτή η έκδοση δημιουργήθηκε χωρίς διεύθυνση για αυτό.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Πριν: ένα αντίγραφο καθαρίζεται μέσα σε μισό δευτερόλεπτο.
Μετά: ένα αντίγραφο καθαρίζεται αμέσως.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Πριν: το πρωτότυπο φυλάσσεται δέκα λεπτά για επαναφορά.
Μετά: από το άλλο πρόγραμμα ζητείται μόνο το κείμενο και τίποτα δεν επαναφέρεται.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Πριν: τα κελιά που αντιγράφετε γίνονται απλό κείμενο.
Μετά: τα κελιά λογιστικού φύλλου μένουν όπως είναι.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Εκκαθάριση μορφοποίησης του προχείρου</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Πριν: «Γεια·····κόσμε», έντονα
Μετά: «Γεια·κόσμε», απλό</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Καθαρισμός</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Παράθυρο και εκκίνηση</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Ταξινόμηση γραμμών</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Πριν: μήλο↵αχλάδι
Μετά: αχλάδι↵μήλο</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Σειρά</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Πριν (A-Z): αχλάδι↵μήλο
Μετά (Z-A): μήλο↵αχλάδι</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Τα στοιχεία τελειώνουν με</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Πριν (Αλλαγή γραμμής): b,a
Μετά («,»): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Προσαρμοσμένο διαχωριστικό</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Πριν: b/a
Μετά, με /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Αφαίρεση διπλών γραμμών</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Πριν: τσάι↵τσάι↵γάλα
Μετά: τσάι↵γάλα</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Τα στοιχεία τελειώνουν με</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Πριν (Αλλαγή γραμμής): a,a
Μετά («,»): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Προσαρμοσμένο διαχωριστικό</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Πριν: a/a
Μετά, με /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Εμφάνιση στατιστικών μετά τον καθαρισμό</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Καταμέτρηση του προχείρου</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Πριν: τίποτα δεν δείχνει τι αντιγράφηκε.
Μετά: ένα μικρό παράθυρο μετρά χαρακτήρες, κενά, λέξεις και παραγράφους.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Αυτόματο κλείσιμο</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Πριν: το παράθυρο μένει μέχρι να το πατήσετε.
Μετά: κλείνει μετά από μερικά δευτερόλεπτα.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Δευτερόλεπτα</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Πόση ώρα μένει το παράθυρο.
Πριν, με 3: τρία δευτερόλεπτα
Μετά, με 10: δέκα δευτερόλεπτα</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Θέση</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Πριν (Θέση του δείκτη): στον δείκτη
Μετά (Πάνω δεξιά): σε εκείνη τη γωνία της οθόνης</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Αναφορά όσων άλλαξαν τα περισσότερα</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Πριν: το παράθυρο μόνο μετράει.
Μετά: Άλλαξαν: Κενά 12, Εισαγωγικά 4, Γραμμές 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Πολλά κενά σε ένα</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Πριν: a····b
Μετά: a·b
Φεύγουν και οι στήλες και οι εσοχές.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Πολλοί στηλοθέτες σε έναν</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Πριν: a⇥⇥⇥b
Μετά: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Μετατροπή στηλοθετών και τεσσάρων κενών</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Πριν: ⇥a
Μετά: ····a, ή το αντίστροφο</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Κατεύθυνση</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Πριν (Στηλοθέτης σε 4 κενά): ⇥a
Μετά: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Μετατροπή τριών τελειών και αποσιωπητικών</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Πριν: Περίμενε...
Μετά: Περίμενε…, ή το αντίστροφο</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Κατεύθυνση</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Πριν (3 τελείες σε αποσιωπητικά): Περίμενε...
Μετά: Περίμενε…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Αφαίρεση του κενού πριν από τελεία</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Πριν: Τέλος·.
Μετά: Τέλος.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Αφαίρεση κενών γύρω από στηλοθέτες</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Πριν: a·⇥·b
Μετά: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Αφαίρεση κενών γύρω από αλλαγές γραμμής</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Πριν: ένα·↵·δύο
Μετά: ένα↵δύο
Φεύγουν και οι εσοχές, ακόμη και του κώδικα και των λιστών.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Αφαίρεση όλων των κενών</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Πριν: a·b·c
Μετά: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Αφαίρεση όλων των στηλοθετών</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Πριν: a⇥b⇥c
Μετά: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Πριν: a·⇥·b↵c
Μετά: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Αφαίρεση ενωτικών στο τέλος γραμμής</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Πριν: συλλα-↵βισμός
Μετά: συλλαβισμός</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Αφαίρεση όλων των ενωτικών, παυλών και σημείων μείον</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Πριν: ελληνο-γαλλικός
Μετά: ελληνογαλλικός</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Προσθήκη προθέματος</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Πριν: κείμενο
Μετά, με «&gt; »: &gt; κείμενο</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Πρόθεμα</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Πριν: κείμενο
Μετά, με «&gt; »: &gt; κείμενο</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Προσθήκη επιθέματος</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Πριν: κείμενο
Μετά, με «!»: κείμενο!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Επίθεμα</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Πριν: κείμενο
Μετά, με «!»: κείμενο!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Ένωση λανθασμένα κομμένων γραμμών</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Πριν: Αυτή η γραμμή↵κόπηκε στη μέση.
Μετά: Αυτή η γραμμή·κόπηκε στη μέση.
Ενώνονται και λίστες, πίνακες και διευθύνσεις.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Διόρθωση λανθασμένης κωδικοποίησης</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Πριν: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Μετά: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Ένωση λέξεων που κόπηκαν στο τέλος γραμμής</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Πριν: μια λέξη ελεγ-↵μένη
Μετά: μια λέξη ελεγμένη</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Χωρίς αριθμούς σελίδων και επικεφαλίδες</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Πριν: ό,τι υπάρχει πάνω ή κάτω σε κάθε σελίδα,
όταν οι σελίδες χωρίζονται, μένει στο κείμενο.
Μετά: αφαιρείται.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Χωρίς αριθμούς υποσημειώσεων</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Πριν: μια θεωρία4 και η απόδειξη.5
Μετά: μια θεωρία και η απόδειξη.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Αποκατάσταση κειμένου τερματικού</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Πριν: │ Μία πρόταση↵│ σε δύο γραμμές. │
Μετά: Μία πρόταση·σε δύο γραμμές.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Ο κώδικας, οι πίνακες και οι λίστες μένουν ως έχουν</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Πριν: μια λίστα γίνεται μία γραμμή και ο κώδικας χαλάει.
Μετά: τακτοποιείται μόνο το απλό κείμενο. Σημεία λίστας, εσοχές, κώδικας, πίνακες και διευθύνσεις μένουν.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Οι γραμμές ενώνονται με</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Πριν (τίποτα): a↵b γίνεται ab
Μετά (κενό): a↵b γίνεται a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Αλλαγή των αλλαγών γραμμής</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Πριν: ένα↵↵↵δύο
Μετά (μία αλλαγή γραμμής): ένα↵δύο</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Οι αλλαγές γραμμής γίνονται</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Πριν (μία αλλαγή γραμμής): ένα↵δύο
Μετά (κενό): ένα·δύο</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Πρώτο προσαρμοσμένο κείμενο</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Πριν: ένα↵δύο
Μετά, με «- »: ένα↵- δύο</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Δεύτερο προσαρμοσμένο κείμενο</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Πριν: ένα
Μετά, με [b] και [/b]: [b]ένα[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Περικοπή των δύο άκρων του κειμένου</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Πριν: ··κείμενο··
Μετά: κείμενο</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Καθαρισμός χαρακτήρων</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Πριν: ﬁ‹U+200B›x‹U+00A0›y
Μετά: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Διατήρηση χαρακτήρων ελέγχου</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Πριν: a␛[1mb␛[0m → ab
Μετά: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Διατήρηση χαρακτήρων ετικέτας</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Πριν: a‹U+E0041›b → ab
Μετά: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Διατήρηση χαρακτήρων ιδιωτικής χρήσης</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Πριν: a‹U+E000›b → ab
Μετά: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Διατήρηση μαλακών ενωτικών</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Πριν: a‹U+00AD›b → ab
Μετά: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Διατήρηση επιλογέων παραλλαγής</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Πριν: a‹U+FE0F›b → ab
Μετά: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Διατήρηση ενδείξεων κατεύθυνσης</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Πριν: a‹U+200E›b → ab
Μετά: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Διατήρηση χαρακτήρων μηδενικού πλάτους</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Πριν: a‹U+200B›b → ab
Μετά: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Διατήρηση συμπλεγμάτων</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Πριν: ﬁ → fi
Μετά: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Διατήρηση ειδικών κενών</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Πριν: a‹U+00A0›b → a·b
Μετά: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Γράμματα πλήρους πλάτους σε στενά</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Πριν: Ａ１
Μετά: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Γράμμα και τόνος ως ένας χαρακτήρας (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Πριν: e + ◌́
Μετά: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Απλά εισαγωγικά, παύλες και τελείες</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Πριν: “a”—b…
Μετά: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Αφαίρεση σημαδιών Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Πριν: ## a↵- **b** `c`
Μετά: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Αλλαγή πεζών και κεφαλαίων</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Πριν: ΓΕΙΑ. ΕΣΥ.
Μετά (κεφαλαίο στην αρχή πρότασης): Γεια. Εσύ.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Πεζά και κεφαλαία</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Πριν (κεφαλαία): ΓΕΙΑ
Μετά (πεζά): γεια</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Αλλαγή εισαγωγικών</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Πριν: ‘κείμενο’
Μετά (μονά σε διπλά): “κείμενο”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Κατεύθυνση</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Πριν (μονά σε διπλά): ‘κείμενο’
Μετά: “κείμενο”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Μονά εισαγωγικά</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Πριν: &apos;κείμενο&apos;
Μετά, με ‚…‘: ‚κείμενο‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Διπλά εισαγωγικά</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Πριν: &quot;κείμενο&quot;
Μετά, με „…“: „κείμενο“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Εισαγωγικά κάθε μορφής</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Πριν: «κείμενο» μένει όπως είναι.
Μετά: «κείμενο» αλλάζει κι αυτό.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Αφαίρεση μονών εισαγωγικών</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Πριν: ‘κείμενο’
Μετά: κείμενο</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Μονά κάθε μορφής</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Πριν: ‹κείμενο› μένει όπως είναι.
Μετά: κείμενο</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Αφαίρεση διπλών εισαγωγικών</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Πριν: “κείμενο”
Μετά: κείμενο</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Διπλά κάθε μορφής</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Πριν: «κείμενο» μένει όπως είναι.
Μετά: κείμενο</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Αφαίρεση κουκκίδων</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Πριν: •·γάλα↵•·ψωμί
Μετά: γάλα↵ψωμί
Φεύγουν και οι κουκκίδες μέσα στις γραμμές.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Αφαίρεση σημείων απάντησης</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Πριν: &gt;·&gt;·Γεια
Μετά: Γεια
Φεύγει κάθε &gt;, και μέσα στις γραμμές, και μαζί το τέλος κάθε ετικέτας HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Αφαίρεση ετικετών HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Πριν: &lt;b&gt;έντονα&lt;/b&gt;
Μετά: έντονα
Το «Αφαίρεση σημείων απάντησης» εκτελείται πριν και παίρνει το &gt; των ετικετών: τότε μπορεί να χαθεί όλο το κείμενο.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Και τα σενάρια</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Πριν: το κείμενο ενός &lt;script&gt; μένει.
Μετά: φεύγει μαζί με την ετικέτα του.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Καθαρισμός συνδέσμων</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Πριν: https://example.org/a?id=7&amp;utm_source=mail
Μετά: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Άλλοι κανόνες</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Ένα αρχείο με άλλους κανόνες, στη μορφή του ClearURLs.
Χωρίς αυτό ισχύει η λίστα του Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Επιλογή αρχείου…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Χρήση δικού σας μοτίβου</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Πριν, με [0-9]: a1b2
Μετά (διαγραφή): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Μοτίβο</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Μια κανονική έκφραση.
Πριν, με [0-9]: a1b2
Μετά (διαγραφή): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Δεν είναι έγκυρη κανονική έκφραση, γι’ αυτό δεν βρίσκει τίποτα.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Παραλείφθηκε στον τελευταίο καθαρισμό: απαιτεί υπερβολική εργασία για αυτό το κείμενο.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Κανόνες που παραλείφθηκαν, επειδή απαιτούν υπερβολική εργασία για αυτό το κείμενο: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Αντιστοιχίες</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Πριν (διαγραφή [0-9]): a1b2 γίνεται ab
Μετά (εύρεση [0-9]): a1b2 γίνεται 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Κενά, στηλοθέτες και αλλαγές γραμμής σε ένα κενό</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Αντικατάσταση 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Αντικατάσταση 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Αντικατάσταση 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Αντικατάσταση 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Αντικατάσταση 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Αντικατάσταση 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Αντικατάσταση 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Αντικατάσταση 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Αντικατάσταση 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Αντικατάσταση 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Πριν: αυγό
Μετά, με «αυγό» και «αβγό»: αβγό</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Εύρεση</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Το κείμενο που αναζητείται.
Πριν: αυγό
Μετά, με «αυγό» και «αβγό»: αβγό</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Αντικατάσταση με</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Αυτό που μπαίνει στη θέση του· αν είναι κενό, το κείμενο διαγράφεται.
Πριν: αυγό
Μετά, με «αυγό» και «αβγό»: αβγό</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Εσοχή</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Ετικέτα</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Προσαρμοσμένο</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Εφαρμογή της λίστας εύρεσης και αντικατάστασης</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Πριν: κ. Παπάς
Μετά, με κ. → κύριος: κύριος Παπάς</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Μία λίστα για όλα τα προφίλ</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Πριν: κάθε προφίλ έχει δική του λίστα.
Μετά: όλα τα προφίλ μοιράζονται μία λίστα.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Κανόνες, από τον πρώτο στον τελευταίο</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Οι κανόνες εφαρμόζονται από πάνω προς τα κάτω. Σύρετε έναν κανόνα ή πατήστε Alt+Πάνω και Alt+Κάτω για να τον μετακινήσετε.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Αντικατάσταση με</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Αρχίστε με {search} για να μείνουν μόνο όσα βρίσκει το μοτίβο ή με {delete} για να διαγραφούν.
Πριν, με [0-9] και {search}#: a1b2
Μετά: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Προσθήκη κανόνα</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Προσθέτει έναν κανόνα στο τέλος της λίστας.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Διαγραφή του κανόνα</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Διαγράφει τον επιλεγμένο κανόνα.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Μετακίνηση πάνω</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Μετακινεί τον επιλεγμένο κανόνα προς τα πάνω, ώστε να εφαρμόζεται νωρίτερα.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Μετακίνηση κάτω</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Μετακινεί τον επιλεγμένο κανόνα προς τα κάτω, ώστε να εφαρμόζεται αργότερα.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Νέος κανόνας</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Επιλέξτε τον κανόνα που θα διαγραφεί</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Επιλέξτε έναν κανόνα</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Κείμενο αντικατάστασης</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Ενεργός</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Αν εφαρμόζεται ο κανόνας.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Εύρεση</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Τι αναζητά ο κανόνας: κείμενο ή, αν το λέει το είδος του, μοτίβο.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Είδος</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Ένα κείμενο αναζητείται όπως είναι· ένα μοτίβο είναι κανονική έκφραση.
Χωρίς έλεγχο: όπου μένουν μόνο οι αντιστοιχίες, κείμενο χωρίς καμία γίνεται κενό.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Βρέθηκαν</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Πόσες φορές βρίσκει κάτι ο κανόνας στο κείμενο της προεπισκόπησης.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Κείμενο</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Μοτίβο: αντικατάσταση</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Μοτίβο: διατήρηση αντιστοιχιών</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Μοτίβο: αντικατάσταση, χωρίς έλεγχο</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Μοτίβο: διατήρηση αντιστοιχιών, χωρίς έλεγχο</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Το μοτίβο δεν έχει νόημα στον χαρακτήρα %@, γι’ αυτό δεν βρίσκει τίποτα.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Δεν βρίσκει τίποτα στο κείμενο της προεπισκόπησης.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Βρέθηκαν στο κείμενο της προεπισκόπησης: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>Το δείγμα %@ δεν ισχύει. Ο κανόνας το κάνει έτσι: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Δείγματα του επιλεγμένου κανόνα</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Τι πρέπει να κάνει ο κανόνας ένα κείμενο. Όλα δοκιμάζονται σε κάθε αλλαγή.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Αποτέλεσμα</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Ισχύει</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Δεν ισχύει</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Προσθήκη δείγματος</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Παίρνει το πρώτο σημείο της προεπισκόπησης που βρίσκει ο κανόνας, για έλεγχο.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Περισσότερα</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Αντιγράφει και επικολλά κανόνες, εισάγει και εξάγει λίστες και προσφέρει έτοιμες.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Ημερομηνίες σε ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Υποδιαστολές από κόμμα σε τελεία</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Αφαίρεση αριθμών υποσημειώσεων</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Αφαίρεση προτροπών φλοιού</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Τυπογραφική στίξη σε απλή</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Αντιγραφή του κανόνα</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Επικόλληση κανόνων</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Εισαγωγή λίστας…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Εξαγωγή της λίστας…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Τι κάνει η λίστα «%@» στους κανόνες σας:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Επίδραση</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Προστίθεται</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Αλλάζει</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Μένει</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Εισαγωγή</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Αυτό δεν είναι λίστα κανόνων που μπορεί να διαβαστεί.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Δεν ήταν δυνατή η εγγραφή της λίστας.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>Δεν υπάρχουν κανόνες στο πρόχειρο.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Διαγράφηκε.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Το αναιρεί.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Αντίστροφη</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Τυχαία</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Αλλαγή γραμμής</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Κάτω αριστερά</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Κάτω δεξιά</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Πάνω αριστερά</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Πάνω δεξιά</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Κέντρο</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Θέση του δείκτη</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Στηλοθέτης σε 4 κενά, 4 κενά σε στηλοθέτη</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 τελείες σε αποσιωπητικά, Αποσιωπητικά σε 3 τελείες</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>τίποτα, κενό</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>τίποτα, μία αλλαγή γραμμής, δύο αλλαγές γραμμής, κενό, αλλαγή γραμμής και κενό, αλλαγή γραμμής και στηλοθέτης, αλλαγή γραμμής και δικό σας κείμενο, παράγραφοι HTML, ετικέτες εικόνας HTML, δικό σας κείμενο γύρω από τις γραμμές</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>κεφαλαίο στην αρχή πρότασης, κεφαλαίο σε κάθε λέξη, πεζά, κεφαλαία</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>μονά σε διπλά, διπλά σε μονά</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>διαγραφή, εύρεση</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Προεπισκόπηση</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Δείχνει τι κάνουν οι επιλογές. Τίποτα δεν φτάνει στο πρόχειρο μέχρι να το ζητήσετε.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Πριν</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Γράψτε ή επικολλήστε εδώ ένα κείμενο για να δοκιμάσετε τις επιλογές.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Μετά</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Το κείμενο όπως το καθαρίζουν οι επιλογές. Ό,τι άλλαξε επισημαίνεται.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Γράψτε ένα κείμενο ή πάρτε το από το πρόχειρο</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Λήψη από το πρόχειρο</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Αντιγράφει το κείμενο του προχείρου στην προεπισκόπηση.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Καθαρισμός του προχείρου</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Καθαρίζει τώρα το κείμενο του προχείρου με αυτές τις επιλογές.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Το κείμενο πριν από το επιλεγμένο βήμα ή ό,τι άλλαξε σε ένα μεγάλο κείμενο. Εδώ δεν γίνεται επεξεργασία.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Πληκτρολόγηση άλλου κειμένου</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Βγάζει το μεγάλο κείμενο από την προεπισκόπηση, ώστε να γράψετε ένα άλλο.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Βήματα</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Τα βήματα που άλλαξαν κάτι, με το πλήθος των αλλαγών. Επιλέξτε ένα για να δείτε τι έκανε μόνο του· επιλέξτε το ξανά για να τα δείτε όλα.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Όλα τα βήματα</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, αλλαγές: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Μεγάλο κείμενο: εμφανίζονται μόνο τα μέρη που άλλαξαν.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>Το «%@» πήρε τα &gt; των ετικετών HTML πριν έρθει η σειρά του «%@». Απενεργοποιήστε ένα από τα δύο.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ γραμμές χωρίς αλλαγή: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ χαρακτήρες: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ ακόμη αλλαγές: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Το κείμενο είναι πολύ μεγάλο για προεπισκόπηση· εμφανίζεται μόνο η αρχή του.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>Δεν υπάρχει κείμενο στο πρόχειρο.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Αγαπητέ  αναγνώστη .

&gt;  Αυτή η γραμμή
&gt;  κόπηκε στη μέση.

•  Πάρτε το ‹φρέσκο› γάλα.
•  Πάρτε το ‹μαύρο› ψωμί...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Χαρακτήρες</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Κενά</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Λέξεις</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Παράγραφοι</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Στατιστικά</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Κάντε κλικ για κλείσιμο</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Προηγούμενη</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Επόμενη</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Έναρξη</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Συμβουλή %1 από %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Εμφάνιση συμβουλών σε κάθε εκκίνηση</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Πριν: οι συμβουλές ανοίγουν μόνο από το μενού.
Μετά: ανοίγουν κάθε φορά που ξεκινά το Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Τι νέο υπάρχει στο Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Αντιγραφή, καθαρισμός, επικόλληση

Αντιγράψτε ένα κείμενο, επιλέξτε «%@» στο μενού του εικονιδίου ή πατήστε τη συντόμευσή του και επικολλήστε. Οι προτιμήσεις λένε τι καθαρίζεται· η προεπισκόπηση το δείχνει σε ένα κείμενο.

### Αυτόματα

«%@» καθαρίζει κάθε αντίγραφο. Σύνδεσμοι, αρχεία, εικόνες και κωδικοί μένουν όπως είναι.

### Πίσω στο πρωτότυπο

«%@» φέρνει πίσω ό,τι αντιγράφηκε, με τη μορφοποίησή του, για δέκα λεπτά.

### Μία λειτουργία

Το μενού έχει κάθε λειτουργία χωριστά. Με το `nerlo-pro --choose` γράφετε τι ψάχνετε, βλέπετε το αποτέλεσμα και πατάτε Enter.

### Προφίλ

Ένα προφίλ είναι ένα σύνολο επιλογών. Αλλάζει στο μενού ή στην κορυφή των προτιμήσεων.

### Πλήκτρα στις προτιμήσεις

Ctrl+F ψάχνει επιλογές, Ctrl+Z αναιρεί, F1 ανοίγει αυτή τη βοήθεια.

### Όταν κάτι δεν λειτουργεί

`nerlo-pro --doctor` σε τερματικό λέει τι λείπει από αυτή την επιφάνεια εργασίας, `nerlo-pro --why` τι έγινε το τελευταίο αντίγραφο. Τα υπόλοιπα στο `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Εμφάνιση συμβουλών</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Έτοιμα προφίλ**: για PDF, αλληλογραφία, ιστοσελίδες, τερματικό, απαντήσεις βοηθού και κώδικα.
- **Το σωστό προφίλ αυτόματα**: ένας πίνακας στη σελίδα Γενικά λέει ποιο προφίλ καθαρίζει ποιο αντίγραφο.
- **Κώδικας, πίνακες και λίστες**: μπορούν να μείνουν όπως είναι.
- **Νέες λειτουργίες**: έξοδος τερματικού, λάθος κωδικοποίηση, αόρατοι χαρακτήρες, κομμένες λέξεις, σύνδεσμοι.
- **Ο επιλογέας**: το `nerlo-pro --choose` βρίσκει μια λειτουργία όσο γράφετε και δείχνει το κείμενο πριν και μετά.
- **Εύρεση και αντικατάσταση**: οι κανόνες έχουν δείγματα και μετρητές, και αντιγράφονται, εισάγονται και εξάγονται.
- **Η προεπισκόπηση**: λέει ποιο βήμα έκανε μια αλλαγή και οδηγεί στην επιλογή του.
- **Αναίρεση**: το Ctrl+Z παίρνει πίσω αλλαγές σε επιλογές, κανόνες και προφίλ.
- **Επαναφορά**: λέει τι φέρνει πίσω.
- **Συντομεύσεις**: λέγονται όπως τα πλήκτρα και λειτουργούν στο KDE με Wayland.
- **Στο τερματικό**: `nerlo check`, `--explain`, σωληνώσεις χωρίς τέλος, JSON Lines και βιβλιοθήκη για C και Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Αντιγραφή και είναι καθαρό</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Το Nerlo Pro βρίσκεται στην περιοχή ειδοποιήσεων. Μετατρέπει ό,τι αντιγράφετε σε καθαρό, απλό κείμενο: χωρίς περιττά κενά, κομμένες γραμμές και μορφοποίηση.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>Με το χέρι ή μόνο του</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Επιλέξτε «Εκκαθάριση μορφοποίησης του προχείρου» στο μενού, πατήστε τη συντόμευσή του ή αφήστε την «Αυτόματη εκκαθάριση μορφοποίησης» να καθαρίζει κάθε αντίγραφο.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Δείτε πριν καθαρίσετε</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Οι προτιμήσεις δείχνουν ένα κείμενο πριν και μετά. Τσεκάρετε μια επιλογή και δείτε τι κάνει· το πρόχειρο μένει όπως είναι.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Ένα προφίλ για κάθε δουλειά</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Κρατήστε ένα σύνολο επιλογών για την αλληλογραφία και ένα για τον κώδικα. Αλλάζετε μεταξύ τους από το μενού στην περιοχή ειδοποιήσεων.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Οι δικοί σας κανόνες</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>Η λίστα εύρεσης και αντικατάστασης εφαρμόζει τους κανόνες σας με τη σειρά. Σύρετε έναν κανόνα για να τον μετακινήσετε· λειτουργούν και μοτίβα.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Τίποτα δεν χάνεται</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>Η «Επαναφορά του πρωτοτύπου» στο μενού επαναφέρει ό,τι υπήρχε πριν στο πρόχειρο, με τη μορφοποίησή του.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – καθαρίζει κάθε αντίγραφο</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – κάτι δεν λειτουργεί εδώ</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Καθαρίζει το κείμενο του προχείρου.
Έκδοση %1
Άδεια MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Δεν υπάρχει πρωτότυπο για επαναφορά.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Το πρόχειρο άλλαξε, γι’ αυτό το πρωτότυπο δεν επαναφέρθηκε.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>Το πρωτότυπο επανήλθε, αλλά ορισμένες μορφές του δεν διαβάστηκαν εγκαίρως.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>Το πρωτότυπο ήταν μεγαλύτερο από %1 MB, γι’ αυτό δεν κρατήθηκε.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>Έχουν περάσει πάνω από %1 λεπτά από τον καθαρισμό, γι’ αυτό το πρωτότυπο δεν φυλάσσεται πια.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Το κείμενο στο πρόχειρο είναι μεγαλύτερο από %1 MB, γι’ αυτό δεν καθαρίστηκε.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Ήπιο</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Αλληλογραφία</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Ιστοσελίδα</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Τερματικό</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Απάντηση βοηθού</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Ο κώδικας μένει</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (έτοιμο)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Ξεκινά με</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Τίποτα: όλες οι επιλογές είναι ανενεργές</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Αντίγραφο του «%@»</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Καθαρίστηκε ως: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Άλλαξαν: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Στηλοθέτες</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Κενά</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Γραμμές</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Πεζά/κεφαλαία</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Εισαγωγικά</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Σημάδια απάντησης</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Ετικέτες</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Μοτίβο</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Αντικαταστάσεις</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Κουκκίδες</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Τελείες</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Σειρά</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Διπλότυπα</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Παύλες</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Προσθήκες</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Κωδικοποίηση</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Χαρακτήρες</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Λέξεις</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Σύνδεσμοι</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Ποιους κανόνες να εφαρμόζει ο καθαρισμός;</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Όλους: τακτοποιούνται αλλαγές γραμμής, εισαγωγικά και κουκκίδες</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Ήπια: μόνο διαστήματα και σπασμένες γραμμές· κώδικας, πίνακες και λίστες μένουν</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Ποιο προφίλ καθαρίζει ποιο αντίγραφο</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Αποφασίζει η πρώτη τσεκαρισμένη γραμμή που ταιριάζει· αν δεν ταιριάζει καμία, καθαρίζει το επιλεγμένο προφίλ.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Προσθήκη γραμμής</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Προσθέτει μια γραμμή στο τέλος του πίνακα.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Διαγραφή γραμμής</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Διαγράφει την επιλεγμένη γραμμή.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Μετακινεί την επιλεγμένη γραμμή πάνω, ώστε να εξετάζεται νωρίτερα.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Μετακινεί την επιλεγμένη γραμμή κάτω, ώστε να εξετάζεται αργότερα.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Μοιάζει με</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Με τι μοιάζει το αντιγραμμένο κείμενο.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Πρόγραμμα</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Το πρόγραμμα που ήταν μπροστά κατά την αντιγραφή, όπως το ονομάζει το «nerlo-pro --why»· το * σημαίνει οτιδήποτε ακολουθεί. Δεν το λέει κάθε επιφάνεια εργασίας.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Σελίδα</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Ο ιστότοπος από τον οποίο αντέγραψε ένας περιηγητής, όπως example.org· το * είναι κάθε σελίδα.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Μια μορφή που προσφέρει το αντίγραφο, όπως text/rtf· το * σημαίνει οτιδήποτε ακολουθεί.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Τι καθαρίζει ένα τέτοιο αντίγραφο, ή ότι μένει όπως είναι.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Οποιοδήποτε αντίγραφο</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Κείμενο από τερματικό</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Κώδικας</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Πίνακας</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Σύνδεσμος</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>να μείνει όπως είναι</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Επιλογή ενέργειας για το πρόχειρο</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Ανοίγει ένα μικρό παράθυρο στον δείκτη: πληκτρολογήστε για να βρείτε λειτουργία, προφίλ ή κανόνες, δείτε το αποτέλεσμα και πατήστε Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Εύρεση λειτουργίας, προφίλ ή κανόνων</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Λέξεις του ονόματος· τα βέλη επιλέγουν από όσα βρέθηκαν</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Τι μπορεί να γίνει</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Το Enter βάζει το αποτέλεσμα στο πρόχειρο</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Έτοιμο προφίλ</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Κανόνες</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Λειτουργία</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Κανόνες όλων των προφίλ</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Κανόνες του «%@»</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Το κείμενο του προχείρου</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Τι θα γινόταν</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: στο πρόχειρο · Esc: καμία αλλαγή</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: στο πρόχειρο · Shift+Enter: και επικόλληση · Esc: καμία αλλαγή</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Επιλέξτε άλλα πλήκτρα στη σελίδα «%@» των προτιμήσεων.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>καθαρισμός καθάρισε</translation>
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
        <translation>Αυτόματη εκκαθάριση μορφοποίησης</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Καθαρισμός αμέσως μετά την αντιγραφή</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Να μη φυλάσσεται το πρωτότυπο</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Εκτός από αντίγραφα του Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Επαναφορά του πρωτοτύπου</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Επαναφορά «%1»</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Μεμονωμένες ενέργειες</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Προτιμήσεις…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Συμβουλές</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Τι νέο υπάρχει</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Αξιολόγηση του Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Υποστήριξη</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-mail στον προγραμματιστή</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Περί</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Έξοδος από το Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Απόκρυψη του Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Καθαρισμός</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Επεξεργασία</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Αναίρεση</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Αποκοπή</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Αντιγραφή</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Επικόλληση</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Ποτέ σε αυτό το πρόγραμμα</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Ποτέ στο «%1»</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Δεν μπορεί να χρησιμοποιηθεί</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Εγγραφή συντόμευσης</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>δεν έχει οριστεί</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Πατήστε τη συντόμευση</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Χρήση της παλιάς</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Διαγραφή συντόμευσης</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Κενό</translation>
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
        <translation>Πάνω</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Κάτω</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Αριστερά</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Δεξιά</translation>
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
        <translation>Ο συνδυασμός πλήκτρων «%@» δεν μπορεί να χρησιμοποιηθεί!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>Ο συνδυασμός πλήκτρων «%@» δεν μπορεί να χρησιμοποιηθεί, γιατί είναι ήδη συντόμευση πληκτρολογίου του συστήματος. Αν θέλετε οπωσδήποτε αυτόν τον συνδυασμό, οι περισσότερες συντομεύσεις αλλάζουν στην ενότητα «Πληκτρολόγιο» των ρυθμίσεων συστήματος.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>Ο συνδυασμός πλήκτρων «%@» δεν μπορεί να χρησιμοποιηθεί, γιατί τον χρησιμοποιεί ήδη το στοιχείο μενού «%@».</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>Το GNOME εκτελεί παλαιότερη έκδοση της επέκτασης «Nerlo Pro». Αποσυνδεθείτε και συνδεθείτε ξανά.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>Η επέκταση «Nerlo Pro» του GNOME δεν απαντά.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Μια συντόμευση χρειάζεται Ctrl ή Super ή ένα πλήκτρο λειτουργίας.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Άλλο πρόγραμμα έχει δεσμεύσει αυτόν τον συνδυασμό πλήκτρων.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Άλλη συντόμευση αυτού του προγράμματος έχει τα ίδια πλήκτρα.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Απορρίφθηκε στο παράθυρο διαλόγου της επιφάνειας εργασίας.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Αυτή η επιφάνεια εργασίας δεν έχει την πύλη GlobalShortcuts. Ορίστε πλήκτρο για «nerlo-pro --operation N» ή «nerlo-pro --clean» στις δικές της ρυθμίσεις πληκτρολογίου.</translation>
    </message>
</context>
</TS>
