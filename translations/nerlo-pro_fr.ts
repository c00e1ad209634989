<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Espaces et tabulations</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Casse et guillemets</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Puces, balises, motif</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Dix remplacements</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Chercher une option</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Saisissez un mot pour trouver toutes les options qui s’y rapportent.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Aucune option ne se rapporte à « %@ ».</translation>
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
        <translation>Profil</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>Le jeu d’options utilisé. Le menu de la zone de notification permet aussi d’en changer.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Ajouter un profil</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Ajoute un profil : vide, une copie ou un profil prêt.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Supprimer le profil</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Retire le profil sélectionné. « Restaurer » le ramène.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Gérer…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Affiche la liste des profils, pour les renommer, copier, classer, importer et exporter.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>Le profil sélectionné est celui qui sert. F2 le renomme, Alt+Haut et Alt+Bas le déplacent, Suppr le retire. On peut déposer ici des fichiers de profils.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Ajoute une copie du profil sélectionné à la fin de la liste.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Donne un autre nom au profil sélectionné. Le tableau des copies suit.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Monte le profil sélectionné, ici et dans les menus.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Descend le profil sélectionné, ici et dans les menus.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Réinitialiser à</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Donne d’autres valeurs au profil sélectionné : celles d’un premier démarrage ou d’un profil tout prêt. L’ancien état peut être restauré.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Valeurs d’un premier démarrage</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Écrit le profil sélectionné dans un fichier, pour un autre ordinateur ou une autre personne.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Ajoute les profils d’un fichier. Aucun n’est remplacé.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Ramène un des derniers profils retirés.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Ajouté : %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Le profil n’a pas pu être lu.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Le profil n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Raccourci qui le sélectionne</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>Dans tout programme, ce raccourci fait du profil sélectionné celui qui sert. Le menu l’affiche.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Sélectionner le profil « %@ »</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Saisissez le nom du nouveau profil et cliquez sur OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel exclu</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Avec l’option « Effacer la mise en forme automatiquement »</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Raccourci : %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Un raccourci qui fonctionne dans toutes les applications.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Réinitialiser tous les raccourcis</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Chaque commande reçoit le raccourci du premier démarrage ; la plupart n’en ont pas.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Réinitialiser le raccourci : %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Comme au premier démarrage.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Tous les raccourcis sont réinitialisés.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>Le système a refusé ce raccourci. Un autre programme l’utilise peut-être.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Ce bureau n’offre pas de raccourcis aux programmes. Associez-en un à la commande « %@ » dans ses propres réglages.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Ce bureau n’a pas de zone de notification ; cette fenêtre s’ouvre donc à chaque démarrage.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Impossible de lire « %@ ».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Son contenu repart de zéro. Le fichier endommagé est conservé à côté, avec « .unreadable- » et l’heure dans son nom.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Les réglages ne sont pas enregistrés :</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Les profils ne sont pas enregistrés :</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Le démarrage à la connexion n’a pas pu être changé :</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>Le fichier de règles pour les liens n’est pas utilisé :</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Lancer Nerlo Pro à l’ouverture de session</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Avant : vous lancez Nerlo Pro vous-même.
Après : il est là dès que la session est ouverte.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Afficher dans la zone de notification</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Avant : Nerlo Pro a une entrée dans la barre des tâches.
Après : il a une icône avec un menu dans la zone de notification.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Fonctionner en arrière-plan</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Avant : icône de notification ou entrée dans la barre des tâches.
Après : ni l’une ni l’autre. Relancer Nerlo Pro ouvre cette fenêtre.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Garder au premier plan</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Avant : d’autres fenêtres peuvent couvrir celle-ci.
Après : cette fenêtre reste au-dessus des autres.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Avant : vous choisissez quand nettoyer le presse-papiers.
Après : chaque copie est nettoyée toute seule.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Indisponible : cette version a été construite sans adresse pour cela.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Avant : une copie est nettoyée en moins d’une demi-seconde.
Après : une copie est nettoyée aussitôt.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Avant : l’original est gardé dix minutes, pour être restauré.
Après : on ne demande que le texte à l’autre programme, et rien ne peut être restauré.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Avant : les cellules copiées deviennent du texte brut.
Après : les cellules d’un tableur restent telles quelles.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Effacer la mise en forme du presse-papiers</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Avant : « Bonjour·····monde », gras
Après : « Bonjour·monde », simple</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Fenêtre et démarrage</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Trier les lignes</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Avant : poire↵abricot
Après : abricot↵poire</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Avant (A-Z) : abricot↵poire
Après (Z-A) : poire↵abricot</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Fin des éléments</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Avant (Saut de ligne) : b,a
Après (« , ») : a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Séparateur personnalisé</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Avant : b/a
Après, avec / : a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Supprimer les lignes en double</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Avant : thé↵thé↵lait
Après : thé↵lait</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Fin des éléments</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Avant (Saut de ligne) : a,a
Après (« , ») : a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Séparateur personnalisé</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Avant : a/a
Après, avec / : a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Afficher les statistiques après un nettoyage</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Compter le presse-papiers</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Avant : rien ne dit ce qui a été copié.
Après : une petite fenêtre compte les caractères, les espaces, les mots et les paragraphes.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Fermer automatiquement</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Avant : la fenêtre reste jusqu’à ce que vous cliquiez dessus.
Après : elle se ferme après quelques secondes.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Durée d’affichage de la fenêtre.
Avant, avec 3 : trois secondes
Après, avec 10 : dix secondes</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Avant (Position du pointeur) : près du pointeur
Après (En haut à droite) : dans ce coin de l’écran</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Dire ce qui a le plus changé</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Avant : la fenêtre ne fait que compter.
Après : Changé : Espaces 12, Guillemets 4, Lignes 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Plusieurs espaces en une seule</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Avant : a····b
Après : a·b
Les colonnes et les retraits partent aussi.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Plusieurs tabulations en une seule</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Avant : a⇥⇥⇥b
Après : a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Convertir tabulations et quatre espaces</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Avant : ⇥a
Après : ····a, ou l’inverse</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Avant (Tabulation en 4 espaces) : ⇥a
Après : ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Convertir trois points et points de suspension</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Avant : Attendez...
Après : Attendez…, ou l’inverse</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Avant (3 points en points de suspension) : Attendez...
Après : Attendez…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Supprimer l’espace devant un point</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Avant : Fin·.
Après : Fin.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Supprimer les espaces autour des tabulations</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Avant : a·⇥·b
Après : a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Supprimer les espaces autour des sauts de ligne</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Avant : un·↵·deux
Après : un↵deux
Les retraits partent aussi, même ceux du code et des listes.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Supprimer toutes les espaces</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Avant : a·b·c
Après : abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Supprimer toutes les tabulations</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Avant : a⇥b⇥c
Après : abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Avant : a·⇥·b↵c
Après : a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Supprimer les traits de coupure en fin de ligne</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Avant : césu-↵re
Après : césure</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Supprimer tous les traits d’union, tirets et signes moins</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Avant : bien-être
Après : bienêtre</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Ajouter un préfixe</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Avant : texte
Après, avec « &gt;  » : &gt; texte</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Préfixe</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Avant : texte
Après, avec « &gt;  » : &gt; texte</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Ajouter un suffixe</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Avant : texte
Après, avec « ! » : texte!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Suffixe</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Avant : texte
Après, avec « ! » : texte!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Recoller les lignes mal coupées</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Avant : Cette ligne a été↵coupée au milieu.
Après : Cette ligne a été·coupée au milieu.
Les listes, tableaux et adresses sont réunis aussi.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Réparer un mauvais encodage</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Avant : cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Après : café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Réunir les mots coupés en fin de ligne</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Avant : un mot véri-↵fié, un porte-↵voix
Après : un mot vérifié, un porte-voix</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Sans numéros de page ni titres courants</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Avant : ce qui figure en haut ou en bas de chaque page,
séparée par un saut de page, est dans le texte.
Après : il n’y est plus.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Sans appels de note</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Avant : une théorie4 et sa preuve.5
Après : une théorie et sa preuve.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Remettre en forme le texte d’un terminal</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Avant : │ Une phrase↵│ sur deux lignes. │
Après : Une phrase·sur deux lignes.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Laisser le code, les tableaux et les listes tels quels</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Avant : une liste devient une seule ligne et le code est abîmé.
Après : seul le texte courant est nettoyé. Puces, retraits, code, tableaux et adresses restent.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Les lignes sont jointes par</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Avant (rien) : a↵b devient ab
Après (espace) : a↵b devient a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Changer les sauts de ligne</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Avant : un↵↵↵deux
Après (un saut de ligne) : un↵deux</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Les sauts de ligne deviennent</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Avant (un saut de ligne) : un↵deux
Après (espace) : un·deux</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Premier texte personnalisé</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Avant : un↵deux
Après, avec « -  » : un↵- deux</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Second texte personnalisé</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Avant : un
Après, avec [b] et [/b] : [b]un[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Rogner les deux bouts du texte</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Avant : ··texte··
Après : texte</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Nettoyer les caractères</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Avant : ﬁ‹U+200B›x‹U+00A0›y
Après : fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Garder les caractères de commande</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Avant : a␛[1mb␛[0m → ab
Après : a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Garder les caractères d’étiquette</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Avant : a‹U+E0041›b → ab
Après : a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Garder les caractères à usage privé</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Avant : a‹U+E000›b → ab
Après : a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Garder les traits d’union conditionnels</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Avant : a‹U+00AD›b → ab
Après : a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Garder les sélecteurs de variante</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Avant : a‹U+FE0F›b → ab
Après : a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Garder les marques de direction</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Avant : a‹U+200E›b → ab
Après : a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Garder les caractères sans chasse</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Avant : a‹U+200B›b → ab
Après : a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Garder les ligatures</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Avant : ﬁ → fi
Après : ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Garder les espaces spéciales</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Avant : a‹U+00A0›b → a·b
Après : a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Lettres pleine chasse en lettres étroites</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Avant : Ａ１
Après : A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Lettre et accent en un caractère (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Avant : e + ◌́
Après : é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Guillemets, tirets et points simples</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Avant : “a”—b…
Après : "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Retirer les marques Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Avant : ## a↵- **b** `c`
Après : a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Changer la casse</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Avant : BONJOUR. TOI.
Après (majuscule en début de phrase) : Bonjour. Toi.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Casse</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Avant (majuscules) : BONJOUR
Après (minuscules) : bonjour</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Changer les guillemets</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Avant : ‘texte’
Après (simples en doubles) : “texte”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Avant (simples en doubles) : ‘texte’
Après : “texte”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Guillemets simples</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Avant : &apos;texte&apos;
Après, avec ‚…‘ : ‚texte‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Guillemets doubles</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Avant : &quot;texte&quot;
Après, avec „…“ : „texte“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Guillemets de tous les styles</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Avant : «texte» reste tel quel.
Après : «texte» est changé aussi.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Supprimer les guillemets simples</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Avant : ‘texte’
Après : texte</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Simples de tous les styles</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Avant : ‹texte› reste tel quel.
Après : texte</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Supprimer les guillemets doubles</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Avant : “texte”
Après : texte</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Doubles de tous les styles</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Avant : «texte» reste tel quel.
Après : texte</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Supprimer les puces</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Avant : •·lait↵•·pain
Après : lait↵pain
Les puces au milieu des lignes partent aussi.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Supprimer les marques de réponse</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Avant : &gt;·&gt;·Bonjour
Après : Bonjour
Tous les &gt; partent, même au milieu des lignes, et avec eux la fin de chaque balise HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Supprimer les balises HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Avant : &lt;b&gt;gras&lt;/b&gt;
Après : gras
« Supprimer les marques de réponse » passe avant et prend le &gt; des balises : tout le texte peut alors disparaître.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Les scripts aussi</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Avant : le texte d’un &lt;script&gt; reste.
Après : il disparaît avec sa balise.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Nettoyer les liens</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Avant : https://example.org/a?id=7&amp;utm_source=mail
Après : https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Autres règles</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Un fichier avec d’autres règles, au format de ClearURLs.
Sans lui, la liste de Nerlo Pro s’applique.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Utiliser votre propre motif</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Avant, avec [0-9] : a1b2
Après (supprimer) : ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Une expression rationnelle.
Avant, avec [0-9] : a1b2
Après (supprimer) : ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Ce n’est pas une expression rationnelle valide : elle ne trouve rien.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Ignorée lors du dernier nettoyage : trop de travail pour ce texte.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Règles ignorées, car elles demandent trop de travail pour ce texte : %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Correspondances</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Avant (supprimer [0-9]) : a1b2 devient ab
Après (chercher [0-9]) : a1b2 devient 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Espaces, tabulations et sauts de ligne en une espace</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Remplacement 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Remplacement 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Remplacement 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Remplacement 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Remplacement 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Remplacement 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Remplacement 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Remplacement 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Remplacement 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Remplacement 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Avant : clef
Après, avec « clef » et « clé » : clé</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>Le texte à chercher.
Avant : clef
Après, avec « clef » et « clé » : clé</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Ce qui prend sa place ; vide, le texte est supprimé.
Avant : clef
Après, avec « clef » et « clé » : clé</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Retrait</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Balise</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Appliquer la liste de remplacements</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Avant : M. Martin
Après, avec M. → Monsieur : Monsieur Martin</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Une liste pour tous les profils</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Avant : chaque profil a sa propre liste.
Après : tous les profils partagent une liste.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Règles, de la première à la dernière</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Les règles s’appliquent de haut en bas. Faites glisser une règle, ou appuyez sur Alt+Haut et Alt+Bas, pour la déplacer.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Commencez par {search} pour ne garder que ce que trouve le motif, ou par {delete} pour le supprimer.
Avant, avec [0-9] et {search}# : a1b2
Après : 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Ajouter une règle</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Ajoute une règle à la fin de la liste.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Supprimer la règle</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Supprime la règle choisie.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Monte la règle choisie, pour qu’elle s’applique plus tôt.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Descend la règle choisie, pour qu’elle s’applique plus tard.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Nouvelle règle</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Choisissez la règle à supprimer</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Choisissez une règle</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Texte de remplacement</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Indique si la règle est appliquée.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Ce que la règle cherche : un texte, ou un motif si son type le dit.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Un texte est cherché tel quel ; un motif est une expression régulière.
Sans test : quand seules les correspondances restent, un texte qui n’en a pas devient vide.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Combien de fois la règle trouve quelque chose dans le texte de l’aperçu.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Motif : remplacer</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Motif : garder les correspondances</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Motif : remplacer, sans test</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Motif : garder les correspondances, sans test</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>Le motif n’a pas de sens au caractère %@ et ne trouve donc rien.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Ne trouve rien dans le texte de l’aperçu.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Trouvé dans le texte de l’aperçu : %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>L’exemple %@ n’est pas respecté. La règle en fait ceci : %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Exemples de la règle sélectionnée</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Ce que la règle doit faire d’un texte. Tous sont essayés à chaque modification.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Respecté</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Non respecté</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Ajouter un exemple</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Prend le premier endroit de l’aperçu que la règle trouve, à vérifier.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Copie et colle des règles, importe et exporte des listes et en propose de toutes prêtes.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Dates en ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Virgules décimales en points</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Retirer les numéros de notes</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Retirer les invites du shell</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Ponctuation typographique en simple</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Copier la règle</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Coller des règles</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Importer une liste…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Exporter la liste…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Ce que la liste « %@ » fait de vos règles :</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Ajoutée</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Modifiée</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Inchangée</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Ce n’est pas une liste de règles lisible.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>La liste n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>Il n’y a pas de règles dans le presse-papiers.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Supprimé.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Annule cela.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inversé</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Saut de ligne</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Position du pointeur</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tabulation en 4 espaces, 4 espaces en tabulation</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 points en points de suspension, points de suspension en 3 points</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>rien, espace</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>rien, un saut de ligne, deux sauts de ligne, espace, saut et espace, saut et tabulation, saut et texte personnalisé, paragraphes HTML, balises HTML d’image, texte personnalisé autour des lignes</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>majuscule en début de phrase, majuscule à chaque mot, minuscules, majuscules</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>simples en doubles, doubles en simples</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>supprimer, chercher</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Montre ce que font les options. Rien n’atteint le presse-papiers avant que vous ne le demandiez.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Saisissez ou collez ici un texte pour y essayer les options.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>Le texte nettoyé par les options. Ce qui a changé est marqué.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Saisissez un texte, ou prenez celui du presse-papiers</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Prendre du presse-papiers</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Copie le texte du presse-papiers dans l’aperçu.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Nettoyer le presse-papiers</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Nettoie maintenant le texte du presse-papiers avec ces options.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>Le texte avant l’étape choisie, ou ce qui a changé dans un long texte. Il ne peut pas être modifié ici.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Saisir un autre texte</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Retire le long texte de l’aperçu, pour que vous puissiez en saisir un autre.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Les étapes qui ont changé quelque chose, avec le nombre de changements. Choisissez-en une pour voir ce qu’elle a fait seule ; choisissez-la encore pour tout voir.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Toutes les étapes</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, changements : %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Un long texte : seules les parties changées sont affichées.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>« %@ » a pris les &gt; des balises HTML avant le tour de « %@ ». Désactivez l’une des deux.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ lignes sans changement : %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ caractères : %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ autres changements : %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>Le texte est trop long pour l’aperçu ; seul son début est affiché.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>Il n’y a pas de texte dans le presse-papiers.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Chers  lecteurs .

&gt;  Cette ligne a été
&gt;  coupée au milieu.

•  Prendre le lait ‹ frais ›.
•  Prendre le pain ‹ complet ›...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Paragraphes</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Cliquer pour fermer</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Astuce %1 sur %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Afficher les astuces à chaque démarrage</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Avant : les astuces s’ouvrent seulement depuis le menu.
Après : elles s’ouvrent à chaque démarrage de Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Nouveautés de Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Copier, nettoyer, coller

Copiez un texte, choisissez « %@ » dans le menu de l’icône ou appuyez sur son raccourci, puis collez. Les préférences disent ce qui est nettoyé ; l’aperçu le montre sur un texte.

### De lui-même

« %@ » nettoie chaque copie. Les liens, fichiers, images et mots de passe restent tels quels.

### Revenir à l’original

« %@ » ramène ce qui a été copié, avec sa mise en forme, pendant dix minutes.

### Une seule opération

Le menu a chaque opération à part. Avec `nerlo-pro --choose`, tapez ce que vous cherchez, voyez le résultat et appuyez sur Entrée.

### Profils

Un profil est un jeu d’options. On en change dans le menu ou en haut des préférences.

### Touches dans les préférences

Ctrl+F cherche des options, Ctrl+Z annule, F1 ouvre cette aide.

### Quand quelque chose ne marche pas

`nerlo-pro --doctor` dans un terminal dit ce qui manque à ce bureau, `nerlo-pro --why` ce qu’est devenue la dernière copie. Le reste est dans `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Afficher les astuces</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Des profils prêts**: pour PDF, courrier, pages web, terminal, réponses d’un assistant et code.
- **Le bon profil de lui-même**: un tableau de la page Général dit quel profil nettoie quelle copie.
- **Code, tableaux et listes**: peuvent rester tels quels.
- **Nouvelles opérations**: sorties de terminal, mauvais codage, caractères invisibles, mots coupés et liens.
- **Le sélecteur**: `nerlo-pro --choose` trouve une opération à la frappe et montre le texte avant et après.
- **Rechercher et remplacer**: les règles ont des exemples et des compteurs, se copient, s’importent et s’exportent.
- **L’aperçu**: nomme l’étape qui a fait un changement et mène à son option.
- **Annuler**: Ctrl+Z reprend les changements d’options, de règles et de profils.
- **Restaurer**: nomme ce qui revient.
- **Les raccourcis**: portent les noms des touches et marchent sous KDE avec Wayland.
- **Dans le terminal**: `nerlo check`, `--explain`, tubes sans fin, JSON Lines et une bibliothèque pour C et Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Copiez, c’est propre</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro vit dans la zone de notification. Il change ce que vous copiez en texte propre et brut : ni espaces en trop, ni lignes coupées, ni mise en forme.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>À la demande ou tout seul</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Choisissez « Effacer la mise en forme du presse-papiers » dans le menu, appuyez sur son raccourci, ou laissez « Effacer la mise en forme automatiquement » nettoyer chaque copie.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Voir avant de nettoyer</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Les préférences montrent un texte avant et après. Cochez une option et regardez ce qu’elle fait ; le presse-papiers reste tel quel.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Un profil pour chaque tâche</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Gardez un jeu d’options pour le courrier, un autre pour le code. Passez de l’un à l’autre depuis le menu de la zone de notification.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Vos propres règles</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>La liste de remplacements applique vos règles dans l’ordre. Faites glisser une règle pour la déplacer ; les motifs sont acceptés aussi.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Rien n’est perdu</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>« Restaurer l’original » dans le menu remet ce qui se trouvait dans le presse-papiers, avec sa mise en forme.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – nettoie chaque copie</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – quelque chose ne fonctionne pas ici</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Nettoie le texte du presse-papiers.
Version %1
Licence MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Il n’y a pas d’original à remettre.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>Le presse-papiers a changé ; l’original n’a pas été remis.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>L’original est de retour, mais certains de ses formats n’ont pas pu être lus à temps.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>L’original dépassait %1 Mo et n’a donc pas été conservé.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>Le nettoyage date de plus de %1 minutes : l’original n’est plus conservé.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>Le texte du presse-papiers dépasse %1 Mo et n’a donc pas été nettoyé.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Doux</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Page web</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Réponse d’un assistant</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Code préservé</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (prêt)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Commence par</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Rien : toutes les options sont désactivées</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Une copie de « %@ »</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Nettoyé comme : %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Changé : %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabulations</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Espaces</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Casse</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Guillemets</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Marques de réponse</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Balises</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Remplacements</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Puces</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Traits d’union</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Ajouts</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Encodage</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Quelles règles le nettoyage doit-il appliquer ?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Toutes : sauts de ligne, guillemets et puces sont arrangés</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Doux : espaces et lignes coupées seulement ; code, tableaux et listes restent</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Quel profil nettoie quelle copie</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>La première ligne cochée qui convient à une copie décide ; si aucune ne convient, le profil choisi la nettoie.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Ajouter une ligne</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Ajoute une ligne à la fin du tableau.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Supprimer la ligne</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Supprime la ligne choisie.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Monte la ligne choisie, pour qu’elle soit examinée plus tôt.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Descend la ligne choisie, pour qu’elle soit examinée plus tard.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Ressemble à</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Ce à quoi ressemble le texte copié.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>Le programme au premier plan lors de la copie, comme « nerlo-pro --why » le nomme ; * remplace toute suite. Tous les bureaux ne le disent pas.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>Le site d’où un navigateur a copié, par exemple example.org ; * désigne toute page.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Un format que la copie propose, par exemple text/rtf ; * remplace toute suite.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Ce qui nettoie une telle copie, ou qu’elle reste intacte.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Toute copie</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Texte d’un terminal</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Du code</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Un tableau</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Un lien</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>laisser intacte</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Choisir quoi faire du presse-papiers</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Ouvre une petite fenêtre près du pointeur : tapez pour trouver une opération, un profil ou des règles, voyez l’effet et appuyez sur Entrée.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Trouver une opération, un profil ou des règles</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Des mots de son nom ; les flèches choisissent parmi les résultats</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Ce qui est possible</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Entrée met le résultat dans le presse-papiers</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Profil fourni</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Règles de tous les profils</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Règles de « %@ »</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>Le texte du presse-papiers</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>Ce qu’il deviendrait</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Entrée : vers le presse-papiers · Échap : ne rien changer</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Entrée : vers le presse-papiers · Maj+Entrée : coller aussi · Échap : ne rien changer</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Choisissez d’autres touches à la page « %@ » des préférences.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>nettoyer</translation>
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
        <translation>Effacer la mise en forme automatiquement</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Nettoyer dès la copie</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Ne pas garder l’original</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Sauf les copies depuis Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Restaurer l’original</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurer « %1 »</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Opérations seules</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Astuces</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Noter Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>Écrire au développeur</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Quitter Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Masquer Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Jamais dans ce programme</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Jamais dans « %1 »</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Inutilisable</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Enregistrer un raccourci</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>non défini</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Tapez le raccourci</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Garder l’ancien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Supprimer le raccourci</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inser</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used!</source>
        <translation>La combinaison de touches « %@ » ne peut pas être utilisée !</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>La combinaison de touches « %@ » ne peut pas être utilisée, car elle sert déjà de raccourci clavier à tout le système. Si vous tenez à cette combinaison, la plupart des raccourcis peuvent être changés dans la section Clavier des paramètres du système.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>La combinaison de touches « %@ » ne peut pas être utilisée, car elle sert déjà à l’élément de menu « %@ ».</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME utilise une version plus ancienne de l’extension « Nerlo Pro ». Fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>L’extension « Nerlo Pro » de GNOME ne répond pas.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Un raccourci doit contenir Ctrl ou Super, ou une touche de fonction.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Un autre programme a pris cette combinaison de touches.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Un autre raccourci de ce programme a les mêmes touches.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Il a été refusé dans la boîte de dialogue du bureau.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Ce bureau n’a pas de portail GlobalShortcuts. Associez « nerlo-pro --operation N » ou « nerlo-pro --clean » à une touche dans ses propres réglages du clavier.</translation>
    </message>
</context>
</TS>
