<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>General</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Espacios y tabuladores</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Letras y comillas</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Viñetas, etiquetas, patrón</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Diez sustituciones</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Buscar y reemplazar</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Buscar opciones</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Escriba una palabra para encontrar todas las opciones relacionadas con ella.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Ninguna opción tiene que ver con «%@».</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>El conjunto de opciones que se usa. También se cambia en el menú de la bandeja.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Añadir perfil</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Añade un perfil: vacío, una copia o uno de los listos.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Quitar perfil</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Quita el perfil seleccionado. «Restaurar» lo recupera.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Gestionar…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Muestra la lista de perfiles para cambiarles el nombre, copiarlos, ordenarlos, importarlos y exportarlos.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>El perfil seleccionado es el que se usa. F2 le cambia el nombre, Alt+Arriba y Alt+Abajo lo mueven, Supr lo quita. Aquí se pueden soltar archivos de perfiles.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Añade una copia del perfil seleccionado al final de la lista.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Da otro nombre al perfil seleccionado. La tabla de copias lo sigue.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Sube el perfil seleccionado, aquí y en los menús.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Baja el perfil seleccionado, aquí y en los menús.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Restablecer a</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Da otros valores al perfil seleccionado: los de un primer inicio o los de un perfil listo. Lo que era se puede restaurar.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Valores de un primer inicio</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Escribe el perfil seleccionado en un archivo, para otro equipo u otra persona.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Añade los perfiles de un archivo. Ninguno se reemplaza.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Recupera uno de los últimos perfiles quitados.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Añadido: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>No se pudo leer el perfil.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>No se pudo escribir el perfil.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Atajo que lo selecciona</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>En cualquier programa, este atajo hace que se use el perfil seleccionado. El menú lo muestra.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Seleccionar el perfil «%@»</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Escriba el nombre del nuevo perfil y pulse Aceptar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel excluido</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Con la opción «Quitar el formato automáticamente»</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Atajo: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Un atajo que funciona en todas las aplicaciones.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Restablecer todos los atajos</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Cada orden recibe el atajo del primer inicio; la mayoría no tiene ninguno.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Restablecer el atajo: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Como en el primer inicio.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Se han restablecido todos los atajos.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>El sistema rechazó este atajo. Puede que otro programa lo use.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Este escritorio no ofrece atajos a los programas. Asigne uno a la orden «%@» en sus propios ajustes.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Este escritorio no muestra una bandeja, así que esta ventana se abre en cada inicio.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>No se puede leer «%@».</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>Su contenido empieza de nuevo. El archivo dañado se conserva al lado, con «.unreadable-» y la hora en su nombre.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>Los ajustes no se han guardado:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Los perfiles no se han guardado:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>No se pudo cambiar el inicio con la sesión:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>El archivo de reglas para enlaces no se usa:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Iniciar Nerlo Pro con la sesión</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Antes: usted inicia Nerlo Pro a mano.
Después: está ahí en cuanto inicia la sesión.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Mostrar en la bandeja</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Antes: Nerlo Pro tiene una entrada en la barra de tareas.
Después: tiene un icono con menú en la bandeja.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Ejecutar en segundo plano</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Antes: icono en la bandeja o entrada en la barra de tareas.
Después: ninguno de los dos. Iniciar Nerlo Pro otra vez abre esta ventana.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Mantener por encima</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Antes: otras ventanas pueden tapar esta.
Después: esta ventana queda por encima de ellas.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Antes: usted decide cuándo se limpia el portapapeles.
Después: cada copia se limpia sola.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>No disponible: esta versión se creó sin una dirección para ello.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Antes: una copia se limpia en medio segundo.
Después: una copia se limpia al instante.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Antes: el original se conserva diez minutos para restaurarlo.
Después: al otro programa solo se le pide el texto y no se puede restaurar nada.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Antes: las celdas copiadas se convierten en texto sin formato.
Después: las celdas de una hoja de cálculo quedan como están.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Quitar el formato del portapapeles</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Antes: «Hola·····mundo», negrita
Después: «Hola·mundo», simple</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Ventana e inicio</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Ordenar líneas</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Antes: pera↵manzana
Después: manzana↵pera</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Antes (A-Z): manzana↵pera
Después (Z-A): pera↵manzana</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Los elementos acaban en</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Antes (Salto de línea): b,a
Después («,»): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Separador personalizado</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Antes: b/a
Después, con /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Eliminar líneas duplicadas</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Antes: té↵té↵leche
Después: té↵leche</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Los elementos acaban en</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Antes (Salto de línea): a,a
Después («,»): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Separador personalizado</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Antes: a/a
Después, con /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Mostrar las estadísticas después de limpiar</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Contar el portapapeles</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Antes: nada le dice qué se copió.
Después: una ventanita cuenta caracteres, espacios, palabras y párrafos.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Cerrar sola</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Antes: la ventana queda hasta que hace clic en ella.
Después: se cierra al cabo de unos segundos.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Cuánto tiempo permanece la ventana.
Antes, con 3: tres segundos
Después, con 10: diez segundos</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Antes (Posición del puntero): junto al puntero
Después (Arriba a la derecha): en esa esquina de la pantalla</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Decir qué cambió más</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Antes: la ventana solo cuenta.
Después: Cambios: Espacios 12, Comillas 4, Líneas 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Varios espacios en uno</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Antes: a····b
Después: a·b
También se van las columnas y las sangrías.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Varios tabuladores en uno</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Antes: a⇥⇥⇥b
Después: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Convertir tabuladores y cuatro espacios</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Antes: ⇥a
Después: ····a, o al revés</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Antes (Tabulador en 4 espacios): ⇥a
Después: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Convertir tres puntos y puntos suspensivos</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Antes: Espera...
Después: Espera…, o al revés</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Antes (3 puntos en puntos suspensivos): Espera...
Después: Espera…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Eliminar el espacio antes de un punto</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Antes: Fin·.
Después: Fin.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Eliminar espacios alrededor de tabuladores</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Antes: a·⇥·b
Después: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Eliminar espacios alrededor de saltos de línea</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Antes: uno·↵·dos
Después: uno↵dos
También se van las sangrías, incluso las del código y las listas.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Eliminar todos los espacios</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Antes: a·b·c
Después: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Eliminar todos los tabuladores</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Antes: a⇥b⇥c
Después: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Antes: a·⇥·b↵c
Después: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Eliminar guiones a final de línea</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Antes: sepa-↵rado
Después: separado</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Eliminar todos los guiones, rayas y signos menos</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Antes: franco-alemán
Después: francoalemán</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Añadir un prefijo</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Antes: texto
Después, con «&gt; »: &gt; texto</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Prefijo</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Antes: texto
Después, con «&gt; »: &gt; texto</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Añadir un sufijo</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Antes: texto
Después, con «!»: texto!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Sufijo</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Antes: texto
Después, con «!»: texto!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Unir líneas mal cortadas</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Antes: Esta línea se↵cortó por la mitad.
Después: Esta línea se·cortó por la mitad.
También se unen listas, tablas y direcciones.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Reparar la codificación errónea</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Antes: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Después: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Unir palabras cortadas al final de línea</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Antes: una palabra veri-↵ficada, físico-↵química
Después: una palabra verificada, físico-química</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Sin números de página ni títulos repetidos</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Antes: lo que está arriba o abajo en cada página,
separadas por saltos de página, está en el texto.
Después: ya no está.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Sin cifras de notas al pie</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Antes: una teoría4 y su prueba.5
Después: una teoría y su prueba.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Recomponer texto de un terminal</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Antes: │ Una frase↵│ en dos líneas. │
Después: Una frase·en dos líneas.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Dejar el código, las tablas y las listas como están</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Antes: una lista acaba en una sola línea y el código se estropea.
Después: solo se limpia el texto corrido. Las marcas, las sangrías, el código, las tablas y las direcciones se quedan.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>Las líneas se unen con</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Antes (nada): a↵b pasa a ser ab
Después (espacio): a↵b pasa a ser a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Cambiar los saltos de línea</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Antes: uno↵↵↵dos
Después (un salto de línea): uno↵dos</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>Los saltos de línea pasan a</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Antes (un salto de línea): uno↵dos
Después (espacio): uno·dos</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Primer texto personalizado</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Antes: uno↵dos
Después, con «- »: uno↵- dos</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Segundo texto personalizado</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Antes: uno
Después, con [b] y [/b]: [b]uno[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Recortar ambos extremos del texto</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Antes: ··texto··
Después: texto</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Limpiar caracteres</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Antes: ﬁ‹U+200B›x‹U+00A0›y
Después: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Conservar caracteres de control</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Antes: a␛[1mb␛[0m → ab
Después: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Conservar caracteres de etiqueta</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Antes: a‹U+E0041›b → ab
Después: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Conservar caracteres de uso privado</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Antes: a‹U+E000›b → ab
Después: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Conservar guiones opcionales</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Antes: a‹U+00AD›b → ab
Después: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Conservar selectores de variación</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Antes: a‹U+FE0F›b → ab
Después: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Conservar marcas de dirección</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Antes: a‹U+200E›b → ab
Después: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Conservar caracteres de ancho cero</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Antes: a‹U+200B›b → ab
Después: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Conservar ligaduras</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Antes: ﬁ → fi
Después: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Conservar espacios especiales</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Antes: a‹U+00A0›b → a·b
Después: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Letras de ancho completo a estrechas</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Antes: Ａ１
Después: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Letra y acento en un carácter (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Antes: e + ◌́
Después: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Comillas, rayas y puntos simples</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Antes: “a”—b…
Después: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Quitar las marcas de Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Antes: ## a↵- **b** `c`
Después: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Cambiar mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Antes: HOLA. TÚ.
Después (mayúscula inicial de frase): Hola. Tú.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Antes (mayúsculas): HOLA
Después (minúsculas): hola</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Cambiar las comillas</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Antes: ‘texto’
Después (simples a dobles): “texto”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Sentido</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Antes (simples a dobles): ‘texto’
Después: “texto”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Comillas simples</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Antes: &apos;texto&apos;
Después, con ‚…‘: ‚texto‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Comillas dobles</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Antes: &quot;texto&quot;
Después, con „…“: „texto“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Comillas de todos los estilos</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Antes: «texto» queda como está.
Después: «texto» también se cambia.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Eliminar las comillas simples</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Antes: ‘texto’
Después: texto</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Simples de todos los estilos</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Antes: ‹texto› queda como está.
Después: texto</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Eliminar las comillas dobles</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Antes: “texto”
Después: texto</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Dobles de todos los estilos</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Antes: «texto» queda como está.
Después: texto</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Eliminar viñetas</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Antes: •·leche↵•·pan
Después: leche↵pan
También se van las viñetas dentro de las líneas.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Eliminar marcas de respuesta</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Antes: &gt;·&gt;·Hola
Después: Hola
Se va cada &gt;, también dentro de las líneas, y con él el final de cada etiqueta HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Eliminar etiquetas HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Antes: &lt;b&gt;negrita&lt;/b&gt;
Después: negrita
«Eliminar marcas de respuesta» actúa antes y quita el &gt; de las etiquetas: entonces puede perderse todo el texto.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>También los scripts</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Antes: el texto de un &lt;script&gt; queda.
Después: desaparece con su etiqueta.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Limpiar enlaces</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Antes: https://example.org/a?id=7&amp;utm_source=mail
Después: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Más reglas</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Un archivo con más reglas, en el formato de ClearURLs.
Sin él vale la lista propia de Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Elegir un archivo…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Usar su propio patrón</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Antes, con [0-9]: a1b2
Después (eliminar): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Una expresión regular.
Antes, con [0-9]: a1b2
Después (eliminar): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>No es una expresión regular válida, así que no encuentra nada.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Omitida en la última limpieza: exige demasiado trabajo con ese texto.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Reglas omitidas porque exigen demasiado trabajo con este texto: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Coincidencias</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Antes (eliminar [0-9]): a1b2 pasa a ser ab
Después (buscar [0-9]): a1b2 pasa a ser 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Espacios, tabuladores y saltos de línea en un espacio</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Sustitución 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Sustitución 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Sustitución 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Sustitución 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Sustitución 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Sustitución 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Sustitución 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Sustitución 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Sustitución 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Sustitución 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Antes: obscuro
Después, con «obscuro» y «oscuro»: oscuro</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>El texto que se busca.
Antes: obscuro
Después, con «obscuro» y «oscuro»: oscuro</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>Lo que ocupa su lugar; si está vacío, el texto se elimina.
Antes: obscuro
Después, con «obscuro» y «oscuro»: oscuro</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Sangría</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Aplicar la lista de buscar y reemplazar</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Antes: Sr. García
Después, con Sr. → Señor: Señor García</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Una lista para todos los perfiles</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Antes: cada perfil tiene su propia lista.
Después: todos los perfiles comparten una lista.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Reglas, de la primera a la última</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>Las reglas se aplican de arriba abajo. Arrastre una regla, o pulse Alt+Arriba y Alt+Abajo, para moverla.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Empiece con {search} para conservar solo lo que encuentra el patrón, o con {delete} para eliminarlo.
Antes, con [0-9] y {search}#: a1b2
Después: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Añadir una regla</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Añade una regla al final de la lista.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Eliminar la regla</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Elimina la regla seleccionada.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Sube la regla seleccionada para que se aplique antes.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Baja la regla seleccionada para que se aplique después.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Regla nueva</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Seleccione la regla que quiere eliminar</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Seleccione una regla</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Texto de reemplazo</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Si la regla se aplica.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>Lo que busca la regla: un texto, o un patrón si su tipo lo indica.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Un texto se busca tal cual; un patrón es una expresión regular.
Sin comprobar: cuando solo se conservan las coincidencias, un texto que no tiene ninguna queda vacío.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Hallado</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Cuántas veces encuentra algo la regla en el texto de la vista previa.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Patrón: reemplazar</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Patrón: conservar coincidencias</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Patrón: reemplazar, sin comprobar</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Patrón: conservar coincidencias, sin comprobar</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>El patrón no tiene sentido en el carácter %@, así que no encuentra nada.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>No encuentra nada en el texto de la vista previa.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Hallado en el texto de la vista previa: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>El ejemplo %@ no se cumple. La regla hace esto con él: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Ejemplos de la regla seleccionada</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>Lo que la regla debe hacer con un texto. Todos se prueban en cada cambio.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Se cumple</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>No se cumple</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Añadir un ejemplo</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Toma el primer lugar de la vista previa que encuentra la regla, para revisarlo.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Copia y pega reglas, importa y exporta listas y ofrece algunas ya hechas.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Fechas a ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Comas decimales a puntos</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Quitar números de notas al pie</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Quitar indicadores del terminal</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Puntuación tipográfica a simple</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Copiar la regla</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Pegar reglas</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Importar una lista…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Exportar la lista…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>Lo que la lista «%@» hace con sus reglas:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Añadida</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Cambiada</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Se queda</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Esto no es una lista de reglas legible.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>No se pudo escribir la lista.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>No hay reglas en el portapapeles.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Eliminado.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Deshace esto.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inverso</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aleatorio</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Salto de línea</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Posición del puntero</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tabulador en 4 espacios, 4 espacios en tabulador</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 puntos en puntos suspensivos, puntos suspensivos en 3 puntos</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nada, espacio</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nada, un salto de línea, dos saltos de línea, espacio, salto y espacio, salto y tabulador, salto y texto personalizado, párrafos HTML, etiquetas HTML de imagen, texto personalizado alrededor de las líneas</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>mayúscula inicial de frase, mayúscula en cada palabra, minúsculas, mayúsculas</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>simples a dobles, dobles a simples</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>eliminar, buscar</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Muestra lo que hacen las opciones. Nada llega al portapapeles hasta que usted lo pida.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Escriba o pegue aquí cualquier texto para probar las opciones.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>El texto tal como lo limpian las opciones. Lo que cambió está marcado.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Escriba un texto, o tome el del portapapeles</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Tomar del portapapeles</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Copia el texto del portapapeles en la vista previa.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Limpiar el portapapeles</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Limpia ahora el texto del portapapeles con estas opciones.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>El texto antes del paso elegido, o lo que cambió en un texto largo. Aquí no se puede editar.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Escribir otro texto</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Quita el texto largo de la vista previa para que pueda escribir otro.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Los pasos que cambiaron algo, con el número de cambios. Elija uno para ver lo que hizo por sí solo; elíjalo otra vez para verlo todo.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Todos los pasos</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, cambios: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Un texto largo: solo se muestran las partes que cambiaron.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>«%@» quitó los &gt; de las etiquetas HTML antes de que les llegara el turno de «%@». Desactive una de las dos.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ líneas sin cambios: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ caracteres: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ más cambios: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>El texto es demasiado largo para la vista previa; solo se muestra el comienzo.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>No hay texto en el portapapeles.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Estimado  lector .

&gt;  Esta línea se
&gt;  cortó por la mitad.

•  Comprar leche ‘fresca’.
•  Comprar pan ‘integral’...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Espacios</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Párrafos</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Clic para cerrar</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Consejo %1 de %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Mostrar los consejos en cada inicio</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Antes: los consejos solo se abren desde el menú.
Después: se abren cada vez que se inicia Nerlo Pro.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Novedades de Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Copiar, limpiar, pegar

Copie un texto, elija «%@» en el menú de la bandeja o pulse su atajo, y pegue. Las preferencias dicen qué se limpia; la vista previa lo muestra en un texto.

### Por sí solo

«%@» limpia cada copia. Los enlaces, archivos, imágenes y contraseñas no se tocan.

### Volver al original

«%@» devuelve lo que se copió, con su formato, durante diez minutos.

### Una sola operación

El menú tiene cada operación por separado. Con `nerlo-pro --choose` escriba lo que busca, vea el resultado y pulse Intro.

### Perfiles

Un perfil es un conjunto de opciones. Se cambia en el menú o arriba en las preferencias.

### Teclas en las preferencias

Ctrl+F busca opciones, Ctrl+Z deshace, F1 abre esta ayuda.

### Cuando algo no funciona

`nerlo-pro --doctor` en un terminal dice qué le falta a este escritorio, `nerlo-pro --why` qué fue de la última copia. Lo demás está en `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Mostrar los consejos</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Perfiles listos**: para PDF, correo, páginas web, terminal, respuestas de un asistente y código.
- **El perfil adecuado por sí solo**: una tabla en la página General dice qué perfil limpia qué copia.
- **Código, tablas y listas**: pueden quedarse como están.
- **Operaciones nuevas**: salida de terminal, codificación errónea, caracteres invisibles, palabras cortadas y enlaces.
- **El selector**: `nerlo-pro --choose` encuentra una operación mientras escribe y muestra el texto antes y después.
- **Buscar y reemplazar**: las reglas tienen muestras y recuentos, y se copian, importan y exportan.
- **La vista previa**: dice qué paso hizo un cambio y lleva a su opción.
- **Deshacer**: Ctrl+Z revierte cambios de opciones, reglas y perfiles.
- **Restaurar**: dice qué devuelve.
- **Atajos**: se llaman como las teclas y funcionan en KDE con Wayland.
- **En el terminal**: `nerlo check`, `--explain`, tuberías sin fin, JSON Lines y una biblioteca para C y Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Copie, y ya está limpio</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro vive en la bandeja. Convierte lo que copia en texto limpio y sin formato: sin espacios de más ni líneas cortadas.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>A mano o solo</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Elija «Quitar el formato del portapapeles» en el menú, pulse su atajo, o deje que «Quitar el formato automáticamente» limpie cada copia.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Ver antes de limpiar</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>Las preferencias muestran un texto antes y después. Marque una opción y vea lo que hace; el portapapeles queda como está.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Un perfil para cada tarea</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Tenga un conjunto de opciones para el correo y otro para el código. Cambie de uno a otro en el menú de la bandeja.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Sus propias reglas</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>La lista de buscar y reemplazar aplica sus reglas en orden. Arrastre una regla para moverla; también sirven los patrones.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Nada se pierde</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>«Restaurar el original», en el menú, devuelve al portapapeles lo que había antes, con su formato.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – limpia cada copia</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – algo no funciona aquí</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Limpia el texto del portapapeles.
Versión %1
Licencia MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>No hay un original que restaurar.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>El portapapeles ha cambiado, así que no se restauró el original.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>El original ha vuelto, pero algunos de sus formatos no se pudieron leer a tiempo.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>El original ocupaba más de %1 MB, así que no se conservó.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>La limpieza fue hace más de %1 minutos, así que el original ya no se conserva.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>El texto del portapapeles ocupa más de %1 MB, así que no se limpió.</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>Suave</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>Respuesta de un asistente</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Código intacto</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (listo)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Empieza con</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Nada: todas las opciones desactivadas</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Una copia de «%@»</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Limpiado como: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Cambios: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabulaciones</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Espacios</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Comillas</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Marcas de respuesta</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Reemplazos</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Viñetas</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Guiones</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Añadidos</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Codificación</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>¿Qué reglas debe aplicar la limpieza?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Todas: se arreglan saltos de línea, comillas y viñetas</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Suave: solo espacios y líneas cortadas; código, tablas y listas se quedan</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Qué perfil limpia qué copia</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Decide la primera fila marcada que encaja con una copia; si ninguna encaja, la limpia el perfil elegido.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Añadir una fila</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Añade una fila al final de la tabla.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Eliminar la fila</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Elimina la fila elegida.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Sube la fila elegida para que se consulte antes.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Baja la fila elegida para que se consulte después.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Parece</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>Lo que parece el texto copiado.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>El programa que estaba delante al copiar, como lo llama «nerlo-pro --why»; * vale por cualquier resto. No todos los escritorios lo dicen.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>El sitio del que copió un navegador, como example.org; * es cualquier página.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Un formato que ofrece la copia, como text/rtf; * vale por cualquier resto.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>Lo que limpia una copia así, o que se deja como está.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Cualquier copia</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Texto de un terminal</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Una tabla</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Un enlace</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>dejar como está</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Elegir qué hacer con el portapapeles</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Abre una pequeña ventana junto al puntero: escriba para encontrar una operación, un perfil o reglas, vea el efecto y pulse Intro.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Buscar una operación, un perfil o reglas</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Palabras de su nombre; las flechas eligen entre lo encontrado</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>Lo que se puede hacer</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Intro pone el resultado en el portapapeles</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Perfil incluido</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Reglas de todos los perfiles</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Reglas de «%@»</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>El texto del portapapeles</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>En qué se convertiría</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Intro: al portapapeles · Esc: dejarlo todo como estaba</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Intro: al portapapeles · Mayús+Intro: pegar también · Esc: dejarlo todo como estaba</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Elija otras teclas en la página «%@» de las preferencias.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>limpiar</translation>
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
        <translation>Quitar el formato automáticamente</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Limpiar justo después de copiar</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>No conservar el original</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Excepto las copias de Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Restaurar el original</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurar «%1»</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Operaciones sueltas</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Consejos</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Valorar Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Ayuda en línea</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>Correo al desarrollador</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Salir de Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Ocultar Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Nunca en este programa</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Nunca en «%1»</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>No se puede usar</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Grabar un atajo</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>sin definir</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Pulse el atajo</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Usar el anterior</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Eliminar el atajo</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used!</source>
        <translation>¡No se puede usar la combinación de teclas «%@»!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>No se puede usar la combinación de teclas «%@» porque ya es un atajo de teclado de todo el sistema. Si de verdad quiere usarla, la mayoría de los atajos se pueden cambiar en el panel Teclado de los ajustes del sistema.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>No se puede usar la combinación de teclas «%@» porque ya la usa el elemento de menú «%@».</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME ejecuta una versión anterior de la extensión «Nerlo Pro». Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>La extensión «Nerlo Pro» de GNOME no responde.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Un atajo necesita Ctrl o Super, o una tecla de función.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Otro programa ha ocupado esta combinación de teclas.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Otro atajo de este programa tiene las mismas teclas.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Se rechazó en el diálogo del escritorio.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Este escritorio no tiene el portal GlobalShortcuts. Asigne «nerlo-pro --operation N» o «nerlo-pro --clean» a una tecla en sus propios ajustes del teclado.</translation>
    </message>
</context>
</TS>
