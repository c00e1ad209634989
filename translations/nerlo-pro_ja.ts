<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>sPreferencesWindowName</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>sPageGeneral</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>sPageSpaces</source>
        <translation>空白とタブ</translation>
    </message>
    <message>
        <source>sPageLines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>sPageCharacters</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>sPageLetters</source>
        <translation>文字と引用符</translation>
    </message>
    <message>
        <source>sPageMarks</source>
        <translation>箇条書き、タグ、パターン</translation>
    </message>
    <message>
        <source>sPageReplace</source>
        <translation>10 個の置換</translation>
    </message>
    <message>
        <source>sPageFindReplace</source>
        <translation>検索と置換</translation>
    </message>
    <message>
        <source>sPageStatistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>sSearch</source>
        <extracomment>Placeholder of the search field.</extracomment>
        <translation>オプションを検索</translation>
    </message>
    <message>
        <source>sSearchTip</source>
        <translation>単語を入力すると、関係するオプションがすべて見つかります。</translation>
    </message>
    <message>
        <source>sSearchNothing</source>
        <translation>「%@」に関係するオプションはありません。</translation>
    </message>
    <message>
        <source>sPages</source>
        <extracomment>Name of the list of pages, for screen readers.</extracomment>
        <translation>ページ</translation>
    </message>
    <message>
        <source>sOptions</source>
        <extracomment>Name of the area with the options, for screen readers.</extracomment>
        <translation>オプション</translation>
    </message>
    <message>
        <source>sProfile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>sProfileTip</source>
        <translation>使用中のオプションの組です。トレイのメニューでも切り替えられます。</translation>
    </message>
    <message>
        <source>sProfileAdd</source>
        <translation>プロファイルを追加</translation>
    </message>
    <message>
        <source>sProfileAddTip</source>
        <translation>空、コピー、用意済みのいずれかのプロファイルを追加します。</translation>
    </message>
    <message>
        <source>sProfileRemove</source>
        <translation>プロファイルを削除</translation>
    </message>
    <message>
        <source>sProfileRemoveTip</source>
        <translation>選択中のプロファイルを削除します。「復元」で元に戻せます。</translation>
    </message>
    <message>
        <source>sProfilesManage</source>
        <translation>管理…</translation>
    </message>
    <message>
        <source>sProfilesManageTip</source>
        <translation>プロファイルの一覧を表示し、名前の変更、コピー、並べ替え、読み込み、書き出しを行います。</translation>
    </message>
    <message>
        <source>sProfilesListTip</source>
        <translation>選択されているプロファイルが使われます。F2 で名前を変更、Alt+↑ と Alt+↓ で移動、Delete で削除します。プロファイルのファイルをここにドロップできます。</translation>
    </message>
    <message>
        <source>sProfileDuplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>sProfileDuplicateTip</source>
        <translation>選択中のプロファイルのコピーを一覧の末尾に追加します。</translation>
    </message>
    <message>
        <source>sProfileRename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>sProfileRenameTip</source>
        <translation>選択中のプロファイルに別の名前を付けます。コピーの表もそれに従います。</translation>
    </message>
    <message>
        <source>sProfileUpTip</source>
        <translation>選択中のプロファイルを、ここでもメニューでも上に移します。</translation>
    </message>
    <message>
        <source>sProfileDownTip</source>
        <translation>選択中のプロファイルを、ここでもメニューでも下に移します。</translation>
    </message>
    <message>
        <source>sProfileReset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>sProfileResetTip</source>
        <translation>選択中のプロファイルを、初回起動時の値または用意されたプロファイルの値にします。元の状態は復元できます。</translation>
    </message>
    <message>
        <source>sProfileFirstStart</source>
        <translation>初回起動時の値</translation>
    </message>
    <message>
        <source>sProfileExport</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>sProfileExportTip</source>
        <translation>選択中のプロファイルを、ほかのコンピュータや人のためにファイルに書き出します。</translation>
    </message>
    <message>
        <source>sProfileImport</source>
        <translation>読み込む…</translation>
    </message>
    <message>
        <source>sProfileImportTip</source>
        <translation>ファイルのプロファイルを追加します。置き換えられるものはありません。</translation>
    </message>
    <message>
        <source>sProfileRestore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>sProfileRestoreTip</source>
        <translation>最近削除したプロファイルの一つを元に戻します。</translation>
    </message>
    <message>
        <source>sProfilesAdded</source>
        <translation>追加しました: %@</translation>
    </message>
    <message>
        <source>sProfileUnreadable</source>
        <translation>プロファイルを読み取れませんでした。</translation>
    </message>
    <message>
        <source>sProfileNotWritten</source>
        <translation>プロファイルを書き込めませんでした。</translation>
    </message>
    <message>
        <source>sProfileShortcut</source>
        <translation>選択するショートカット</translation>
    </message>
    <message>
        <source>sProfileShortcutTip</source>
        <translation>どのプログラムでも、このショートカットで選択中のプロファイルが使われるようになります。メニューに表示されます。</translation>
    </message>
    <message>
        <source>sSelectsProfile</source>
        <translation>プロファイル「%@」を選択</translation>
    </message>
    <message>
        <source>Insert new profile name and click OK</source>
        <translation>新しいプロファイルの名前を入力して OK をクリックしてください</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>sClose</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>sProfileName</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Excel disabled</source>
        <translation>Excel を除外しました</translation>
    </message>
    <message>
        <source>With option &quot;Automatically clear formatting&quot;</source>
        <translation>オプション「書式を自動的に消去」で除外されます</translation>
    </message>
    <message>
        <source>sShortcutOf</source>
        <extracomment>Name of a shortcut field, for screen readers; %@ is the command.</extracomment>
        <translation>ショートカット：%@</translation>
    </message>
    <message>
        <source>sShortcutTip</source>
        <translation>すべてのアプリケーションで働くショートカットです。</translation>
    </message>
    <message>
        <source>sPageShortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>sShortcutsReset</source>
        <translation>すべてのショートカットをリセット</translation>
    </message>
    <message>
        <source>sShortcutsResetTip</source>
        <translation>各コマンドのショートカットを最初に起動したときの状態に戻します。ほとんどのコマンドにはありません。</translation>
    </message>
    <message>
        <source>sShortcutReset</source>
        <translation>ショートカットをリセット：%@</translation>
    </message>
    <message>
        <source>sShortcutResetTip</source>
        <translation>最初に起動したときの状態に戻します。</translation>
    </message>
    <message>
        <source>sShortcutsAreReset</source>
        <translation>すべてのショートカットをリセットしました。</translation>
    </message>
    <message>
        <source>sShortcutRefused</source>
        <translation>このショートカットはシステムに拒否されました。ほかのプログラムが使っている可能性があります。</translation>
    </message>
    <message>
        <source>sShortcutsUnavailable</source>
        <extracomment>%@ is a command line.</extracomment>
        <translation>このデスクトップはプログラムにショートカットを提供していません。デスクトップの設定でコマンド「%@」に割り当ててください。</translation>
    </message>
    <message>
        <source>sNoTray</source>
        <translation>このデスクトップにはトレイがないため、起動のたびにこのウィンドウが開きます。</translation>
    </message>
    <message>
        <source>sFileUnreadable</source>
        <translation>「%@」を読めません。</translation>
    </message>
    <message>
        <source>sFileDamaged</source>
        <translation>その内容は最初からやり直しになります。壊れたファイルは、名前に「.unreadable-」と時刻を付けて元の場所の隣に残されています。</translation>
    </message>
    <message>
        <source>sSettingsNotSaved</source>
        <translation>設定を保存できません：</translation>
    </message>
    <message>
        <source>sProfilesNotSaved</source>
        <translation>プロファイルを保存できません：</translation>
    </message>
    <message>
        <source>sLoginItemNotSet</source>
        <translation>ログイン時の起動を変更できません：</translation>
    </message>
    <message>
        <source>sLinkRulesUnusable</source>
        <translation>リンクの規則のファイルは使われません：</translation>
    </message>
    <message>
        <source>sLaunchOnStartup</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>sLaunchOnStartupNerlo</source>
        <translation>ログイン時に Nerlo Pro を起動</translation>
    </message>
    <message>
        <source>sLaunchOnStartupTip</source>
        <translation>前：Nerlo Pro を手動で起動します。
後：ログインするとすでに起動しています。</translation>
    </message>
    <message>
        <source>sShowInMenuBar</source>
        <translation>トレイに表示</translation>
    </message>
    <message>
        <source>sShowInMenuBarTip</source>
        <translation>前：Nerlo Pro はタスクバーに表示されます。
後：トレイにメニュー付きのアイコンが表示されます。</translation>
    </message>
    <message>
        <source>sRunInTheBackground</source>
        <translation>バックグラウンドで実行</translation>
    </message>
    <message>
        <source>sRunInTheBackgroundTip</source>
        <translation>前：トレイのアイコンまたはタスクバーの項目があります。
後：どちらもありません。Nerlo Pro をもう一度起動するとこのウィンドウが開きます。</translation>
    </message>
    <message>
        <source>sStayOnTop</source>
        <translation>常に手前に表示</translation>
    </message>
    <message>
        <source>sStayOnTopTip</source>
        <translation>前：ほかのウィンドウに隠れることがあります。
後：このウィンドウは常に手前にあります。</translation>
    </message>
    <message>
        <source>sAutomaticTip</source>
        <translation>前：クリップボードの整形は自分で実行します。
後：コピーするたびに自動で整形されます。</translation>
    </message>
    <message>
        <source>sNoAddressTip</source>
        <translation>利用できません：このビルドにはアドレスが設定されていません。</translation>
    </message>
    <message>
        <source>sCleanAtOnceTip</source>
        <translation>前：コピーは半秒以内に整形されます。
後：コピーはすぐに整形されます。</translation>
    </message>
    <message>
        <source>sKeepNoOriginalTip</source>
        <translation>前：元の内容は 10 分間残り、戻せます。
後：相手のプログラムにはテキストだけを求め、元には戻せません。</translation>
    </message>
    <message>
        <source>sExceptSpreadsheetTip</source>
        <translation>前：コピーしたセルはプレーンテキストになります。
後：表計算のセルはそのまま残ります。</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboard</source>
        <translation>クリップボードの書式を消去</translation>
    </message>
    <message>
        <source>sClearFormatingFromClipboardTip</source>
        <translation>前：「こんにちは·····世界」、太字
後：「こんにちは·世界」、プレーン</translation>
    </message>
    <message>
        <source>sGroupCleaning</source>
        <translation>整形</translation>
    </message>
    <message>
        <source>sGroupWindow</source>
        <translation>ウィンドウと起動</translation>
    </message>
    <message>
        <source>sSort</source>
        <translation>行を並べ替え</translation>
    </message>
    <message>
        <source>sSortTip</source>
        <translation>前：なし↵いちご
後：いちご↵なし</translation>
    </message>
    <message>
        <source>sSortOption</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>sSortOptionTip</source>
        <translation>前（A-Z）：いちご↵なし
後（Z-A）：なし↵いちご</translation>
    </message>
    <message>
        <source>sSortSeparator</source>
        <translation>項目の区切り</translation>
    </message>
    <message>
        <source>sSortSeparatorTip</source>
        <translation>前（改行）：b,a
後（「,」）：a,b</translation>
    </message>
    <message>
        <source>sSortCustomSeparator</source>
        <translation>独自の区切り</translation>
    </message>
    <message>
        <source>sSortCustomSeparatorTip</source>
        <translation>前：b/a
後（/）：a/b</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLines</source>
        <translation>重複する行を削除</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesTip</source>
        <translation>前：お茶↵お茶↵牛乳
後：お茶↵牛乳</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparator</source>
        <translation>項目の区切り</translation>
    </message>
    <message>
        <source>sRemoveDuplicateLinesSeparatorTip</source>
        <translation>前（改行）：a,a
後（「,」）：a</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparator</source>
        <translation>独自の区切り</translation>
    </message>
    <message>
        <source>sDuplicatesCustomSeparatorTip</source>
        <translation>前：a/a
後（/）：a</translation>
    </message>
    <message>
        <source>sStatistics</source>
        <translation>整形後に統計を表示</translation>
    </message>
    <message>
        <source>sCountClipboard</source>
        <translation>クリップボードを数える</translation>
    </message>
    <message>
        <source>sStatisticsTip</source>
        <translation>前：何がコピーされたかわかりません。
後：小さなウィンドウが文字、空白、単語、段落を数えます。</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcher</source>
        <translation>自動的に閉じる</translation>
    </message>
    <message>
        <source>sStatisticsDelaySwitcherTip</source>
        <translation>前：クリックするまでウィンドウが残ります。
後：数秒後に閉じます。</translation>
    </message>
    <message>
        <source>sStatisticsValue</source>
        <translation>秒数</translation>
    </message>
    <message>
        <source>sStatisticsValueTip</source>
        <translation>ウィンドウを表示する時間です。
前（3）：3 秒間
後（10）：10 秒間</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPosition</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>sStatisticsDefaultPositionTip</source>
        <translation>前（ポインターの位置）：ポインターの位置
後（右上）：画面のその隅</translation>
    </message>
    <message>
        <source>sStatisticsRules</source>
        <translation>変更の多かったものを示す</translation>
    </message>
    <message>
        <source>sStatisticsRulesTip</source>
        <translation>前: ウィンドウは数えるだけです。
後: 変更: スペース 12、引用符 4、行 3</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpace</source>
        <translation>連続する空白を 1 つに</translation>
    </message>
    <message>
        <source>sChangeMultipleSpacesToSingleSpaceTip</source>
        <translation>前：a····b
後：a·b
列や字下げも消えます。</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTab</source>
        <translation>連続するタブを 1 つに</translation>
    </message>
    <message>
        <source>sChangeMultipleTabsToSingleTabTip</source>
        <translation>前：a⇥⇥⇥b
後：a⇥b</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4Spaces</source>
        <translation>タブと空白 4 つを変換</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesTip</source>
        <translation>前：⇥a
後：····a、または逆</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOption</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>sChangeTabsAnd4SpacesOptionTip</source>
        <translation>前（タブを空白 4 つに）：⇥a
後：····a</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDots</source>
        <translation>ピリオド 3 つと三点リーダーを変換</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsTip</source>
        <translation>前：待って...
後：待って…、または逆</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOption</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>sChangeEllipsisAndDotsOptionTip</source>
        <translation>前（ピリオド 3 つを三点リーダーに）：待って...
後：待って…</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDot</source>
        <translation>ピリオドの前の空白を削除</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeDotTip</source>
        <translation>前：おわり·.
後：おわり.</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTab</source>
        <translation>タブの前後の空白を削除</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterTabTip</source>
        <translation>前：a·⇥·b
後：a⇥b</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturn</source>
        <translation>改行の前後の空白を削除</translation>
    </message>
    <message>
        <source>sRemoveSpaceBeforeAfterReturnTip</source>
        <translation>前：一·↵·二
後：一↵二
コードやリストの字下げも消えます。</translation>
    </message>
    <message>
        <source>sRemoveAllSpaces</source>
        <translation>空白をすべて削除</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTip</source>
        <translation>前：a·b·c
後：abc</translation>
    </message>
    <message>
        <source>sRemoveAllTabs</source>
        <translation>タブをすべて削除</translation>
    </message>
    <message>
        <source>sRemoveAllTabsTip</source>
        <translation>前：a⇥b⇥c
後：abc</translation>
    </message>
    <message>
        <source>sRemoveSpacesTabsAndNewLinesTip</source>
        <translation>前：a·⇥·b↵c
後：a·b·c</translation>
    </message>
    <message>
        <source>sRemoveHyphens</source>
        <translation>行末のハイフンを削除</translation>
    </message>
    <message>
        <source>sRemoveHyphensTip</source>
        <translation>前：hyphen-↵ated
後：hyphenated</translation>
    </message>
    <message>
        <source>sRemoveHyphensAll</source>
        <translation>ハイフン・ダッシュ・マイナス記号をすべて削除</translation>
    </message>
    <message>
        <source>sRemoveHyphensAllTip</source>
        <translation>前：well-known
後：wellknown</translation>
    </message>
    <message>
        <source>sAddPrefix</source>
        <translation>先頭に付け足す</translation>
    </message>
    <message>
        <source>sAddPrefixTip</source>
        <translation>前：テキスト
後（「&gt; 」）：&gt; テキスト</translation>
    </message>
    <message>
        <source>sPrefixTextField</source>
        <translation>先頭の文字列</translation>
    </message>
    <message>
        <source>sPrefixTextFieldTip</source>
        <translation>前：テキスト
後（「&gt; 」）：&gt; テキスト</translation>
    </message>
    <message>
        <source>sAddSuffix</source>
        <translation>末尾に付け足す</translation>
    </message>
    <message>
        <source>sAddSuffixTip</source>
        <translation>前：テキスト
後（「!」）：テキスト!</translation>
    </message>
    <message>
        <source>sSuffixTextField</source>
        <translation>末尾の文字列</translation>
    </message>
    <message>
        <source>sSuffixTextFieldTip</source>
        <translation>前：テキスト
後（「!」）：テキスト!</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsTo</source>
        <translation>誤って改行された行をつなぐ</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsToTip</source>
        <translation>前：この行は途中で↵改行されています。
後：この行は途中で·改行されています。
リスト、表、住所もつながります。</translation>
    </message>
    <message>
        <source>sRepairEncoding</source>
        <translation>文字化けを直す</translation>
    </message>
    <message>
        <source>sRepairEncodingTip</source>
        <translation>前：cafÃ©, itâ€™s, ÐŸÑ€Ð¸Ð²ÐµÑ‚
後：café, it’s, Привет</translation>
    </message>
    <message>
        <source>sRejoinWords</source>
        <translation>行末で分割された単語をつなぐ</translation>
    </message>
    <message>
        <source>sRejoinWordsTip</source>
        <translation>前：a word veri-↵fied
後：a word verified</translation>
    </message>
    <message>
        <source>sRejoinWordsPages</source>
        <translation>ページ番号と柱を削除</translation>
    </message>
    <message>
        <source>sRejoinWordsPagesTip</source>
        <translation>前：改ページで区切られた各ページの上下の行が残ります。
後：それらが消えます。</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotes</source>
        <translation>脚注番号を削除</translation>
    </message>
    <message>
        <source>sRejoinWordsFootnotesTip</source>
        <translation>前：a theory4 and its proof.5
後：a theory and its proof.</translation>
    </message>
    <message>
        <source>sUnwrapTerminal</source>
        <translation>端末の折り返しを元に戻す</translation>
    </message>
    <message>
        <source>sUnwrapTerminalTip</source>
        <translation>前：│ 一つの文が↵│ 二行になる。 │
後：一つの文が二行になる。</translation>
    </message>
    <message>
        <source>sProtectStructure</source>
        <translation>コード、表、リストはそのままにする</translation>
    </message>
    <message>
        <source>sProtectStructureTip</source>
        <translation>前：リストが1行になり、コードが壊れます。
後：文章だけを整えます。リストの記号、字下げ、コード、表、アドレスはそのまま残ります。</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOption</source>
        <translation>行のつなぎ方</translation>
    </message>
    <message>
        <source>sChangeWrongInsertedReturnsOptionTip</source>
        <translation>前（なし）：a↵b → ab
後（空白）：a↵b → a·b</translation>
    </message>
    <message>
        <source>sChangeReturnsTo</source>
        <translation>改行を変更</translation>
    </message>
    <message>
        <source>sChangeReturnsToTip</source>
        <translation>前：一↵↵↵二
後（改行 1 つ）：一↵二</translation>
    </message>
    <message>
        <source>sChangeReturnsOption</source>
        <translation>改行の変換先</translation>
    </message>
    <message>
        <source>sChangeReturnsOptionTip</source>
        <translation>前（改行 1 つ）：一↵二
後（空白）：一·二</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1</source>
        <translation>独自のテキスト 1</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom1Tip</source>
        <translation>前：一↵二
後（「- 」）：一↵- 二</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2</source>
        <translation>独自のテキスト 2</translation>
    </message>
    <message>
        <source>sChangeReturnsCustom2Tip</source>
        <translation>前：一
後（[b]と[/b]）：[b]一[/b]</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterText</source>
        <translation>テキストの両端を切り詰める</translation>
    </message>
    <message>
        <source>sRemoveSpacesBeforeAndAfterTextTip</source>
        <translation>前：··テキスト··
後：テキスト</translation>
    </message>
    <message>
        <source>sCleanCharacters</source>
        <translation>文字をきれいにする</translation>
    </message>
    <message>
        <source>sCleanCharactersTip</source>
        <translation>前：ﬁ‹U+200B›x‹U+00A0›y
後：fix·y</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControls</source>
        <translation>制御文字を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepControlsTip</source>
        <translation>前：a␛[1mb␛[0m → ab
後：a␛[1mb␛[0m</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTags</source>
        <translation>タグ文字を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepTagsTip</source>
        <translation>前：a‹U+E0041›b → ab
後：a‹U+E0041›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUse</source>
        <translation>私用文字を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepPrivateUseTip</source>
        <translation>前：a‹U+E000›b → ab
後：a‹U+E000›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphens</source>
        <translation>ソフトハイフンを残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepSoftHyphensTip</source>
        <translation>前：a‹U+00AD›b → ab
後：a‹U+00AD›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariations</source>
        <translation>異体字セレクターを残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepVariationsTip</source>
        <translation>前：a‹U+FE0F›b → ab
後：a‹U+FE0F›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirections</source>
        <translation>方向の記号を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepDirectionsTip</source>
        <translation>前：a‹U+200E›b → ab
後：a‹U+200E›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisible</source>
        <translation>幅のない文字を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepInvisibleTip</source>
        <translation>前：a‹U+200B›b → ab
後：a‹U+200B›b</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigatures</source>
        <translation>合字を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepLigaturesTip</source>
        <translation>前：ﬁ → fi
後：ﬁ</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanks</source>
        <translation>特殊な空白を残す</translation>
    </message>
    <message>
        <source>sCleanCharactersKeepBlanksTip</source>
        <translation>前：a‹U+00A0›b → a·b
後：a‹U+00A0›b</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrow</source>
        <translation>全角英数字を半角にする</translation>
    </message>
    <message>
        <source>sCleanCharactersNarrowTip</source>
        <translation>前：Ａ１
後：A1</translation>
    </message>
    <message>
        <source>sCleanCharactersCompose</source>
        <translation>文字とアクセントを一つにする (NFC)</translation>
    </message>
    <message>
        <source>sCleanCharactersComposeTip</source>
        <translation>前：e + ◌́
後：é</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarks</source>
        <translation>引用符・ダッシュ・三点を簡素にする</translation>
    </message>
    <message>
        <source>sCleanCharactersPlainMarksTip</source>
        <translation>前：“a”—b…
後："a" - b...</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdown</source>
        <translation>Markdown の記号を取り除く</translation>
    </message>
    <message>
        <source>sCleanCharactersMarkdownTip</source>
        <translation>前：## a↵- **b** `c`
後：a↵• b c</translation>
    </message>
    <message>
        <source>sChangeCaseTo</source>
        <translation>大文字・小文字を変更</translation>
    </message>
    <message>
        <source>sChangeCaseToTip</source>
        <translation>前：HELLO. YOU.
後（文頭のみ大文字）：Hello. You.</translation>
    </message>
    <message>
        <source>sChangeCaseOption</source>
        <translation>大文字・小文字</translation>
    </message>
    <message>
        <source>sChangeCaseOptionTip</source>
        <translation>前（すべて大文字）：HELLO
後（すべて小文字）：hello</translation>
    </message>
    <message>
        <source>sChangeQuotes</source>
        <translation>引用符を変更</translation>
    </message>
    <message>
        <source>sChangeQuotesTip</source>
        <translation>前：‘テキスト’
後（一重を二重に）：“テキスト”</translation>
    </message>
    <message>
        <source>sChangeQuotesOption</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>sChangeQuotesOptionTip</source>
        <translation>前（一重を二重に）：‘テキスト’
後：“テキスト”</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOption</source>
        <translation>一重引用符</translation>
    </message>
    <message>
        <source>sChangeQuotesSingleOptionTip</source>
        <translation>前：&apos;テキスト&apos;
後（‚…‘）：‚テキスト‘</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOption</source>
        <translation>二重引用符</translation>
    </message>
    <message>
        <source>sChangeQuotesDoubleOptionTip</source>
        <translation>前：&quot;テキスト&quot;
後（„…“）：„テキスト“</translation>
    </message>
    <message>
        <source>sChangeQuotesAll</source>
        <translation>すべての種類の引用符</translation>
    </message>
    <message>
        <source>sChangeQuotesAllTip</source>
        <translation>前：«テキスト» はそのまま。
後：«テキスト» も変換されます。</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotes</source>
        <translation>一重引用符を削除</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesTip</source>
        <translation>前：‘テキスト’
後：テキスト</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAll</source>
        <translation>すべての種類の一重引用符</translation>
    </message>
    <message>
        <source>sRemoveSingleQuotesAllTip</source>
        <translation>前：‹テキスト› はそのまま。
後：テキスト</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotes</source>
        <translation>二重引用符を削除</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesTip</source>
        <translation>前：“テキスト”
後：テキスト</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAll</source>
        <translation>すべての種類の二重引用符</translation>
    </message>
    <message>
        <source>sRemoveDoubleQuotesAllTip</source>
        <translation>前：«テキスト» はそのまま。
後：テキスト</translation>
    </message>
    <message>
        <source>sRemoveBullets</source>
        <translation>箇条書きの記号を削除</translation>
    </message>
    <message>
        <source>sRemoveBulletsTip</source>
        <translation>前：•·牛乳↵•·パン
後：牛乳↵パン
行の途中の行頭記号も消えます。</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotes</source>
        <translation>返信の引用記号を削除</translation>
    </message>
    <message>
        <source>sRemoveReplyQuotesTip</source>
        <translation>前：&gt;·&gt;·こんにちは
後：こんにちは
行の途中の &gt; もすべて消え、HTMLタグの終わりも消えます。</translation>
    </message>
    <message>
        <source>sRemoveHTMLTags</source>
        <translation>HTML タグを削除</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsTip</source>
        <translation>前：&lt;b&gt;太字&lt;/b&gt;
後：太字
「返信の引用記号を削除」が先に働いてタグの &gt; を消すため、文章全体が消えることがあります。</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJS</source>
        <translation>スクリプトも</translation>
    </message>
    <message>
        <source>sRemoveHTMLTagsJSTip</source>
        <translation>前：&lt;script&gt; の中のテキストが残ります。
後：タグと一緒に消えます。</translation>
    </message>
    <message>
        <source>sCleanLinks</source>
        <translation>リンクの追跡情報を削除</translation>
    </message>
    <message>
        <source>sCleanLinksTip</source>
        <translation>前：https://example.org/a?id=7&amp;utm_source=mail
後：https://example.org/a?id=7</translation>
    </message>
    <message>
        <source>sCleanLinksRules</source>
        <translation>追加の規則</translation>
    </message>
    <message>
        <source>sCleanLinksRulesTip</source>
        <translation>ClearURLs 形式の追加規則のファイル。
指定しないときは Nerlo Pro の一覧だけを使います。</translation>
    </message>
    <message>
        <source>sChooseFile</source>
        <translation>ファイルを選択…</translation>
    </message>
    <message>
        <source>sInsertYourPattern</source>
        <translation>独自のパターンを使う</translation>
    </message>
    <message>
        <source>sInsertYourPatternTip</source>
        <translation>前（[0-9]）：a1b2
後（削除）：ab</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextField</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>sInsertYourPatternTextFieldTip</source>
        <translation>正規表現です。
前（[0-9]）：a1b2
後（削除）：ab</translation>
    </message>
    <message>
        <source>sPatternUnusable</source>
        <translation>正しい正規表現ではないため、何も見つかりません。</translation>
    </message>
    <message>
        <source>sRuleLeftOut</source>
        <translation>直前のクリーンアップでは省かれました。そのテキストには処理が重すぎます。</translation>
    </message>
    <message>
        <source>sRulesLeftOut</source>
        <translation>このテキストには処理が重すぎるため省かれたルール: %@</translation>
    </message>
    <message>
        <source>sInsertYourPatternOption</source>
        <translation>一致した部分</translation>
    </message>
    <message>
        <source>sInsertYourPatternOptionTip</source>
        <translation>前（削除 [0-9]）：a1b2 → ab
後（検索 [0-9]）：a1b2 → 12</translation>
    </message>
    <message>
        <source>sRemoveAllSpacesTabsAndNewLines</source>
        <translation>空白・タブ・改行を空白 1 つに</translation>
    </message>
    <message>
        <source>sChangeProperty1</source>
        <translation>置換 1</translation>
    </message>
    <message>
        <source>sChangeProperty2</source>
        <translation>置換 2</translation>
    </message>
    <message>
        <source>sChangeProperty3</source>
        <translation>置換 3</translation>
    </message>
    <message>
        <source>sChangeProperty4</source>
        <translation>置換 4</translation>
    </message>
    <message>
        <source>sChangeProperty5</source>
        <translation>置換 5</translation>
    </message>
    <message>
        <source>sChangeProperty6</source>
        <translation>置換 6</translation>
    </message>
    <message>
        <source>sChangeProperty7</source>
        <translation>置換 7</translation>
    </message>
    <message>
        <source>sChangeProperty8</source>
        <translation>置換 8</translation>
    </message>
    <message>
        <source>sChangeProperty9</source>
        <translation>置換 9</translation>
    </message>
    <message>
        <source>sChangeProperty10</source>
        <translation>置換 10</translation>
    </message>
    <message>
        <source>sChangePropertyTip</source>
        <translation>前：プリンター
後（「プリンター」と「プリンタ」）：プリンタ</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextField</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>sChangePropertyChangeTextFieldTip</source>
        <translation>検索するテキストです。
前：プリンター
後（「プリンター」と「プリンタ」）：プリンタ</translation>
    </message>
    <message>
        <source>sChangePropertyToTextField</source>
        <translation>置換後</translation>
    </message>
    <message>
        <source>sChangePropertyToTextFieldTip</source>
        <translation>代わりに入れるテキストです。空なら削除されます。
前：プリンター
後（「プリンター」と「プリンタ」）：プリンタ</translation>
    </message>
    <message>
        <source>sIndent</source>
        <translation>字下げ</translation>
    </message>
    <message>
        <source>sTag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>独自</translation>
    </message>
    <message>
        <source>sFindReplaceBool</source>
        <translation>検索と置換のリストを適用</translation>
    </message>
    <message>
        <source>sFindReplaceBoolTip</source>
        <translation>前：(株) ネルロ
後（(株) → 株式会社）：株式会社 ネルロ</translation>
    </message>
    <message>
        <source>sOnlyOneProfile</source>
        <translation>全プロファイルで 1 つのリスト</translation>
    </message>
    <message>
        <source>sOnlyOneProfileTip</source>
        <translation>前：プロファイルごとにリストがあります。
後：すべてのプロファイルが 1 つのリストを共有します。</translation>
    </message>
    <message>
        <source>sFindReplaceList</source>
        <translation>ルール（最初から最後まで）</translation>
    </message>
    <message>
        <source>sFindReplaceListTip</source>
        <translation>ルールは上から下へ適用されます。移動するにはドラッグするか、Alt+↑ と Alt+↓ を押します。</translation>
    </message>
    <message>
        <source>sFindReplaceWith</source>
        <translation>置換後</translation>
    </message>
    <message>
        <source>sFindReplaceWithTip</source>
        <translation>{search} で始めるとパターンに一致した部分だけを残し、{delete} で始めるとそれを削除します。
前（[0-9]と{search}#）：a1b2
後：1#2#</translation>
    </message>
    <message>
        <source>sFindReplaceAdd</source>
        <translation>ルールを追加</translation>
    </message>
    <message>
        <source>sFindReplaceAddTip</source>
        <translation>リストの末尾にルールを追加します。</translation>
    </message>
    <message>
        <source>sFindReplaceRemove</source>
        <translation>ルールを削除</translation>
    </message>
    <message>
        <source>sFindReplaceRemoveTip</source>
        <translation>選択中のルールを削除します。</translation>
    </message>
    <message>
        <source>sFindReplaceUp</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>sFindReplaceUpTip</source>
        <translation>選択中のルールを上へ移動し、先に適用されるようにします。</translation>
    </message>
    <message>
        <source>sFindReplaceDown</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>sFindReplaceDownTip</source>
        <translation>選択中のルールを下へ移動し、後で適用されるようにします。</translation>
    </message>
    <message>
        <source>sFindReplaceNewItem</source>
        <translation>新しいルール</translation>
    </message>
    <message>
        <source>sFindReplaceDelete</source>
        <translation>削除するルールを選択してください</translation>
    </message>
    <message>
        <source>sFindReplaceSelect</source>
        <translation>ルールを選択してください</translation>
    </message>
    <message>
        <source>sFindReplacePlaceholderString</source>
        <translation>置換テキスト</translation>
    </message>
    <message>
        <source>sRuleColumnOn</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>sRuleColumnOnTip</source>
        <translation>ルールを適用するかどうか。</translation>
    </message>
    <message>
        <source>sRuleColumnFind</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>sRuleColumnFindTip</source>
        <translation>ルールが探すもの。テキスト、または種類によってはパターン。</translation>
    </message>
    <message>
        <source>sRuleColumnKind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>sRuleColumnKindTip</source>
        <translation>テキストはそのまま検索され、パターンは正規表現です。
確認なし：一致だけを残す場合、一致のないテキストは空になります。</translation>
    </message>
    <message>
        <source>sRuleColumnFound</source>
        <translation>一致数</translation>
    </message>
    <message>
        <source>sRuleColumnFoundTip</source>
        <translation>プレビューのテキストでルールが見つける回数。</translation>
    </message>
    <message>
        <source>sRuleKindText</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>sRuleKindReplace</source>
        <translation>パターン：置換</translation>
    </message>
    <message>
        <source>sRuleKindKeep</source>
        <translation>パターン：一致を残す</translation>
    </message>
    <message>
        <source>sRuleKindReplaceUntested</source>
        <translation>パターン：置換（確認なし）</translation>
    </message>
    <message>
        <source>sRuleKindKeepUntested</source>
        <translation>パターン：一致を残す（確認なし）</translation>
    </message>
    <message>
        <source>sRulePatternAt</source>
        <translation>パターンの %@ 文字目が正しくないため、何も見つかりません。</translation>
    </message>
    <message>
        <source>sRuleFindsNothing</source>
        <translation>プレビューのテキストには何も見つかりません。</translation>
    </message>
    <message>
        <source>sRuleFinds</source>
        <translation>プレビューのテキストでの一致：%@</translation>
    </message>
    <message>
        <source>sRuleSampleBroken</source>
        <translation>例 %@ は成り立ちません。ルールの結果：%@</translation>
    </message>
    <message>
        <source>sRuleSamples</source>
        <translation>選択したルールの例</translation>
    </message>
    <message>
        <source>sRuleSamplesTip</source>
        <translation>ルールがテキストをどう変えるべきか。変更のたびにすべて試されます。</translation>
    </message>
    <message>
        <source>sRuleSampleResult</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>sRuleSampleHolds</source>
        <translation>成り立つ</translation>
    </message>
    <message>
        <source>sRuleSampleFails</source>
        <translation>成り立たない</translation>
    </message>
    <message>
        <source>sRuleSampleAdd</source>
        <translation>例を追加</translation>
    </message>
    <message>
        <source>sRuleSampleAddTip</source>
        <translation>プレビューで最初に一致した箇所を例にします。内容を確認してください。</translation>
    </message>
    <message>
        <source>sRuleLists</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>sRuleListsTip</source>
        <translation>ルールのコピーと貼り付け、リストの読み込みと書き出し、用意されたリストの利用。</translation>
    </message>
    <message>
        <source>Dates to ISO (2024-12-03)</source>
        <translation>日付を ISO 形式に (2024-12-03)</translation>
    </message>
    <message>
        <source>Decimal commas to points</source>
        <translation>小数点のコンマをピリオドに</translation>
    </message>
    <message>
        <source>Footnote numbers out</source>
        <translation>脚注番号を取り除く</translation>
    </message>
    <message>
        <source>Shell prompts out</source>
        <translation>シェルのプロンプトを取り除く</translation>
    </message>
    <message>
        <source>Typographic punctuation to plain</source>
        <translation>約物を単純な記号に</translation>
    </message>
    <message>
        <source>sRuleCopy</source>
        <translation>ルールをコピー</translation>
    </message>
    <message>
        <source>sRulePaste</source>
        <translation>ルールを貼り付け</translation>
    </message>
    <message>
        <source>sRulesImport</source>
        <translation>リストを読み込む…</translation>
    </message>
    <message>
        <source>sRulesExport</source>
        <translation>リストを書き出す…</translation>
    </message>
    <message>
        <source>sRulesImportTitle</source>
        <translation>リスト「%@」によるルールの変更：</translation>
    </message>
    <message>
        <source>sRuleEffect</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>sRuleAdded</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>sRuleChanged</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>sRuleStays</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>sRulesImportDo</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>sRulesUnreadable</source>
        <translation>読み取れるルールのリストではありません。</translation>
    </message>
    <message>
        <source>sRulesNotWritten</source>
        <translation>リストを書き込めませんでした。</translation>
    </message>
    <message>
        <source>sRulePasteNothing</source>
        <translation>クリップボードにルールがありません。</translation>
    </message>
    <message>
        <source>sDeleted</source>
        <translation>削除しました。</translation>
    </message>
    <message>
        <source>sDeletedTip</source>
        <translation>これを取り消します。</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>改行</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Cursor position</source>
        <translation>ポインターの位置</translation>
    </message>
    <message>
        <source>Change tab to 4 spaces, Change 4 spaces to tab</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>タブを空白 4 つに, 空白 4 つをタブに</translation>
    </message>
    <message>
        <source>Change 3 dots to ellipsis, Change ellipsis to 3 dots</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>ピリオド 3 つを三点リーダーに, 三点リーダーをピリオド 3 つに</translation>
    </message>
    <message>
        <source>none, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>なし, 空白</translation>
    </message>
    <message>
        <source>none, single return, double returns, space</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>なし, 改行 1 つ, 改行 2 つ, 空白, 改行と空白, 改行とタブ, 改行と独自のテキスト, HTML の段落, HTML の画像タグ, 行を囲む独自のテキスト</translation>
    </message>
    <message>
        <source>smart capitalized, capitalized, lowercase, uppercase</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>文頭のみ大文字, 単語の先頭を大文字, すべて小文字, すべて大文字</translation>
    </message>
    <message>
        <source>single to double, double to single</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>一重を二重に, 二重を一重に</translation>
    </message>
    <message>
        <source>delete, search</source>
        <extracomment>Keep the number of items, and the “, ” between them.</extracomment>
        <translation>削除, 検索</translation>
    </message>
    <message>
        <source>sPreview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>sPreviewTip</source>
        <translation>オプションの効果を表示します。求めるまでクリップボードは変わりません。</translation>
    </message>
    <message>
        <source>sPreviewBefore</source>
        <translation>前</translation>
    </message>
    <message>
        <source>sPreviewBeforeTip</source>
        <translation>ここにテキストを入力または貼り付けて、オプションを試せます。</translation>
    </message>
    <message>
        <source>sPreviewAfter</source>
        <translation>後</translation>
    </message>
    <message>
        <source>sPreviewAfterTip</source>
        <translation>オプションで整形したテキストです。変わった部分に印が付きます。</translation>
    </message>
    <message>
        <source>sPreviewPlaceholder</source>
        <translation>テキストを入力するか、クリップボードから取り込みます</translation>
    </message>
    <message>
        <source>sPreviewTake</source>
        <translation>クリップボードから取り込む</translation>
    </message>
    <message>
        <source>sPreviewTakeTip</source>
        <translation>クリップボードのテキストをプレビューにコピーします。</translation>
    </message>
    <message>
        <source>sPreviewApply</source>
        <translation>クリップボードを整形</translation>
    </message>
    <message>
        <source>sPreviewApplyTip</source>
        <translation>クリップボードのテキストを、このオプションで今すぐ整形します。</translation>
    </message>
    <message>
        <source>sPreviewShownBeforeTip</source>
        <translation>選んだ段階の前のテキスト、または長いテキストの変更された部分です。ここでは編集できません。</translation>
    </message>
    <message>
        <source>sPreviewClear</source>
        <translation>別のテキストを入力</translation>
    </message>
    <message>
        <source>sPreviewClearTip</source>
        <translation>長いテキストをプレビューから外し、別のテキストを入力できるようにします。</translation>
    </message>
    <message>
        <source>sPreviewSteps</source>
        <translation>段階</translation>
    </message>
    <message>
        <source>sPreviewStepsTip</source>
        <translation>何かを変えた段階と、変更の数です。一つ選ぶとその段階だけの働きが、もう一度選ぶと全体が表示されます。</translation>
    </message>
    <message>
        <source>sPreviewAllSteps</source>
        <translation>すべての段階</translation>
    </message>
    <message>
        <source>sPreviewStep</source>
        <translation>%@、変更: %@</translation>
    </message>
    <message>
        <source>sPreviewLong</source>
        <translation>長いテキストのため、変更された部分だけを表示しています。</translation>
    </message>
    <message>
        <source>sPreviewMarksAteTags</source>
        <translation>「%@」が HTML タグの &gt; を取り除いたため、「%@」にはタグが残っていません。どちらかをオフにしてください。</translation>
    </message>
    <message>
        <source>sLeftOutLines</source>
        <translation>⋯ 変更のない行: %@</translation>
    </message>
    <message>
        <source>sLeftOutCharacters</source>
        <translation> ⋯ 文字数: %@ ⋯ </translation>
    </message>
    <message>
        <source>sLeftOutChanges</source>
        <translation>⋯ ほかの変更: %@</translation>
    </message>
    <message>
        <source>sPreviewTooLong</source>
        <translation>テキストが長すぎるため、先頭だけを表示しています。</translation>
    </message>
    <message>
        <source>sPreviewNothing</source>
        <translation>クリップボードにテキストがありません。</translation>
    </message>
    <message>
        <source>sPreviewSample</source>
        <extracomment>The text that the preview begins with: it should show multiple spaces, reply marks, a broken line, bullets and quotation marks.</extracomment>
        <translation>読者の皆様 。

&gt;  この文は引用です。
&gt;  次の文もそうです。

•  『新鮮な』牛乳を買う。
•  『黒い』パンを買う。
</translation>
    </message>
    <message>
        <source>sChars</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>sSpaces</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>sWords</source>
        <translation>単語</translation>
    </message>
    <message>
        <source>sParagraphs</source>
        <translation>段落</translation>
    </message>
    <message>
        <source>sCountWindow</source>
        <extracomment>Name of the small window with the counts.</extracomment>
        <translation>統計</translation>
    </message>
    <message>
        <source>sCountWindowTip</source>
        <translation>クリックで閉じる</translation>
    </message>
    <message>
        <source>sTipsPrevious</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>sTipsNext</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>sTipsDone</source>
        <translation>はじめる</translation>
    </message>
    <message>
        <source>sTipsPage</source>
        <extracomment>%1 and %2 are numbers.</extracomment>
        <translation>ヒント %1 / %2</translation>
    </message>
    <message>
        <source>sTipsAtStart</source>
        <translation>起動のたびにヒントを表示</translation>
    </message>
    <message>
        <source>sTipsAtStartTip</source>
        <translation>前：ヒントはメニューからだけ開きます。
後：Nerlo Pro を起動するたびに開きます。</translation>
    </message>
    <message>
        <source>sWhatsNewWindow</source>
        <translation>Nerlo Pro の新機能</translation>
    </message>
    <message>
        <source>sHelpText</source>
        <translation>### コピー、整形、貼り付け

テキストをコピーし、トレイのメニューで「%@」を選ぶかショートカットを押して、貼り付けます。何を整形するかは環境設定で決め、プレビューで確かめます。

### 自動で

「%@」はコピーのたびに整形します。リンク、ファイル、画像、パスワードには触れません。

### 元に戻す

「%@」はコピーした内容を書式ごと戻します。10 分間有効です。

### 一つの操作だけ

メニューには操作が一つずつあります。`nerlo-pro --choose` では、探す言葉を入力し、結果を見て Enter を押します。

### プロファイル

プロファイルはオプションの組です。メニューか環境設定の上部で切り替えます。

### 環境設定のキー

Ctrl+F はオプションを探し、Ctrl+Z は取り消し、F1 はこのヘルプを開きます。

### うまく動かないとき

端末で `nerlo-pro --doctor` はこのデスクトップに足りないものを、`nerlo-pro --why` は最後のコピーがどうなったかを示します。ほかは `man nerlo-pro` にあります。</translation>
    </message>
    <message>
        <source>sWhatsNewTips</source>
        <translation>ヒントを表示</translation>
    </message>
    <message>
        <source>sWhatsNewText</source>
        <translation>- **用意されたプロファイル**: PDF、メール、ウェブページ、端末、アシスタントの回答、コード用。
- **適したプロファイルを自動で**: 一般のページの表で、どのコピーをどのプロファイルが整形するかを決めます。
- **コード、表、リスト**: そのまま残せます。
- **新しい操作**: 端末の出力の整理、文字化けの修復、見えない文字の掃除、切れた単語の結合、リンクの掃除。
- **選択ウィンドウ**: `nerlo-pro --choose` は入力しながら操作を探し、前後のテキストを見せます。
- **検索と置換**: 規則には見本と回数があり、コピー、読み込み、書き出しができます。
- **プレビュー**: 変更した手順を示し、そのオプションへ導きます。
- **取り消し**: Ctrl+Z はオプション、規則、プロファイルの変更を戻します。
- **元に戻す**: 何が戻るかを示します。
- **ショートカット**: キーの名前で表示され、KDE の Wayland でも使えます。
- **端末では**: `nerlo check`、`--explain`、終わりのないパイプ、JSON Lines、C と Python のライブラリ。</translation>
    </message>
    <message>
        <source>sTip1Title</source>
        <translation>コピーすれば、もうきれい</translation>
    </message>
    <message>
        <source>sTip1Text</source>
        <translation>Nerlo Pro はトレイに常駐し、コピーしたものをきれいなプレーンテキストにします。余分な空白も、途切れた行も、書式も残りません。</translation>
    </message>
    <message>
        <source>sTip2Title</source>
        <translation>手動でも自動でも</translation>
    </message>
    <message>
        <source>sTip2Text</source>
        <translation>メニューの「クリップボードの書式を消去」を選ぶか、ショートカットを押すか、「書式を自動的に消去」でコピーのたびに整形できます。</translation>
    </message>
    <message>
        <source>sTip3Title</source>
        <translation>整形の前に確認</translation>
    </message>
    <message>
        <source>sTip3Text</source>
        <translation>設定にはテキストの前後が表示されます。オプションにチェックを入れて効果を見られます。クリップボードはそのままです。</translation>
    </message>
    <message>
        <source>sTip4Title</source>
        <translation>用途ごとのプロファイル</translation>
    </message>
    <message>
        <source>sTip4Text</source>
        <translation>メール用とコード用など、オプションの組を分けておき、トレイのメニューで切り替えられます。</translation>
    </message>
    <message>
        <source>sTip5Title</source>
        <translation>独自のルール</translation>
    </message>
    <message>
        <source>sTip5Text</source>
        <translation>検索と置換のリストはルールを順に適用します。ドラッグで並べ替えられ、パターンも使えます。</translation>
    </message>
    <message>
        <source>sTip6Title</source>
        <translation>何も失われません</translation>
    </message>
    <message>
        <source>sTip6Text</source>
        <translation>メニューの「元の内容に戻す」で、以前クリップボードにあったものが書式ごと戻ります。</translation>
    </message>
    <message>
        <source>sTrayAutomatic</source>
        <translation>Nerlo Pro – コピーのたびに整形中</translation>
    </message>
    <message>
        <source>sTrayProblem</source>
        <translation>Nerlo Pro – 動作していない機能があります</translation>
    </message>
    <message>
        <source>sAboutText</source>
        <extracomment>%1 is the version.</extracomment>
        <translation>クリップボードのテキストを整形します。
バージョン %1
MIT ライセンス</translation>
    </message>
    <message>
        <source>sRestoreNothing</source>
        <translation>元に戻せる内容がありません。</translation>
    </message>
    <message>
        <source>sRestoreRefused</source>
        <translation>クリップボードが変わったため、元の内容には戻しませんでした。</translation>
    </message>
    <message>
        <source>sRestoreIncomplete</source>
        <translation>元の内容に戻しましたが、一部の形式は時間内に読み取れませんでした。</translation>
    </message>
    <message>
        <source>sRestoreTooLarge</source>
        <translation>元の内容は %1 MB を超えていたため、保持されませんでした。</translation>
    </message>
    <message>
        <source>sRestoreTooOld</source>
        <translation>整形から %1 分以上たったため、元の内容はもう保持されていません。</translation>
    </message>
    <message>
        <source>sTextTooLarge</source>
        <translation>クリップボードのテキストは %1 MB を超えているため、整形しませんでした。</translation>
    </message>
    <message>
        <source>sReadyGentle</source>
        <translation>控えめ</translation>
    </message>
    <message>
        <source>sReadyPdf</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>sReadyMail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>sReadyWeb</source>
        <translation>Web ページ</translation>
    </message>
    <message>
        <source>sReadyTerminal</source>
        <translation>端末</translation>
    </message>
    <message>
        <source>sReadyAssistant</source>
        <translation>アシスタントの回答</translation>
    </message>
    <message>
        <source>sReadyCode</source>
        <translation>コードを保つ</translation>
    </message>
    <message>
        <source>sReady</source>
        <translation>%@（用意済み）</translation>
    </message>
    <message>
        <source>sProfileBegin</source>
        <translation>最初の内容</translation>
    </message>
    <message>
        <source>sProfileEmpty</source>
        <translation>空: すべてのオプションがオフ</translation>
    </message>
    <message>
        <source>sProfileCopy</source>
        <translation>「%@」のコピー</translation>
    </message>
    <message>
        <source>sCleanedAs</source>
        <translation>適用したプロファイル: %@</translation>
    </message>
    <message>
        <source>sChangedMost</source>
        <translation>変更: %@</translation>
    </message>
    <message>
        <source>sListBetween</source>
        <translation>、</translation>
    </message>
    <message>
        <source>sStepTabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>sStepSpaces</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>sStepLines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>sStepCase</source>
        <translation>大文字・小文字</translation>
    </message>
    <message>
        <source>sStepQuotes</source>
        <translation>引用符</translation>
    </message>
    <message>
        <source>sStepReplyMarks</source>
        <translation>返信記号</translation>
    </message>
    <message>
        <source>sStepTags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>sStepPattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>sStepReplacements</source>
        <translation>置換</translation>
    </message>
    <message>
        <source>sStepBullets</source>
        <translation>行頭記号</translation>
    </message>
    <message>
        <source>sStepDots</source>
        <translation>三点リーダー</translation>
    </message>
    <message>
        <source>sStepOrder</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>sStepDuplicates</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>sStepHyphens</source>
        <translation>ハイフン</translation>
    </message>
    <message>
        <source>sStepAdditions</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>sStepEncoding</source>
        <translation>エンコーディング</translation>
    </message>
    <message>
        <source>sStepCharacters</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>sStepWords</source>
        <translation>単語</translation>
    </message>
    <message>
        <source>sStepLinks</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>sFirstRules</source>
        <translation>クリーンで適用する規則は？</translation>
    </message>
    <message>
        <source>sFirstRulesAll</source>
        <translation>すべて: 改行、引用符、行頭記号を整えます</translation>
    </message>
    <message>
        <source>sFirstRulesGentle</source>
        <translation>控えめ: 空白と途切れた行だけ。コード、表、リストはそのまま</translation>
    </message>
    <message>
        <source>sCopyTable</source>
        <translation>どのコピーをどのプロファイルで整えるか</translation>
    </message>
    <message>
        <source>sCopyTableTip</source>
        <translation>コピーに合う最初のチェック済みの行が決めます。合う行がなければ、選択中のプロファイルで整えます。</translation>
    </message>
    <message>
        <source>sCopyAdd</source>
        <translation>行を追加</translation>
    </message>
    <message>
        <source>sCopyAddTip</source>
        <translation>表の最後に行を追加します。</translation>
    </message>
    <message>
        <source>sCopyRemove</source>
        <translation>行を削除</translation>
    </message>
    <message>
        <source>sCopyRemoveTip</source>
        <translation>選択した行を削除します。</translation>
    </message>
    <message>
        <source>sCopyUpTip</source>
        <translation>選択した行を上に移し、先に調べるようにします。</translation>
    </message>
    <message>
        <source>sCopyDownTip</source>
        <translation>選択した行を下に移し、後で調べるようにします。</translation>
    </message>
    <message>
        <source>sCopyLooks</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>sCopyLooksTip</source>
        <translation>コピーしたテキストの見た目です。</translation>
    </message>
    <message>
        <source>sCopyProgram</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>sCopyProgramTip</source>
        <translation>コピーしたときに前面にあったプログラムを「nerlo-pro --why」が示す名前で指定します。* は残りの任意の文字列です。わからないデスクトップもあります。</translation>
    </message>
    <message>
        <source>sCopyPage</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>sCopyPageTip</source>
        <translation>ブラウザーのコピー元のサイト（例: example.org）。* は任意のページです。</translation>
    </message>
    <message>
        <source>sCopyFormat</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>sCopyFormatTip</source>
        <translation>コピーが提供する形式（例: text/rtf）。* は残りの任意の文字列です。</translation>
    </message>
    <message>
        <source>sCopyProfile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>sCopyProfileTip</source>
        <translation>このようなコピーを整えるもの、または何もしないことを選びます。</translation>
    </message>
    <message>
        <source>sLooksAny</source>
        <translation>すべてのコピー</translation>
    </message>
    <message>
        <source>sLooksTerminal</source>
        <translation>端末のテキスト</translation>
    </message>
    <message>
        <source>sLooksCode</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>sLooksTable</source>
        <translation>表</translation>
    </message>
    <message>
        <source>sLooksLink</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>sLeaveAlone</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>sChooseForClipboard</source>
        <translation>クリップボードの処理を選ぶ</translation>
    </message>
    <message>
        <source>sChooseForClipboardTip</source>
        <translation>ポインターの位置に小さなウインドウを開きます。入力して操作、プロファイル、規則を探し、結果を見て Enter を押します。</translation>
    </message>
    <message>
        <source>sChooserSearch</source>
        <translation>操作、プロファイル、規則を探す</translation>
    </message>
    <message>
        <source>sChooserSearchTip</source>
        <translation>名前の言葉を入力します。矢印キーで結果から選びます</translation>
    </message>
    <message>
        <source>sChooserList</source>
        <translation>できること</translation>
    </message>
    <message>
        <source>sChooserListTip</source>
        <translation>Enter で結果をクリップボードに入れます</translation>
    </message>
    <message>
        <source>sChooserProfile</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>sChooserReady</source>
        <translation>用意されたプロファイル</translation>
    </message>
    <message>
        <source>sChooserRules</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>sChooserOperation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>sChooserSharedRules</source>
        <translation>すべてのプロファイルの規則</translation>
    </message>
    <message>
        <source>sChooserRulesOf</source>
        <translation>「%@」の規則</translation>
    </message>
    <message>
        <source>sChooserBeforeTip</source>
        <translation>クリップボードのテキスト</translation>
    </message>
    <message>
        <source>sChooserAfterTip</source>
        <translation>処理した結果</translation>
    </message>
    <message>
        <source>sChooserKeys</source>
        <translation>Enter：クリップボードへ · Esc：何も変えない</translation>
    </message>
    <message>
        <source>sChooserKeysPaste</source>
        <translation>Enter：クリップボードへ · Shift+Enter：貼り付けも · Esc：何も変えない</translation>
    </message>
    <message>
        <source>sTipShortcutTaken</source>
        <translation>設定のページ「%@」で別のキーを選んでください。</translation>
    </message>
    <message>
        <source>sRunnerWords</source>
        <translation>整形 クリーン</translation>
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
        <translation>書式を自動的に消去</translation>
    </message>
    <message>
        <source>Clean right after the copy</source>
        <translation>コピー直後に整形</translation>
    </message>
    <message>
        <source>Keep no original</source>
        <translation>元の内容を残さない</translation>
    </message>
    <message>
        <source>Except copies from Excel</source>
        <translation>Excel からのコピーを除く</translation>
    </message>
    <message>
        <source>Restore the original</source>
        <extracomment>Puts back what stood on the clipboard before the last clean.</extracomment>
        <translation>元の内容に戻す</translation>
    </message>
    <message>
        <source>Restore “%1”</source>
        <translation>「%1」に戻す</translation>
    </message>
    <message>
        <source>Single operations</source>
        <translation>個別の操作</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>プロファイル</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>What&apos;s new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Rate Nerlo Pro</source>
        <translation>Nerlo Pro を評価</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>E-mail to the developer</source>
        <translation>開発者にメール</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Quit Nerlo Pro</source>
        <translation>Nerlo Pro を終了</translation>
    </message>
    <message>
        <source>Hide Nerlo Pro</source>
        <translation>Nerlo Pro を隠す</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>整形</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Never in this program</source>
        <translation>このプログラムでは使わない</translation>
    </message>
    <message>
        <source>Never in “%1”</source>
        <translation>「%1」では使わない</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Cannot be used</source>
        <translation>使用できません</translation>
    </message>
    <message>
        <source>Click to record shortcut</source>
        <translation>ショートカットを記録</translation>
    </message>
    <message>
        <source>Not set</source>
        <extracomment>For screen readers, after “Shortcut: Sort lines, ”.</extracomment>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Type shortcut</source>
        <translation>ショートカットを入力</translation>
    </message>
    <message>
        <source>Use old shortcut</source>
        <translation>元のショートカットを使う</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Delete shortcut</source>
        <translation>ショートカットを削除</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
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
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
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
        <translation>キーの組み合わせ「%@」は使えません！</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by a system-wide keyboard shortcut. If you really want to use this key combination, most shortcuts can be changed in the Keyboard panel in System Preferences.</source>
        <translation>キーの組み合わせ「%@」は、システム全体のキーボードショートカットとしてすでに使われているため使えません。どうしても使いたい場合、ほとんどのショートカットはシステム設定の「キーボード」で変更できます。</translation>
    </message>
    <message>
        <source>The key combination &quot;%@&quot; can&apos;t be used because it&apos;s already used by the menu item &quot;%@&quot;.</source>
        <translation>キーの組み合わせ「%@」は、メニュー項目「%@」ですでに使われているため使えません。</translation>
    </message>
    <message>
        <source>GNOME runs an older version of the extension &quot;Nerlo Pro&quot;: log out and in</source>
        <translation>GNOME が拡張機能「Nerlo Pro」の古いバージョンを実行しています。一度ログアウトしてからログインしてください。</translation>
    </message>
    <message>
        <source>GNOME&apos;s extension &quot;Nerlo Pro&quot; does not answer</source>
        <translation>GNOME の拡張機能「Nerlo Pro」が応答しません。</translation>
    </message>
    <message>
        <source>a shortcut needs Ctrl or Super, or a function key</source>
        <translation>ショートカットには Ctrl、Super、またはファンクションキーが必要です。</translation>
    </message>
    <message>
        <source>another program has taken this key combination</source>
        <translation>このキーの組み合わせは別のプログラムが使用しています。</translation>
    </message>
    <message>
        <source>another shortcut of this program has the same keys</source>
        <translation>このプログラムの別のショートカットが同じキーを使っています。</translation>
    </message>
    <message>
        <source>it was declined in the desktop&apos;s dialog</source>
        <translation>デスクトップのダイアログで拒否されました。</translation>
    </message>
    <message>
        <source>this desktop has no GlobalShortcuts portal; bind &quot;nerlo-pro --operation N&quot; or &quot;nerlo-pro --clean&quot; in the desktop&apos;s own keyboard settings</source>
        <translation>このデスクトップには GlobalShortcuts ポータルがありません。デスクトップ自身のキーボード設定で「nerlo-pro --operation N」または「nerlo-pro --clean」をキーに割り当ててください。</translation>
    </message>
</context>
</TS>
