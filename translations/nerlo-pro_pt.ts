<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>Espaços e tabulações</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>Letras e aspas</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>Marcadores, tags, padrão</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>Dez substituições</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>Localizar e substituir</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>Pesquisar opções</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>Digite uma palavra para encontrar todas as opções que têm a ver com ela.</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>Nenhuma opção tem a ver com “%@”.</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>Opções</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>O conjunto de opções em uso. O menu da bandeja também pode trocá-lo.</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>Adicionar perfil</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>Adiciona um perfil: vazio, uma cópia ou um dos prontos.</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>Remover perfil</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>Remove o perfil selecionado. «Restaurar» trá-lo de volta.</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>Gerir…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>Mostra a lista de perfis, para mudar o nome, copiar, ordenar, importar e exportar.</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>O perfil selecionado é o que é usado. F2 muda-lhe o nome, Alt+Cima e Alt+Baixo movem-no, Delete remove-o. Pode largar aqui ficheiros de perfis.</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>Adiciona uma cópia do perfil selecionado no fim da lista.</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>Mudar nome</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>Dá outro nome ao perfil selecionado. A tabela das cópias acompanha.</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>Move o perfil selecionado para cima, aqui e nos menus.</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>Move o perfil selecionado para baixo, aqui e nos menus.</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>Repor para</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>Dá outros valores ao perfil selecionado: os de um primeiro arranque ou os de um perfil pronto. O que era pode ser restaurado.</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>Valores de um primeiro arranque</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>Escreve o perfil selecionado num ficheiro, para outro computador ou outra pessoa.</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>Adiciona os perfis de um ficheiro. Nenhum é substituído.</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>Traz de volta um dos últimos perfis removidos.</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>Adicionado: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>Não foi possível ler o perfil.</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>Não foi possível escrever o perfil.</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>Atalho que o seleciona</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>Em qualquer programa, este atalho faz com que se use o perfil selecionado. O menu mostra-o.</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>Selecionar o perfil «%@»</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>Digite o nome do novo perfil e clique em OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel excluído</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>Com a opção “Limpar a formatação automaticamente”</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>Atalho: %@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>Um atalho que funciona em todos os aplicativos.</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>Redefinir todos os atalhos</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>Cada comando recebe o atalho do primeiro início; a maioria não tem nenhum.</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>Redefinir o atalho: %@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>Como no primeiro início.</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>Todos os atalhos foram redefinidos.</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>O sistema recusou este atalho. Talvez outro programa o use.</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>Este ambiente não oferece atalhos aos programas. Associe um ao comando “%@” nas configurações dele.</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>Este ambiente não mostra uma bandeja, por isso esta janela abre a cada início.</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>Não é possível ler “%@”.</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>O seu conteúdo recomeça do zero. O ficheiro danificado fica guardado ao lado, com “.unreadable-” e a hora no nome.</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>As definições não estão guardadas:</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>Os perfis não estão guardados:</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>Não foi possível mudar o início com a sessão:</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>O ficheiro de regras para ligações não é usado:</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>Iniciar com a sessão</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>Iniciar o Nerlo Pro com a sessão</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>Antes: você inicia o Nerlo Pro manualmente.
Depois: ele já está lá depois de entrar na sessão.</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>Mostrar na bandeja</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>Antes: o Nerlo Pro tem uma entrada na barra de tarefas.
Depois: ele tem um ícone com menu na bandeja.</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>Executar em segundo plano</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>Antes: ícone na bandeja ou entrada na barra de tarefas.
Depois: nenhum dos dois. Iniciar o Nerlo Pro de novo abre esta janela.</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>Manter acima</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>Antes: outras janelas podem cobrir esta.
Depois: esta janela fica acima delas.</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>Antes: você decide quando limpar a área de transferência.
Depois: cada cópia é limpa sozinha.</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>Indisponível: esta versão foi criada sem um endereço para isto.</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>Antes: uma cópia é limpa em meio segundo.
Depois: uma cópia é limpa na hora.</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>Antes: o original é guardado dez minutos, para ser restaurado.
Depois: ao outro programa só se pede o texto, e nada pode ser restaurado.</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>Antes: as células copiadas viram texto simples.
Depois: as células de uma planilha ficam como estão.</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>Limpar a formatação da área de transferência</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>Antes: “Olá·····mundo”, negrito
Depois: “Olá·mundo”, simples</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>Limpeza</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>Janela e início</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>Ordenar linhas</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>Antes: pera↵maçã
Depois: maçã↵pera</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>Ordem</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>Antes (A-Z): maçã↵pera
Depois (Z-A): pera↵maçã</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>Os itens terminam com</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>Antes (Quebra de linha): b,a
Depois (“,”): a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>Separador personalizado</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>Antes: b/a
Depois, com /: a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>Remover linhas duplicadas</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>Antes: chá↵chá↵leite
Depois: chá↵leite</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>Os itens terminam com</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>Antes (Quebra de linha): a,a
Depois (“,”): a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>Separador personalizado</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>Antes: a/a
Depois, com /: a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>Mostrar as estatísticas depois de limpar</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>Contar a área de transferência</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>Antes: nada diz o que foi copiado.
Depois: uma pequena janela conta caracteres, espaços, palavras e parágrafos.</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>Fechar sozinha</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>Antes: a janela fica até você clicar nela.
Depois: ela fecha depois de alguns segundos.</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>Por quanto tempo a janela fica aberta.
Antes, com 3: três segundos
Depois, com 10: dez segundos</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>Antes (Posição do ponteiro): junto ao ponteiro
Depois (Em cima à direita): nesse canto da tela</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>Dizer o que mudou mais</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>Antes: a janela só conta.
Depois: Mudou: Espaços 12, Aspas 4, Linhas 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>Vários espaços em um</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>Antes: a····b
Depois: a·b
Colunas e recuos também saem.</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>Várias tabulações em uma</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>Antes: a⇥⇥⇥b
Depois: a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>Converter tabulações e quatro espaços</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>Antes: ⇥a
Depois: ····a, ou o contrário</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>Direção</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>Antes (Tabulação em 4 espaços): ⇥a
Depois: ····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>Converter três pontos e reticências</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>Antes: Espere...
Depois: Espere…, ou o contrário</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>Direção</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>Antes (3 pontos em reticências): Espere...
Depois: Espere…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>Remover o espaço antes de um ponto</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>Antes: Fim·.
Depois: Fim.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>Remover espaços em volta de tabulações</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>Antes: a·⇥·b
Depois: a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>Remover espaços em volta de quebras de linha</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>Antes: um·↵·dois
Depois: um↵dois
Recuos também saem, inclusive os de código e listas.</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>Remover todos os espaços</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>Antes: a·b·c
Depois: abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>Remover todas as tabulações</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>Antes: a⇥b⇥c
Depois: abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>Antes: a·⇥·b↵c
Depois: a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>Remover hifens no fim das linhas</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>Antes: sepa-↵rado
Depois: separado</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>Remover todos os hifens, travessões e sinais de menos</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>Antes: guarda-chuva
Depois: guardachuva</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>Adicionar um prefixo</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>Antes: texto
Depois, com “&gt; ”: &gt; texto</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>Prefixo</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>Antes: texto
Depois, com “&gt; ”: &gt; texto</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>Adicionar um sufixo</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>Antes: texto
Depois, com “!”: texto!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>Sufixo</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>Antes: texto
Depois, com “!”: texto!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>Juntar linhas mal quebradas</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>Antes: Esta linha foi↵quebrada no meio.
Depois: Esta linha foi·quebrada no meio.
Listas, tabelas e endereços também são unidos.</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>Reparar codificação errada</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>Antes: cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
Depois: café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>Juntar palavras cortadas no fim da linha</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>Antes: uma palavra veri-↵ficada, guarda-↵chuva
Depois: uma palavra verificada, guarda-chuva</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>Sem números de página e títulos repetidos</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>Antes: o que está no alto ou no pé de cada página,
separadas por quebras de página, está no texto.
Depois: some.</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>Sem números de notas de rodapé</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>Antes: uma teoria4 e a sua prova.5
Depois: uma teoria e a sua prova.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>Recompor texto de um terminal</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>Antes: │ Uma frase↵│ em duas linhas. │
Depois: Uma frase·em duas linhas.</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>Deixar código, tabelas e listas como estão</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>Antes: uma lista vira uma só linha e o código se estraga.
Depois: só o texto corrido é limpo. Marcas, recuos, código, tabelas e endereços ficam.</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>As linhas são unidas com</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>Antes (nada): a↵b vira ab
Depois (espaço): a↵b vira a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>Alterar as quebras de linha</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>Antes: um↵↵↵dois
Depois (uma quebra de linha): um↵dois</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>As quebras de linha viram</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>Antes (uma quebra de linha): um↵dois
Depois (espaço): um·dois</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>Primeiro texto personalizado</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>Antes: um↵dois
Depois, com “- ”: um↵- dois</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>Segundo texto personalizado</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>Antes: um
Depois, com [b] e [/b]: [b]um[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>Aparar as duas pontas do texto</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>Antes: ··texto··
Depois: texto</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>Limpar caracteres</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>Antes: ﬁ‹U+200B›x‹U+00A0›y
Depois: fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>Manter caracteres de controle</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>Antes: a␛[1mb␛[0m → ab
Depois: a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>Manter caracteres de etiqueta</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>Antes: a‹U+E0041›b → ab
Depois: a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>Manter caracteres de uso privado</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>Antes: a‹U+E000›b → ab
Depois: a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>Manter hifens opcionais</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>Antes: a‹U+00AD›b → ab
Depois: a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>Manter seletores de variação</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>Antes: a‹U+FE0F›b → ab
Depois: a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>Manter marcas de direção</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>Antes: a‹U+200E›b → ab
Depois: a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>Manter caracteres de largura zero</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>Antes: a‹U+200B›b → ab
Depois: a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>Manter ligaduras</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>Antes: ﬁ → fi
Depois: ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>Manter espaços especiais</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>Antes: a‹U+00A0›b → a·b
Depois: a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>Letras de largura inteira em letras estreitas</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>Antes: Ａ１
Depois: A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>Letra e acento em um caractere (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>Antes: e + ◌́
Depois: é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>Aspas, travessões e pontos simples</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>Antes: “a”—b…
Depois: "a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Tirar as marcas de Markdown</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>Antes: ## a↵- **b** `c`
Depois: a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>Alterar maiúsculas e minúsculas</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>Antes: OLÁ. VOCÊ.
Depois (Inicial de frase em maiúscula): Olá. Você.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>Maiúsculas e minúsculas</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>Antes (MAIÚSCULAS): OLÁ
Depois (minúsculas): olá</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>Alterar as aspas</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>Antes: ‘texto’
Depois (simples em duplas): “texto”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>Direção</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>Antes (simples em duplas): ‘texto’
Depois: “texto”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>Aspas simples</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>Antes: &apos;texto&apos;
Depois, com ‚…‘: ‚texto‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>Aspas duplas</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>Antes: &quot;texto&quot;
Depois, com „…“: „texto“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>Aspas de todos os estilos</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>Antes: «texto» fica como está.
Depois: «texto» também é alterado.</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>Remover as aspas simples</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>Antes: ‘texto’
Depois: texto</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>Simples de todos os estilos</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>Antes: ‹texto› fica como está.
Depois: texto</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>Remover as aspas duplas</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>Antes: “texto”
Depois: texto</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>Duplas de todos os estilos</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>Antes: «texto» fica como está.
Depois: texto</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>Remover marcadores</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>Antes: •·leite↵•·pão
Depois: leite↵pão
Marcadores dentro das linhas também saem.</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>Remover marcas de resposta</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>Antes: &gt;·&gt;·Olá
Depois: Olá
Todo &gt; sai, também dentro das linhas, e com ele o fim de cada tag HTML.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>Remover tags HTML</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>Antes: &lt;b&gt;negrito&lt;/b&gt;
Depois: negrito
“Remover marcas de resposta” age antes e tira o &gt; das tags: então o texto inteiro pode sumir.</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>Scripts também</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>Antes: o texto de um &lt;script&gt; fica.
Depois: ele some com a tag.</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>Limpar links</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>Antes: https://example.org/a?id=7&amp;utm_source=mail
Depois: https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>Mais regras</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>Um arquivo com mais regras, no formato do ClearURLs.
Sem ele vale a lista própria do Nerlo Pro.</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>Escolher um arquivo…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>Usar seu próprio padrão</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>Antes, com [0-9]: a1b2
Depois (excluir): ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>Uma expressão regular.
Antes, com [0-9]: a1b2
Depois (excluir): ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>Não é uma expressão regular válida, por isso não encontra nada.</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>Omitida na última limpeza: exige demasiado trabalho nesse texto.</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>Regras omitidas por exigirem demasiado trabalho neste texto: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>Ocorrências</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>Antes (excluir [0-9]): a1b2 vira ab
Depois (localizar [0-9]): a1b2 vira 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>Espaços, tabulações e quebras de linha em um espaço</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>Substituição 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>Substituição 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>Substituição 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>Substituição 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>Substituição 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>Substituição 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>Substituição 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>Substituição 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>Substituição 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>Substituição 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>Antes: idéia
Depois, com “idéia” e “ideia”: ideia</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>O texto a localizar.
Antes: idéia
Depois, com “idéia” e “ideia”: ideia</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>Substituir por</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>O que fica no lugar dele; vazio exclui o texto.
Antes: idéia
Depois, com “idéia” e “ideia”: ideia</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>Recuo</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>Aplicar a lista de localizar e substituir</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>Antes: Sr. Silva
Depois, com Sr. → Senhor: Senhor Silva</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>Uma lista para todos os perfis</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>Antes: cada perfil tem a própria lista.
Depois: todos os perfis usam uma só lista.</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>Regras, da primeira à última</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>As regras são aplicadas de cima para baixo. Arraste uma regra, ou pressione Alt+Cima e Alt+Baixo, para movê-la.</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>Substituir por</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>Comece com {search} para manter só o que o padrão encontra, ou com {delete} para excluí-lo.
Antes, com [0-9] e {search}#: a1b2
Depois: 1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>Adicionar uma regra</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>Adiciona uma regra no fim da lista.</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>Excluir a regra</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>Exclui a regra selecionada.</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>Move a regra selecionada para cima, para que seja aplicada antes.</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>Move a regra selecionada para baixo, para que seja aplicada depois.</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>Nova regra</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>Selecione a regra que deseja excluir</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>Selecione uma regra</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>Texto de substituição</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>Ativa</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>Se a regra é aplicada.</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>O que a regra procura: um texto, ou um padrão se o tipo assim o disser.</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>Um texto é procurado tal como está; um padrão é uma expressão regular.
Sem teste: onde só ficam as correspondências, um texto sem nenhuma fica vazio.</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>Achados</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>Quantas vezes a regra acha algo no texto da pré-visualização.</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>Padrão: substituir</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>Padrão: manter correspondências</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>Padrão: substituir, sem teste</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>Padrão: manter correspondências, sem teste</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>O padrão não faz sentido no caractere %@ e por isso não acha nada.</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>Não acha nada no texto da pré-visualização.</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>Achados no texto da pré-visualização: %@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>O exemplo %@ não se cumpre. A regra faz dele isto: %@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>Exemplos da regra selecionada</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>O que a regra deve fazer de um texto. Todos são testados a cada alteração.</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>Cumpre-se</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>Não se cumpre</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>Adicionar um exemplo</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>Usa o primeiro lugar da pré-visualização que a regra acha, para ser revisto.</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>Copia e cola regras, importa e exporta listas e oferece algumas prontas.</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>Datas para ISO (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>Vírgulas decimais em pontos</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>Remover números de notas de rodapé</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>Remover prompts do terminal</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>Pontuação tipográfica em simples</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>Copiar a regra</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>Colar regras</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>Importar uma lista…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>Exportar a lista…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>O que a lista “%@” faz às suas regras:</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>Efeito</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>Adicionada</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>Alterada</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>Fica</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>Isto não é uma lista de regras legível.</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>Não foi possível gravar a lista.</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>Não há regras na área de transferência.</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>Eliminado.</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>Anula isto.</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Inversa</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aleatória</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Quebra de linha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Embaixo à esquerda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Embaixo à direita</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Em cima à esquerda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Em cima à direita</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>Posição do ponteiro</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Tabulação em 4 espaços, 4 espaços em tabulação</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>3 pontos em reticências, Reticências em 3 pontos</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nada, espaço</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>nada, uma quebra de linha, duas quebras de linha, espaço, quebra e espaço, quebra e tabulação, quebra e texto personalizado, parágrafos HTML, tags HTML de imagem, texto personalizado em volta das linhas</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>Inicial de frase em maiúscula, Iniciais De Palavras Em Maiúsculas, minúsculas, MAIÚSCULAS</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>simples em duplas, duplas em simples</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>excluir, localizar</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>Mostra o que as opções fazem. Nada chega à área de transferência antes que você peça.</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>Digite ou cole aqui qualquer texto para testar as opções.</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>Depois</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>O texto como as opções o limpam. O que mudou está marcado.</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>Digite um texto, ou pegue o da área de transferência</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>Pegar da área de transferência</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>Copia o texto da área de transferência para a prévia.</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>Limpar a área de transferência</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>Limpa agora o texto da área de transferência com estas opções.</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>O texto antes do passo escolhido, ou o que mudou num texto longo. Aqui não pode ser editado.</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>Escrever outro texto</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>Retira o texto longo da pré-visualização, para que possa escrever outro.</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>Passos</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>Os passos que mudaram algo, com o número de alterações. Escolha um para ver o que fez sozinho; escolha-o de novo para ver tudo.</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>Todos os passos</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@, alterações: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>Um texto longo: só são mostradas as partes alteradas.</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>«%@» tirou os &gt; das etiquetas HTML antes da vez de «%@». Desligue uma das duas.</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ linhas sem alterações: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ caracteres: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ mais alterações: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>O texto é longo demais para a prévia; só o começo é mostrado.</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>Não há texto na área de transferência.</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>Prezado  leitor .

&gt;  Esta linha foi
&gt;  quebrada no meio.

•  Comprar leite ‘fresco’.
•  Comprar pão ‘integral’...
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>Espaços</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>Palavras</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>Parágrafos</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>Clique para fechar</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>Dica %1 de %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>Mostrar as dicas a cada início</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>Antes: as dicas só abrem pelo menu.
Depois: elas abrem sempre que o Nerlo Pro inicia.</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Novidades do Nerlo Pro</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### Copiar, limpar, colar

Copie um texto, escolha “%@” no menu do ícone ou prima o seu atalho, e cole. As preferências dizem o que é limpo; a pré-visualização mostra-o num texto.

### Por si só

“%@” limpa cada cópia. Ligações, ficheiros, imagens e palavras-passe ficam como estão.

### De volta ao original

“%@” traz de volta o que foi copiado, com a sua formatação, durante dez minutos.

### Uma só operação

O menu tem cada operação em separado. Com `nerlo-pro --choose` escreva o que procura, veja o resultado e prima Enter.

### Perfis

Um perfil é um conjunto de opções. Muda-se no menu ou no topo das preferências.

### Teclas nas preferências

Ctrl+F procura opções, Ctrl+Z desfaz, F1 abre esta ajuda.

### Quando algo não funciona

`nerlo-pro --doctor` num terminal diz o que falta a este ambiente, `nerlo-pro --why` o que foi feito da última cópia. O resto está em `man nerlo-pro`.</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>Mostrar as dicas</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **Perfis prontos**: para PDF, correio, páginas web, terminal, respostas de um assistente e código.
- **O perfil certo por si só**: uma tabela na página Geral diz que perfil limpa que cópia.
- **Código, tabelas e listas**: podem ficar como estão.
- **Novas operações**: saída do terminal, codificação errada, caracteres invisíveis, palavras cortadas e ligações.
- **O seletor**: `nerlo-pro --choose` encontra uma operação enquanto escreve e mostra o texto antes e depois.
- **Localizar e substituir**: as regras têm amostras e contagens, e podem ser copiadas, importadas e exportadas.
- **A pré-visualização**: diz que passo fez uma alteração e leva à sua opção.
- **Desfazer**: Ctrl+Z reverte alterações de opções, regras e perfis.
- **Restaurar**: diz o que volta.
- **Atalhos**: chamam-se como as teclas e funcionam no KDE com Wayland.
- **No terminal**: `nerlo check`, `--explain`, pipes sem fim, JSON Lines e uma biblioteca para C e Python.</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>Copiou, está limpo</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>O Nerlo Pro mora na bandeja. Ele transforma o que você copia em texto simples e limpo: sem espaços sobrando, linhas quebradas ou formatação.</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>À mão ou sozinho</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>Escolha “Limpar a formatação da área de transferência” no menu, pressione o atalho, ou deixe “Limpar a formatação automaticamente” limpar cada cópia.</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>Ver antes de limpar</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>As preferências mostram um texto antes e depois. Marque uma opção e veja o que ela faz; a área de transferência fica como está.</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>Um perfil para cada trabalho</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>Tenha um conjunto de opções para e-mail e outro para código. Troque entre eles no menu da bandeja.</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>Suas próprias regras</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>A lista de localizar e substituir aplica suas regras em ordem. Arraste uma regra para movê-la; padrões também funcionam.</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>Nada se perde</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>“Restaurar o original”, no menu, devolve à área de transferência o que estava lá antes, com a formatação.</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – limpando cada cópia</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – algo não funciona aqui</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>Limpa o texto da área de transferência.
Versão %1
Licença MIT</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>Não há original para restaurar.</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>A área de transferência mudou, por isso o original não foi restaurado.</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>O original voltou, mas alguns dos seus formatos não puderam ser lidos a tempo.</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>O original tinha mais de %1 MB, por isso não foi guardado.</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>A limpeza foi feita há mais de %1 minutos, por isso o original já não está guardado.</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>O texto na área de transferência tem mais de %1 MB, por isso não foi limpo.</translation>
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
        <translation>E-mail</translation>
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
        <translation>Resposta de um assistente</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>Código intacto</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@ (pronto)</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>Começa com</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>Nada: todas as opções desligadas</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>Uma cópia de “%@”</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>Limpo como: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>Mudou: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>, </translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>Tabulações</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>Espaços</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>Linhas</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>Maiúsculas</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>Aspas</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>Marcas de resposta</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>Substituições</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>Pontos</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>Ordem</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>Hífenes</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>Acréscimos</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>Codificação</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>Caracteres</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>Palavras</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>Ligações</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>Que regras a limpeza deve aplicar?</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>Todas: quebras de linha, aspas e marcadores são arrumados</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>Suave: só espaços e linhas partidas; código, tabelas e listas ficam</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>Que perfil limpa que cópia</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>Decide a primeira linha marcada que serve a uma cópia; se nenhuma servir, o perfil escolhido limpa-a.</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>Adicionar uma linha</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>Adiciona uma linha no fim da tabela.</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>Apagar a linha</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>Apaga a linha escolhida.</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>Move a linha escolhida para cima, para ser consultada antes.</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>Move a linha escolhida para baixo, para ser consultada depois.</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>Parece</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>O que o texto copiado parece.</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>O programa à frente na cópia, como “nerlo-pro --why” o chama; * vale por qualquer resto. Nem todos os ambientes o dizem.</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>O site de onde um navegador copiou, como example.org; * é qualquer página.</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>Um formato que a cópia oferece, como text/rtf; * vale por qualquer resto.</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>O que limpa uma cópia assim, ou que fica como está.</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>Qualquer cópia</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>Texto de um terminal</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>Uma tabela</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>Um link</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>deixar como está</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>Escolher o que fazer com a área de transferência</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>Abre uma pequena janela junto ao ponteiro: digite para encontrar uma operação, um perfil ou regras, veja o efeito e pressione Enter.</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>Encontrar uma operação, um perfil ou regras</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>Palavras do nome; as setas escolhem entre os resultados</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>O que pode ser feito</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter põe o resultado na área de transferência</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>Perfil pronto</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>Regras</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>Regras de todos os perfis</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>Regras de “%@”</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>O texto da área de transferência</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>O que se tornaria</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter: para a área de transferência · Esc: deixar tudo como estava</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter: para a área de transferência · Shift+Enter: colar também · Esc: deixar tudo como estava</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>Escolha outras teclas na página “%@” das preferências.</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>limpar</translation>
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
        <translation>Limpar a formatação automaticamente</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>Limpar logo depois de copiar</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>Não guardar o original</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Exceto cópias do Excel</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>Restaurar o original</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>Restaurar “%1”</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>Operações avulsas</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferências…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Dicas</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Avaliar o Nerlo Pro</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>E-mail ao desenvolvedor</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Sair do Nerlo Pro</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Ocultar o Nerlo Pro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>Nunca neste programa</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>Nunca em “%1”</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>Não pode ser usado</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>Gravar um atalho</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>não definido</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>Digite o atalho</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>Usar o antigo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>Excluir o atalho</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
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
        <translation>Seta para cima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Seta para baixo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Seta para a esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Seta para a direita</translation>
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
        <translation>A combinação de teclas “%@” não pode ser usada!</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>A combinação de teclas “%@” não pode ser usada porque já é um atalho de teclado do sistema. Se quiser mesmo usá-la, a maioria dos atalhos pode ser alterada no painel Teclado das configurações do sistema.</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>A combinação de teclas “%@” não pode ser usada porque o item de menu “%@” já a usa.</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>O GNOME está executando uma versão mais antiga da extensão “Nerlo Pro”. Saia da sessão e entre de novo.</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>A extensão “Nerlo Pro” do GNOME não responde.</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>Um atalho precisa de Ctrl ou Super, ou de uma tecla de função.</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>Outro programa já pegou esta combinação de teclas.</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>Outro atalho deste programa tem as mesmas teclas.</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>Foi recusado no diálogo do ambiente de trabalho.</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>Este ambiente de trabalho não tem o portal GlobalShortcuts. Associe “nerlo-pro --operation N” ou “nerlo-pro --clean” a uma tecla nas próprias configurações de teclado dele.</translation>
    </message>
</context>
</TS>
