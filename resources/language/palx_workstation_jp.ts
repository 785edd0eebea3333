<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AddPatternDialog</name>
    <message>
        <source>First pattern</source>
        <translation>最初のパターン</translation>
    </message>
</context>
<context>
    <name>AutomaticStackerDialog</name>
    <message>
        <source>Automatic layout</source>
        <translation>自動配置</translation>
    </message>
    <message>
        <source>Top and bottom margin</source>
        <translation>上下の余白</translation>
    </message>
    <message>
        <source>Left and right margin</source>
        <translation>左右の余白</translation>
    </message>
    <message>
        <source>Space between products</source>
        <translation>製品の間隔</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>%1 mm over the pallet&apos;s edge</source>
        <translation>パレットの端から %1 mm はみ出し</translation>
    </message>
    <message>
        <source>Nothing fits</source>
        <translation>何も入りません</translation>
    </message>
    <message>
        <source>No turned row fits</source>
        <translation>回転した列が入りません</translation>
    </message>
    <message>
        <source>Boxes: %1, area: %2 %</source>
        <translation>箱: %1、面積: %2 %</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Confirm whether to overwrite the current stack type?</source>
        <translation>現在の配置を上書きしますか？</translation>
    </message>
    <message>
        <source>Please select an effective stack type!</source>
        <translation>有効な配置を選択してください！</translation>
    </message>
</context>
<context>
    <name>CalibrationFrame</name>
    <message>
        <source>Pallet frame</source>
        <translation>パレット座標系</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>搬入</translation>
    </message>
</context>
<context>
    <name>CascadeNestingWizard</name>
    <message>
        <source>Layers</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Layer sequence</source>
        <translation>段の順序</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>積み付け</translation>
    </message>
</context>
<context>
    <name>ControllerDialog</name>
    <message>
        <source>Recipes on the controller</source>
        <translation>コントローラのレシピ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>What the comparison says</source>
        <translation>比較の結果</translation>
    </message>
    <message>
        <source>Recipes of panel and controller</source>
        <translation>パネルとコントローラのレシピ</translation>
    </message>
    <message>
        <source>Send everything</source>
        <translation>すべて送る</translation>
    </message>
    <message>
        <source>Send all recipes to the controller</source>
        <translation>すべてのレシピをコントローラへ送る</translation>
    </message>
    <message>
        <source>Why nothing can be sent</source>
        <translation>送れない理由</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>有効なツール</translation>
    </message>
    <message>
        <source>Tool to switch to</source>
        <translation>切り替え先のツール</translation>
    </message>
    <message>
        <source>Switch tool</source>
        <translation>ツール切替</translation>
    </message>
    <message>
        <source>Switch the active tool</source>
        <translation>有効なツールを切り替える</translation>
    </message>
    <message>
        <source>There is no connection to the controller. Editing goes on; send the recipes when it is back.</source>
        <translation>コントローラに接続されていません。編集は続けられます。接続が戻ったらレシピを送ってください。</translation>
    </message>
    <message>
        <source>The controller is being asked for its recipes.</source>
        <translation>コントローラのレシピを問い合わせています。</translation>
    </message>
    <message>
        <source>The controller does not tell its recipes: %1</source>
        <translation>コントローラがレシピを知らせません: %1</translation>
    </message>
    <message>
        <source>The controller holds all %1 recipes as they are here.</source>
        <translation>コントローラの %1 件のレシピはここと同じです。</translation>
    </message>
    <message>
        <source>%1 of %2 recipes differ. Send everything to make the controller&apos;s the same.</source>
        <translation>%2 件中 %1 件のレシピが異なります。すべて送ると同じになります。</translation>
    </message>
    <message>
        <source>Active tool: %1</source>
        <translation>有効なツール: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Not possible without a connection.</source>
        <translation>接続がないとできません。</translation>
    </message>
    <message>
        <source>Shared tool %1</source>
        <translation>共通ツール %1</translation>
    </message>
    <message>
        <source>Tool of %1</source>
        <translation>%1 のツール</translation>
    </message>
    <message>
        <source>The recipes are being sent.</source>
        <translation>レシピを送っています。</translation>
    </message>
    <message>
        <source>The controller took all %1 recipes.</source>
        <translation>コントローラが %1 件のレシピをすべて受け取りました。</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>レシピは受け取られませんでした: %1</translation>
    </message>
    <message>
        <source>The tool is being switched.</source>
        <translation>ツールを切り替えています。</translation>
    </message>
    <message>
        <source>The controller works with the tool %1.</source>
        <translation>コントローラはツール %1 を使っています。</translation>
    </message>
    <message>
        <source>The controller did not take the tool. The log may say why.</source>
        <translation>コントローラがツールを受け取りませんでした。理由はログを見てください。</translation>
    </message>
</context>
<context>
    <name>DirectionsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>パターンの平面図</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Choose all products</source>
        <translation>すべての製品を選択</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>複数</translation>
    </message>
    <message>
        <source>Choose several products</source>
        <translation>複数の製品を選択</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>提案</translation>
    </message>
    <message>
        <source>Propose sides for the chosen products, or for all</source>
        <translation>選択した製品、またはすべての方向を提案</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>設定する内容</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>From the upper left</source>
        <translation>左上から</translation>
    </message>
    <message>
        <source>From above on the plan</source>
        <translation>平面図の上から</translation>
    </message>
    <message>
        <source>From the upper right</source>
        <translation>右上から</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>左から</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>真上</translation>
    </message>
    <message>
        <source>Straight down</source>
        <translation>まっすぐ下へ</translation>
    </message>
    <message>
        <source>From the right</source>
        <translation>右から</translation>
    </message>
    <message>
        <source>From the lower left</source>
        <translation>左下から</translation>
    </message>
    <message>
        <source>From below on the plan</source>
        <translation>平面図の下から</translation>
    </message>
    <message>
        <source>From the lower right</source>
        <translation>右下から</translation>
    </message>
    <message>
        <source>No products</source>
        <translation>製品なし</translation>
    </message>
    <message>
        <source>All products</source>
        <translation>すべての製品</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>製品 %1</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>製品を %1 個選択</translation>
    </message>
</context>
<context>
    <name>EditTools</name>
    <message>
        <source>Choose all products</source>
        <translation>すべての製品を選択</translation>
    </message>
    <message>
        <source>Choose several products by tapping</source>
        <translation>タップで複数の製品を選択</translation>
    </message>
    <message>
        <source>Move the plan with a finger</source>
        <translation>指で平面図を動かす</translation>
    </message>
    <message>
        <source>Snap to edges and neighbours</source>
        <translation>端と隣に吸着</translation>
    </message>
    <message>
        <source>Add a product</source>
        <translation>製品を追加</translation>
    </message>
    <message>
        <source>Copy the chosen products</source>
        <translation>選択した製品をコピー</translation>
    </message>
    <message>
        <source>Paste products</source>
        <translation>製品を貼り付け</translation>
    </message>
    <message>
        <source>Remove the chosen products</source>
        <translation>選択した製品を削除</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the left</source>
        <translation>左へ 90 度回す</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the right</source>
        <translation>右へ 90 度回す</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左へ移動</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右へ移動</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Step of moving</source>
        <translation>移動の刻み</translation>
    </message>
    <message>
        <source>Mirror the pattern, left and right</source>
        <translation>パターンを左右に反転</translation>
    </message>
    <message>
        <source>Mirror the pattern, top and bottom</source>
        <translation>パターンを上下に反転</translation>
    </message>
    <message>
        <source>Turn the whole pattern by 180 degrees</source>
        <translation>パターン全体を 180 度回す</translation>
    </message>
    <message>
        <source>Angle to turn by</source>
        <translation>回す角度</translation>
    </message>
    <message>
        <source>Turn by the angle beside</source>
        <translation>横の角度だけ回す</translation>
    </message>
    <message>
        <source>Align left edges</source>
        <translation>左端をそろえる</translation>
    </message>
    <message>
        <source>Align middles across</source>
        <translation>横方向の中央をそろえる</translation>
    </message>
    <message>
        <source>Align right edges</source>
        <translation>右端をそろえる</translation>
    </message>
    <message>
        <source>Space evenly across</source>
        <translation>横に等間隔</translation>
    </message>
    <message>
        <source>Align upper edges</source>
        <translation>上端をそろえる</translation>
    </message>
    <message>
        <source>Align middles along</source>
        <translation>縦方向の中央をそろえる</translation>
    </message>
    <message>
        <source>Align lower edges</source>
        <translation>下端をそろえる</translation>
    </message>
    <message>
        <source>Space evenly along</source>
        <translation>縦に等間隔</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Copy, remove, turn</source>
        <translation>コピー、削除、回転</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Whole pattern; turn by an angle</source>
        <translation>パターン全体、角度で回転</translation>
    </message>
    <message>
        <source>Align and space across</source>
        <translation>横にそろえる、等間隔</translation>
    </message>
    <message>
        <source>Align and space along</source>
        <translation>縦にそろえる、等間隔</translation>
    </message>
    <message>
        <source>Show the plan larger</source>
        <translation>平面図を拡大</translation>
    </message>
    <message>
        <source>Show the plan smaller</source>
        <translation>平面図を縮小</translation>
    </message>
</context>
<context>
    <name>ExchangeTableModel</name>
    <message>
        <source>ticked</source>
        <translation>選択あり</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>選択なし</translation>
    </message>
</context>
<context>
    <name>ExchangeText</name>
    <message>
        <source>recipe %1</source>
        <translation>レシピ %1</translation>
    </message>
    <message>
        <source>recipe %1 &quot;%2&quot;</source>
        <translation>レシピ %1「%2」</translation>
    </message>
    <message>
        <source>holds no list of recipes</source>
        <translation>レシピの一覧がありません</translation>
    </message>
    <message>
        <source>Writing the file</source>
        <translation>ファイルを書き込み中</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>ファイルを読み込み中</translation>
    </message>
</context>
<context>
    <name>FeedingDirectionWizard</name>
    <message>
        <source>Feeding directions</source>
        <translation>送り込み方向</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>積み付け</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>%1 is outside of %2 to %3%4.</source>
        <translation>%1 は %2～%3%4 の範囲外です。</translation>
    </message>
    <message>
        <source>With this margin no product fits on the pallet.</source>
        <translation>この余白ではパレットに製品を 1 個も置けません。</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>The product is larger than the pallet; it will reach over the edge.</source>
        <translation>製品がパレットより大きいため、端からはみ出します。</translation>
    </message>
</context>
<context>
    <name>FrameText</name>
    <message>
        <source>The pallet&apos;s place needs three calibration points.</source>
        <translation>パレットの位置には校正点が 3 つ必要です。</translation>
    </message>
</context>
<context>
    <name>HomeParts</name>
    <message>
        <source>Production</source>
        <translation>生産</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>レシピ</translation>
    </message>
</context>
<context>
    <name>ImExportDialog</name>
    <message>
        <source>How many are ticked</source>
        <translation>チェックした数</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>ファイルを選ぶ</translation>
    </message>
    <message>
        <source>When a name is taken</source>
        <translation>名前が重なるとき</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Tick all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Tick none</source>
        <translation>選択解除</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Undo the last import</source>
        <translation>直前のインポートを取り消す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>レシピのインポート</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>レシピのエクスポート</translation>
    </message>
    <message>
        <source>No file chosen</source>
        <translation>ファイル未選択</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>保存先未選択</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>These recipes are here already. Choose a file.</source>
        <translation>これらのレシピは既にあります。ファイルを選んでください。</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>%1 / %2 を選択</translation>
    </message>
    <message>
        <source>Open XML file</source>
        <translation>XML ファイルを開く</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>Save XML file</source>
        <translation>XML ファイルを保存</translation>
    </message>
    <message>
        <source>Choose a file to import from.</source>
        <translation>インポートするファイルを選んでください。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>中止しました。何も変更していません。</translation>
    </message>
    <message>
        <source>Imported: %1 new recipes, %2 of them replace others.</source>
        <translation>%1 件のレシピをインポートし、うち %2 件は置き換えです。</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>エクスポート先を指定してください！</translation>
    </message>
    <message>
        <source>Cancelled. No file was written.</source>
        <translation>中止しました。ファイルは書いていません。</translation>
    </message>
    <message>
        <source>%1 recipes were written to %2.</source>
        <translation>%1 件のレシピを %2 に書き込みました。</translation>
    </message>
    <message>
        <source>%1 imported recipes are removed, with what was changed in them since, and %2 replaced ones come back.</source>
        <translation>インポートした %1 件は以後の変更とともに削除され、置き換えた %2 件が戻ります。</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>直前のインポートを取り消しました。</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>処理の内容</translation>
    </message>
</context>
<context>
    <name>ImExportProjectDialog</name>
    <message>
        <source>Title</source>
        <translation>題名</translation>
    </message>
    <message>
        <source>Select Project</source>
        <translation>プロジェクトの選択</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>ファイルを選ぶ</translation>
    </message>
    <message>
        <source>Please select a project and ensure that the imported project file is complete, otherwise the import will fail!</source>
        <translation>プロジェクトを選び、ファイルが完全か確認してください。不完全だとインポートに失敗します！</translation>
    </message>
    <message>
        <source>Folder for the archives</source>
        <translation>アーカイブの保存先</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Choose the folder for the archives</source>
        <translation>アーカイブの保存先を選ぶ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Choose all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Choose none</source>
        <translation>選択解除</translation>
    </message>
    <message>
        <source>You can select the following actions to handle projects with the same name in the imported content. Rename the project by default, or you can choose to replace an existing project.</source>
        <translation>同名のプロジェクトの扱いを選べます。既定では改名し、既存のものを置き換えることもできます。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Rename the imported project</source>
        <translation>インポートする側を改名</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Replace the existing project</source>
        <translation>既存のプロジェクトを置き換え</translation>
    </message>
    <message>
        <source>Project templates</source>
        <translation>プロジェクトテンプレート</translation>
    </message>
    <message>
        <source>Leave the templates</source>
        <translation>テンプレートはそのまま</translation>
    </message>
    <message>
        <source>Reset template</source>
        <translation>テンプレートを初期化</translation>
    </message>
    <message>
        <source>Custom template</source>
        <translation>独自のテンプレート</translation>
    </message>
    <message>
        <source>Archive of templates</source>
        <translation>テンプレートのアーカイブ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Choose the archive of templates</source>
        <translation>テンプレートのアーカイブを選ぶ</translation>
    </message>
    <message>
        <source>Export the program templates</source>
        <translation>プログラムテンプレートをエクスポート</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>実行した内容</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Project archives</source>
        <translation>プロジェクトのアーカイブ</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>プロジェクトのインポート</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>プロジェクトのエクスポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>No folder is chosen</source>
        <translation>フォルダ未選択</translation>
    </message>
    <message>
        <source>No file is chosen</source>
        <translation>ファイル未選択</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>処理の内容</translation>
    </message>
    <message>
        <source>Choose project archives</source>
        <translation>プロジェクトのアーカイブを選ぶ</translation>
    </message>
    <message>
        <source>Checking the archives</source>
        <translation>アーカイブを確認中</translation>
    </message>
    <message>
        <source>Choose a folder for the archives</source>
        <translation>アーカイブの保存先を選んでください</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>インポートしない</translation>
    </message>
    <message>
        <source>Replaces the project %1</source>
        <translation>プロジェクト %1 を置き換え</translation>
    </message>
    <message>
        <source>Renamed to %1</source>
        <translation>%1 に改名</translation>
    </message>
    <message>
        <source>New project %1</source>
        <translation>新しいプロジェクト %1</translation>
    </message>
    <message>
        <source>New file %1</source>
        <translation>新しいファイル %1</translation>
    </message>
    <message>
        <source>Not exported</source>
        <translation>エクスポートしない</translation>
    </message>
    <message>
        <source>Replaces %1 of %2</source>
        <translation>%2 の %1 を置き換え</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>インポート済み: %1</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>エクスポートしました。</translation>
    </message>
    <message>
        <source>Cancelled: the folder is as it was before.</source>
        <translation>中止しました: フォルダは元のままです。</translation>
    </message>
    <message>
        <source>Not everything was exported; the log says why.</source>
        <translation>一部エクスポートできませんでした。理由はログにあります。</translation>
    </message>
    <message>
        <source>Cancelled: everything is as it was before.</source>
        <translation>中止しました: すべて元のままです。</translation>
    </message>
    <message>
        <source>Nothing was imported; the log says why.</source>
        <translation>何もインポートしていません。理由はログにあります。</translation>
    </message>
    <message>
        <source>Take the last import back? What was changed in it since is lost: %1</source>
        <translation>直前のインポートを取り消しますか? 以後の変更は失われます: %1</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>直前のインポートを取り消しました。</translation>
    </message>
    <message>
        <source>None</source>
        <comment>choose none</comment>
        <translation>すべて解除</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>インポートされなかったもの: %1</translation>
    </message>
    <message>
        <source>It was not imported; the log says why</source>
        <translation>インポートされませんでした。理由はログにあります</translation>
    </message>
</context>
<context>
    <name>ImportText</name>
    <message>
        <source>Merging the recipes</source>
        <translation>レシピを統合中</translation>
    </message>
</context>
<context>
    <name>IncomingFrame</name>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>Conveyor</source>
        <translation>コンベヤ</translation>
    </message>
    <message>
        <source>Corner that products lie in</source>
        <translation>製品が寄る角</translation>
    </message>
    <message>
        <source>Product on the conveyor</source>
        <translation>コンベヤ上の製品</translation>
    </message>
    <message>
        <source>Direction of the conveyor</source>
        <translation>コンベヤの向き</translation>
    </message>
    <message>
        <source>Way to the product</source>
        <translation>製品への経路</translation>
    </message>
    <message>
        <source>Enter point X</source>
        <translation>進入点 X</translation>
    </message>
    <message>
        <source>Enter point Y</source>
        <translation>進入点 Y</translation>
    </message>
    <message>
        <source>Enter point above</source>
        <translation>進入点の高さ</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>接近</translation>
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
        <source>Along X</source>
        <translation>X 方向</translation>
    </message>
    <message>
        <source>Along Y</source>
        <translation>Y 方向</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>角</translation>
    </message>
    <message>
        <source>Used by all recipes with &quot;Shared tool&quot;. Touch the corner at the conveyor&apos;s end that products lie in with the tool; the pick point is the middle of the product.</source>
        <translation>「共通ツール」を使うすべてのレシピで使われます。製品が寄るコンベヤ端の角にツールで触れてください。取り点は製品の中央です。</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>取り点</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>進入点</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>ロボットはすべての製品を取り点で取ります。</translation>
    </message>
    <message>
        <source>Lengthwise</source>
        <translation>縦向き</translation>
    </message>
    <message>
        <source>Crosswise</source>
        <translation>横向き</translation>
    </message>
</context>
<context>
    <name>ItemTableModel</name>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
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
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
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
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>x
mm</source>
        <translation>x
mm</translation>
    </message>
    <message>
        <source>y
mm</source>
        <translation>y
mm</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>Number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Allowed values</source>
        <translation>許容値</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>小数点</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>符号を変える</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>最後の 1 桁を消す</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Clear the value</source>
        <translation>値をクリアする</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1～%2 %3</translation>
    </message>
    <message>
        <source>Not allowed. Enter %1.</source>
        <translation>入力できません。%1 を入力してください。</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>許容範囲: %1</translation>
    </message>
</context>
<context>
    <name>LayerSeriesDialog</name>
    <message>
        <source>Layers in turn</source>
        <translation>交互の段</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>In turn with</source>
        <translation>交互の相手</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Sheet after every so many</source>
        <translation>合紙を入れる間隔</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>What the stack will be</source>
        <translation>積み付けの結果</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Mirrored left to right</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Mirrored front to back</source>
        <translation>前後反転</translation>
    </message>
    <message>
        <source>Turned by half</source>
        <translation>半回転</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>上に</translation>
    </message>
    <message>
        <source>From layer %1 on, replacing</source>
        <translation>%1 段目から置き換え</translation>
    </message>
</context>
<context>
    <name>LayerTableModel</name>
    <message>
        <source>Separator sheet</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Empty (end of stack)</source>
        <translation>空（積み付け終了）</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（なし）</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>箱数</translation>
    </message>
    <message>
        <source>From
mm</source>
        <translation>下端
mm</translation>
    </message>
    <message>
        <source>To
mm</source>
        <translation>上端
mm</translation>
    </message>
</context>
<context>
    <name>LayerText</name>
    <message>
        <source>is a separator sheet, but the recipe has separator sheets switched off</source>
        <translation>合紙の段ですが、レシピで合紙がオフになっています</translation>
    </message>
    <message>
        <source>is a separator sheet, but the sheet has no height</source>
        <translation>合紙の段ですが、合紙の高さがありません</translation>
    </message>
    <message>
        <source>has no pattern; this layer and those above it get no points</source>
        <translation>パターンがありません。この段とその上の段には点が作られません</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which this recipe does not have</source>
        <translation>このレシピにないパターン「%1」を使っています</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which holds no products</source>
        <translation>製品のないパターン「%1」を使っています</translation>
    </message>
    <message>
        <source>Layer %1 %2.</source>
        <translation>%1 段目: %2。</translation>
    </message>
    <message>
        <source>The recipe has no layers.</source>
        <translation>レシピに段がありません。</translation>
    </message>
    <message>
        <source>Layer %1 lies on an empty layer; the stack ends at its first empty layer, so only empty layers may follow it.</source>
        <translation>%1 段目が空の段の上にあります。積み付けは最初の空の段で終わるため、その後には空の段しか置けません。</translation>
    </message>
</context>
<context>
    <name>LayersFrame</name>
    <message>
        <source>Layers from the pallet up</source>
        <translation>パレットから上への各段</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>段の問題点</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>レシピの合計</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>段の平面図</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Height offset</source>
        <translation>高さオフセット</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add a layer on top</source>
        <translation>一番上に段を追加する</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message>
        <source>Insert before the chosen layer</source>
        <translation>選択した段の前に挿入する</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>No layer chosen</source>
        <translation>段が選択されていません</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>平面図</translation>
    </message>
    <message>
        <source>Show the plan of the layer instead of the stack</source>
        <translation>積み付けの代わりに段の平面図を表示</translation>
    </message>
    <message>
        <source>Remove the chosen layers</source>
        <translation>選択した段を削除</translation>
    </message>
    <message>
        <source>Place the chosen layers earlier</source>
        <translation>選択した段を前に移す</translation>
    </message>
    <message>
        <source>Place the chosen layers later</source>
        <translation>選択した段を後に移す</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>複数</translation>
    </message>
    <message>
        <source>Choose several layers</source>
        <translation>複数の段を選択</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Lay a separator sheet onto each chosen layer</source>
        <translation>選択した各段の上に合紙を置く</translation>
    </message>
    <message>
        <source>Repeat the chosen layers on top</source>
        <translation>選択した段を上に繰り返す</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Lay layers in turn, or mirror the chosen layers</source>
        <translation>段を交互に置く、または選択した段を反転</translation>
    </message>
    <message>
        <source>Pattern of %1 layers</source>
        <translation>%1 段のパターン</translation>
    </message>
    <message>
        <source>Pattern of layer %1</source>
        <translation>%1 段目のパターン</translation>
    </message>
    <message>
        <source>A recipe holds at most %1 layers.</source>
        <translation>レシピの段は最大 %1 です。</translation>
    </message>
    <message>
        <source>There is a sheet already, or no box to lay it on.</source>
        <translation>すでに合紙があるか、置く箱がありません。</translation>
    </message>
    <message>
        <source>The chosen layers look the same then.</source>
        <translation>選択した段は変わりません。</translation>
    </message>
    <message>
        <source>Layers in turn...</source>
        <translation>段を交互に...</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>左右に反転</translation>
    </message>
    <message>
        <source>Mirror front to back</source>
        <translation>前後に反転</translation>
    </message>
    <message>
        <source>Turn by half</source>
        <translation>半回転させる</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Matrix (vertical)</source>
        <translation>マトリックス (縦)</translation>
    </message>
    <message>
        <source>Matrix (horizontal)</source>
        <translation>マトリックス (横)</translation>
    </message>
    <message>
        <source>Crisscross</source>
        <translation>交互</translation>
    </message>
    <message>
        <source>Back letterform</source>
        <translation>回字形</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>製品の数が 200 を超えています</translation>
    </message>
</context>
<context>
    <name>LongWorkDialog</name>
    <message>
        <source>What is being done</source>
        <translation>実行中の操作</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>メッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>MoveToDialog</name>
    <message>
        <source>Target</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>軸</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Move on a straight line</source>
        <translation>直線で動く</translation>
    </message>
    <message>
        <source>By joints</source>
        <translation>軸で</translation>
    </message>
    <message>
        <source>Move joint by joint</source>
        <translation>各軸で動く</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>State of the move</source>
        <translation>動きの状態</translation>
    </message>
    <message>
        <source>Share of the way</source>
        <translation>進んだ割合</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Hold to move</source>
        <translation>押している間動く</translation>
    </message>
    <message>
        <source>Hold to move the robot to the point</source>
        <translation>押している間ロボットが点へ動く</translation>
    </message>
    <message>
        <source>Move to the point: %1</source>
        <translation>点へ移動: %1</translation>
    </message>
    <message>
        <source>Move to the point</source>
        <translation>点へ移動</translation>
    </message>
    <message>
        <source>Target %1</source>
        <translation>目標 %1</translation>
    </message>
    <message>
        <source>Present %1</source>
        <translation>現在 %1</translation>
    </message>
    <message>
        <source>No controller. %1</source>
        <translation>コントローラがありません。%1</translation>
    </message>
    <message>
        <source>Nobody has taught this point.</source>
        <translation>この点は教示されていません。</translation>
    </message>
    <message>
        <source>Hold the button to move. The way takes %1 s.</source>
        <translation>ボタンを押している間動きます。所要時間は %1 s です。</translation>
    </message>
    <message>
        <source>Hold the button to move.</source>
        <translation>ボタンを押している間動きます。</translation>
    </message>
    <message>
        <source>The controller refuses the move: %1.</source>
        <translation>コントローラが動きを拒否しました: %1。</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>コントローラを待っています。</translation>
    </message>
    <message>
        <source>The robot moves. Let go to stop it.</source>
        <translation>ロボットが動いています。離すと止まります。</translation>
    </message>
    <message>
        <source>The robot is stopping.</source>
        <translation>ロボットが停止中です。</translation>
    </message>
    <message>
        <source>Stopped before the point.</source>
        <translation>点の手前で止まりました。</translation>
    </message>
    <message>
        <source>Arrived.</source>
        <translation>到着しました。</translation>
    </message>
    <message>
        <source>Tool in the pallet&apos;s frame</source>
        <translation>パレット座標系のツール</translation>
    </message>
    <message>
        <source>Flange in the pallet&apos;s frame</source>
        <translation>パレット座標系のフランジ</translation>
    </message>
    <message>
        <source>Tool in the robot&apos;s base</source>
        <translation>ロボットベースのツール</translation>
    </message>
    <message>
        <source>Flange in the robot&apos;s base</source>
        <translation>ロボットベースのフランジ</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Why the name is refused</source>
        <translation>名前が使えない理由</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NewPatternDialog</name>
    <message>
        <source>New pattern</source>
        <translation>新しいパターン</translation>
    </message>
</context>
<context>
    <name>NodeBinder</name>
    <message>
        <source>%1 to %2 can be entered. The value stays as it was.</source>
        <translation>%1～%2 を入力できます。値はそのままです。</translation>
    </message>
</context>
<context>
    <name>OrderTools</name>
    <message>
        <source>Begin at</source>
        <translation>開始位置</translation>
    </message>
    <message>
        <source>Corner at which the order begins</source>
        <translation>順序を始める角</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>行ごと</translation>
    </message>
    <message>
        <source>Number row by row from the corner</source>
        <translation>角から行ごとに番号を付ける</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>列ごと</translation>
    </message>
    <message>
        <source>Number column by column from the corner</source>
        <translation>角から列ごとに番号を付ける</translation>
    </message>
    <message>
        <source>Outward</source>
        <translation>外向き</translation>
    </message>
    <message>
        <source>Number outward from the corner</source>
        <translation>角から外へ番号を付ける</translation>
    </message>
    <message>
        <source>By tapping</source>
        <translation>タップ順</translation>
    </message>
    <message>
        <source>Number the products as they are tapped</source>
        <translation>タップした順に番号を付ける</translation>
    </message>
    <message>
        <source>Place the product earlier</source>
        <translation>製品を先に移す</translation>
    </message>
    <message>
        <source>Place the product later</source>
        <translation>製品を後に移す</translation>
    </message>
    <message>
        <source>Propose sides</source>
        <translation>方向を提案</translation>
    </message>
    <message>
        <source>Let products come from their open sides</source>
        <translation>製品を空いた側から入れる</translation>
    </message>
    <message>
        <source>Blocked ways</source>
        <translation>ふさがれた経路</translation>
    </message>
    <message>
        <source>Show the ways of products that hit others</source>
        <translation>ほかに当たる製品の経路を表示</translation>
    </message>
    <message>
        <source>Back to the product placed before</source>
        <translation>前に置く製品へ戻る</translation>
    </message>
    <message>
        <source>Product that is being placed</source>
        <translation>置いている製品</translation>
    </message>
    <message>
        <source>On to the product placed next</source>
        <translation>次に置く製品へ</translation>
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
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Tap product %1 of %2</source>
        <translation>製品 %1／%2 をタップ</translation>
    </message>
    <message>
        <source>Walk through the placing</source>
        <translation>置く順にたどる</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1／%2: %3</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後へ</translation>
    </message>
</context>
<context>
    <name>PalletFrame</name>
    <message>
        <source>Pallet</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Standard size</source>
        <translation>標準サイズ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>余白</translation>
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
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Sheet length</source>
        <translation>合紙の長さ</translation>
    </message>
    <message>
        <source>Sheet width</source>
        <translation>合紙の幅</translation>
    </message>
    <message>
        <source>Sheet height</source>
        <translation>合紙の高さ</translation>
    </message>
    <message>
        <source>Sheet weight</source>
        <translation>合紙の重量</translation>
    </message>
    <message>
        <source>Place in the cell</source>
        <translation>セル内の位置</translation>
    </message>
    <message>
        <source>Pallet place</source>
        <translation>パレット位置</translation>
    </message>
    <message>
        <source>Post height</source>
        <translation>支柱の高さ</translation>
    </message>
    <message>
        <source>Shared tool</source>
        <translation>共通ツール</translation>
    </message>
    <message>
        <source>Use the tool shared by all recipes</source>
        <translation>全レシピ共通のツールを使う</translation>
    </message>
    <message>
        <source>Corner posts</source>
        <translation>コーナーポスト</translation>
    </message>
    <message>
        <source>The pallet has corner posts</source>
        <translation>パレットにコーナーポストがある</translation>
    </message>
    <message>
        <source>Shared work object</source>
        <translation>共通ワークオブジェクト</translation>
    </message>
    <message>
        <source>Use the work object shared by all recipes</source>
        <translation>全レシピ共通のワークオブジェクトを使う</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>任意サイズ</translation>
    </message>
</context>
<context>
    <name>PalletPlaceFrame</name>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>Pallet frame</source>
        <translation>パレット座標系</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Shift along X</source>
        <translation>X 方向のずらし</translation>
    </message>
    <message>
        <source>Shift along Y</source>
        <translation>Y 方向のずらし</translation>
    </message>
    <message>
        <source>Where the pallet lies</source>
        <translation>パレットの位置</translation>
    </message>
    <message>
        <source>Shared pallet frames</source>
        <translation>共通パレット座標系</translation>
    </message>
    <message>
        <source>Pallets lie from their origin</source>
        <translation>原点から見たパレット</translation>
    </message>
    <message>
        <source>Length of the taught box</source>
        <translation>教示した箱の長さ</translation>
    </message>
    <message>
        <source>Width of the taught box</source>
        <translation>教示した箱の幅</translation>
    </message>
    <message>
        <source>Calibrate by one point</source>
        <translation>1 点で校正</translation>
    </message>
    <message>
        <source>Three points</source>
        <translation>3 点</translation>
    </message>
    <message>
        <source>One point</source>
        <translation>1 点</translation>
    </message>
    <message>
        <source>Against the robot&apos;s X</source>
        <translation>ロボットの X と逆</translation>
    </message>
    <message>
        <source>Along the robot&apos;s X</source>
        <translation>ロボットの X 方向</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>原点</translation>
    </message>
    <message>
        <source>Point on X</source>
        <translation>X 上の点</translation>
    </message>
    <message>
        <source>Point towards Y</source>
        <translation>Y 側の点</translation>
    </message>
    <message>
        <source>Origin, left</source>
        <translation>原点、左</translation>
    </message>
    <message>
        <source>Origin, right</source>
        <translation>原点、右</translation>
    </message>
    <message>
        <source>Touch the pallet&apos;s origin with the tool: its axes run as the robot&apos;s.</source>
        <translation>ツールでパレットの原点に触れてください。軸はロボットと同じ向きです。</translation>
    </message>
    <message>
        <source>Touch the points with the tool: the origin, one along the pallet&apos;s length, one across it.</source>
        <translation>ツールで点に触れてください。原点、パレットの長さ方向に 1 点、幅方向に 1 点。</translation>
    </message>
    <message>
        <source>Not calibrated: the positions count from the robot&apos;s foot.</source>
        <translation>未校正です。位置はロボットの足元から数えられます。</translation>
    </message>
    <message>
        <source>Origin at X %1, Y %2, Z %3 mm, turned by %4°.</source>
        <translation>原点 X %1、Y %2、Z %3 mm、回転 %4°。</translation>
    </message>
    <message>
        <source>It comes from the recipe&apos;s tool record.</source>
        <translation>レシピのツールデータによります。</translation>
    </message>
    <message>
        <source>The shared work objects are not in use: they have to be calibrated by one point.</source>
        <translation>共通ワークオブジェクトは使われていません。1 点で校正してください。</translation>
    </message>
    <message>
        <source>Choose how both pallets lie: they have to lie alike.</source>
        <translation>両方のパレットの置き方を選んでください。同じ向きでなければなりません。</translation>
    </message>
    <message>
        <source>Shared by all recipes on these work objects. Hold a box in the pallet&apos;s inner corner, from which it lies as chosen here, and teach it.</source>
        <translation>これらのワークオブジェクトを使うすべてのレシピで共通です。ここで選んだ向きの起点となるパレットの内側の角で箱を持ち、教示してください。</translation>
    </message>
</context>
<context>
    <name>Palx</name>
    <message>
        <source>W-Palletizing</source>
        <translation>W-パレタイズ</translation>
    </message>
</context>
<context>
    <name>ParameterSettingsWizard</name>
    <message>
        <source>Product and pallet</source>
        <translation>製品とパレット</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>パレット</translation>
    </message>
</context>
<context>
    <name>PatternListModel</name>
    <message>
        <source>In %1 layers</source>
        <translation>%1 段で使用</translation>
    </message>
</context>
<context>
    <name>PatternNameDialog</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Letters, digits, &quot;_&quot; and &quot;-&quot;; at most 32.</source>
        <translation>英字、数字、「_」、「-」。最大 32 文字。</translation>
    </message>
    <message>
        <source>Clone of the present pattern</source>
        <translation>現在のパターンを複製</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Clone of pattern %1</source>
        <translation>パターン %1 を複製</translation>
    </message>
</context>
<context>
    <name>PatternTemplateDialog</name>
    <message>
        <source>Pattern Template</source>
        <translation>パターンテンプレート</translation>
    </message>
    <message>
        <source>Tempalte</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Kind of template</source>
        <translation>テンプレートの種類</translation>
    </message>
    <message>
        <source>X Number:</source>
        <translation>X の数:</translation>
    </message>
    <message>
        <source>Y Number:</source>
        <translation>Y の数:</translation>
    </message>
    <message>
        <source>Y1 Number:</source>
        <translation>Y1 の数:</translation>
    </message>
    <message>
        <source>Y2 Number:</source>
        <translation>Y2 の数:</translation>
    </message>
    <message>
        <source>X Offset(mm):</source>
        <translation>X オフセット(mm):</translation>
    </message>
    <message>
        <source>Y Offset(mm):</source>
        <translation>Y オフセット(mm):</translation>
    </message>
    <message>
        <source>X Space(mm):</source>
        <translation>X 間隔(mm):</translation>
    </message>
    <message>
        <source>Y Space(mm):</source>
        <translation>Y 間隔(mm):</translation>
    </message>
    <message>
        <source>How the template lays products</source>
        <translation>テンプレートの置き方</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>重ね</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>交差</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>はさみ</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Name is empty!</source>
        <translation>名前が空です！</translation>
    </message>
    <message>
        <source>Pattern name length is greater than 32!</source>
        <translation>パターン名が 32 文字を超えています！</translation>
    </message>
    <message>
        <source>Only letters, digits, &quot;_&quot; and &quot;-&quot; are allowed in a pattern&apos;s name.</source>
        <translation>パターン名に使えるのは英数字と「_」「-」だけです。</translation>
    </message>
    <message>
        <source>Name is repeated!</source>
        <translation>名前が重複しています！</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by layer %2.</source>
        <translation>パターン「%1」は %2 段目 で使われています。</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by the layers %2.</source>
        <translation>パターン「%1」は %2 段目 で使われています。</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by %2 layers: %3, ...</source>
        <translation>パターン「%1」は %2 段で使われています: %3 …</translation>
    </message>
</context>
<context>
    <name>PatternsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>改名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>パターンの平面図</translation>
    </message>
    <message>
        <source>Products of the pattern</source>
        <translation>パターンの製品</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>x (across)</source>
        <translation>x（横）</translation>
    </message>
    <message>
        <source>y (along)</source>
        <translation>y（縦）</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>dz</source>
        <translation>dz</translation>
    </message>
    <message>
        <source>Copy of pattern %1</source>
        <translation>パターン %1 のコピー</translation>
    </message>
    <message>
        <source>New name for pattern %1</source>
        <translation>パターン %1 の新しい名前</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>製品 %1</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>製品が選択されていません</translation>
    </message>
    <message>
        <source>The recipe was closed.</source>
        <translation>レシピは閉じられました。</translation>
    </message>
    <message>
        <source>Delete pattern</source>
        <translation>パターンの削除</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products.</source>
        <translation>1 つのパターンに置ける製品は最大 %1 個です。</translation>
    </message>
    <message>
        <source>Use size</source>
        <translation>寸法を使う</translation>
    </message>
    <message>
        <source>Give every product the size of the recipe&apos;s product</source>
        <translation>すべての製品にレシピの製品の寸法を使う</translation>
    </message>
    <message>
        <source>Make, rename and delete patterns</source>
        <translation>パターンの作成、名前の変更、削除</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Tools for editing the plan</source>
        <translation>平面図の編集ツール</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>Order and sides of placing</source>
        <translation>置く順序と方向</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Check of the pattern</source>
        <translation>パターンの確認</translation>
    </message>
    <message>
        <source>What is chosen or wrong on the plan</source>
        <translation>平面図の選択または問題</translation>
    </message>
    <message>
        <source>Show the whole plan</source>
        <translation>平面図全体を表示</translation>
    </message>
    <message>
        <source>Figures of the pattern</source>
        <translation>パターンの数値</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1 (%2 段)</translation>
    </message>
    <message>
        <source>1 product</source>
        <translation>製品 1 個</translation>
    </message>
    <message>
        <source>%1 products</source>
        <translation>製品 %1 個</translation>
    </message>
    <message>
        <source>This recipe has no pattern yet.</source>
        <translation>このレシピにはまだパターンがありません。</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>製品を %1 個選択</translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation>確認 %1</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>テンプレート</translation>
    </message>
    <message>
        <source>Add products by a template</source>
        <translation>テンプレートで製品を追加</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Fill the pattern by an automatic layout</source>
        <translation>自動配置でパターンを埋める</translation>
    </message>
    <message>
        <source>Patterns of the recipe</source>
        <translation>レシピのパターン</translation>
    </message>
    <message>
        <source>Delete the pattern %1?</source>
        <translation>パターン %1 を削除しますか?</translation>
    </message>
</context>
<context>
    <name>PlanarNestingWizard</name>
    <message>
        <source>Patterns</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Products in a layer</source>
        <translation>段の製品</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>送り込み方向</translation>
    </message>
</context>
<context>
    <name>PointGroup</name>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>State of the point</source>
        <translation>点の状態</translation>
    </message>
    <message>
        <source>Enter the values of the point by hand</source>
        <translation>点の値を手で入力する</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Clear the point</source>
        <translation>点をクリアする</translation>
    </message>
    <message>
        <source>All zero</source>
        <translation>すべて 0</translation>
    </message>
    <message>
        <source>Not taught</source>
        <translation>未教示</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>計算値</translation>
    </message>
    <message>
        <source>Taught</source>
        <translation>教示済み</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手入力</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>教示</translation>
    </message>
    <message>
        <source>Teach the point where the robot stands</source>
        <translation>ロボットの現在位置を教示</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Move the robot to the point</source>
        <translation>ロボットを点へ動かす</translation>
    </message>
    <message>
        <source>The controller is not connected: where the robot stands is not known.</source>
        <translation>コントローラが接続されていないため、ロボットの位置が分かりません。</translation>
    </message>
    <message>
        <source>The robot is moving. Teach the point when it stands.</source>
        <translation>ロボットが動いています。止まってから教示してください。</translation>
    </message>
    <message>
        <source>The controller does not tell where the robot stands.</source>
        <translation>コントローラがロボットの位置を知らせません。</translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>Enter</source>
        <translation>進入</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>接近</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>置き</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>取り</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>退避</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>X
mm</source>
        <translation>X
mm</translation>
    </message>
    <message>
        <source>Y
mm</source>
        <translation>Y
mm</translation>
    </message>
    <message>
        <source>Z
mm</source>
        <translation>Z
mm</translation>
    </message>
</context>
<context>
    <name>PointText</name>
    <message>
        <source>The place point is not taught.</source>
        <translation>置き点が教示されていません。</translation>
    </message>
    <message>
        <source>The enter point of the place side is not taught.</source>
        <translation>置き側の進入点が教示されていません。</translation>
    </message>
    <message>
        <source>The pallet place is neither left nor right, so all place positions will be 0.</source>
        <translation>パレット位置が左でも右でもないため、置き位置はすべて 0 になります。</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the left pallet is not taught.</source>
        <translation>左パレットの共通ワークオブジェクトの原点が教示されていません。</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the right pallet is not taught.</source>
        <translation>右パレットの共通ワークオブジェクトの原点が教示されていません。</translation>
    </message>
    <message>
        <source>The corner of the product on the conveyor is not taught.</source>
        <translation>コンベヤ上の製品の角が教示されていません。</translation>
    </message>
    <message>
        <source>The pick point is not taught.</source>
        <translation>取り点が教示されていません。</translation>
    </message>
    <message>
        <source>The enter point of the pick side is not taught.</source>
        <translation>取り側の進入点が教示されていません。</translation>
    </message>
    <message>
        <source>The shared work objects are not both calibrated by one point, so the place positions lie around the robot&apos;s foot.</source>
        <translation>共有ワークオブジェクトが両方とも1点で校正されていないため、配置位置がロボットの足元になります。</translation>
    </message>
    <message>
        <source>The pallet&apos;s place is not calibrated, so the place positions lie around the robot&apos;s foot.</source>
        <translation>パレットの位置が校正されていないため、配置位置がロボットの足元になります。</translation>
    </message>
    <message>
        <source>The shared tool is not measured, so the flange is taken for it.</source>
        <translation>共通ツールが測定されていないため、フランジがツールとして扱われます。</translation>
    </message>
    <message>
        <source>The recipe&apos;s tool is not measured, so the flange is taken for it.</source>
        <translation>レシピのツールが測定されていないため、フランジがツールとして扱われます。</translation>
    </message>
    <message>
        <source>The ready height of the place side, %1 mm, is less than the product&apos;s height, %2 mm: what comes straight from above could hit the products beside its place.</source>
        <translation>置き側の準備高さ %1 mm が製品の高さ %2 mm より低く、真上から来る製品が隣の製品に当たるおそれがあります。</translation>
    </message>
</context>
<context>
    <name>PointsFrame</name>
    <message>
        <source>Generate points</source>
        <translation>点を生成</translation>
    </message>
    <message>
        <source>State of the points</source>
        <translation>点の状態</translation>
    </message>
    <message>
        <source>Layer to show</source>
        <translation>表示する段</translation>
    </message>
    <message>
        <source>Kind of point to show</source>
        <translation>表示する点の種類</translation>
    </message>
    <message>
        <source>Number of points shown</source>
        <translation>表示中の点の数</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>表をコピー</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>表をクリップボードにコピーする</translation>
    </message>
    <message>
        <source>Generated points</source>
        <translation>生成された点</translation>
    </message>
    <message>
        <source>All layers</source>
        <translation>すべての段</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>取り側</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>%1 段目</translation>
    </message>
    <message>
        <source>All points</source>
        <translation>すべての点</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>点: %1</translation>
    </message>
    <message>
        <source>No points have been generated yet.</source>
        <translation>点はまだ生成されていません。</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>レシピまたは共通設定が変更されました。点を生成し直してください。</translation>
    </message>
    <message>
        <source>The points are up to date.</source>
        <translation>点は最新です。</translation>
    </message>
    <message>
        <source>Points copied: %1</source>
        <translation>コピーした点: %1</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Move the robot to the chosen point</source>
        <translation>選択した点へロボットを動かす</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Result of the check</source>
        <translation>確認の結果</translation>
    </message>
    <message>
        <source>What is wrong with the pattern</source>
        <translation>パターンの問題</translation>
    </message>
    <message>
        <source>Nothing is wrong with the pattern.</source>
        <translation>パターンに問題はありません。</translation>
    </message>
    <message>
        <source>One thing is wrong. Touch it to choose its products.</source>
        <translation>問題が 1 件あります。タッチすると製品が選択されます。</translation>
    </message>
    <message>
        <source>%1 things are wrong. Touch one to choose its products.</source>
        <translation>問題が %1 件あります。タッチすると製品が選択されます。</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Products %1 and %2 overlap by %3 mm.</source>
        <translation>製品 %1 と %2 が %3 mm 重なっています。</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm over the pallet.</source>
        <translation>製品 %1 がパレットから %2 mm はみ出しています。</translation>
    </message>
    <message>
        <source>%1 of %2 products have another size than the recipe&apos;s product.</source>
        <translation>%2 個中 %1 個の製品の寸法がレシピの製品と異なります。</translation>
    </message>
    <message>
        <source>Product %1 was stored with a value that cannot be used.</source>
        <translation>製品 %1 に使えない値が保存されています。</translation>
    </message>
    <message>
        <source>Products %1 and %2 lie in the same place.</source>
        <translation>製品 %1 と %2 が同じ場所にあります。</translation>
    </message>
    <message>
        <source>Product %1 hits product %2 on its way in, by %3 mm.</source>
        <translation>製品 %1 は入る途中で製品 %2 に %3 mm 当たります。</translation>
    </message>
    <message>
        <source>Products %1 and %2 are %3 mm apart, less than %4 mm.</source>
        <translation>製品 %1 と %2 の間隔は %3 mm で、%4 mm 未満です。</translation>
    </message>
    <message>
        <source>Product %1 has the unknown direction &quot;%2&quot;: it comes from above.</source>
        <translation>製品 %1 の方向「%2」は不明なため、上から入ります。</translation>
    </message>
    <message>
        <source>The numbers of %1 products do not follow the order of placing.</source>
        <translation>%1 個の製品の番号が置く順序と一致しません。</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm into the margin.</source>
        <translation>製品 %1 が余白に %2 mm 入っています。</translation>
    </message>
    <message>
        <source>There are %1 products; the controller takes at most %2 in a pattern.</source>
        <translation>製品が %1 個あります。コントローラが受け取るのはパターンごとに最大 %2 個です。</translation>
    </message>
    <message>
        <source>Only the first %1 products are shown.</source>
        <translation>最初の %1 個の製品だけを表示しています。</translation>
    </message>
</context>
<context>
    <name>ProductFrame</name>
    <message>
        <source>Size and weight</source>
        <translation>寸法と重量</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Orientation code</source>
        <translation>向きコード</translation>
    </message>
    <message>
        <source>Along (dx)</source>
        <translation>縦 (dx)</translation>
    </message>
    <message>
        <source>Across (dy)</source>
        <translation>横 (dy)</translation>
    </message>
    <message>
        <source>Lift (dz)</source>
        <translation>上昇 (dz)</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>レシピの図</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>レシピの合計</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
</context>
<context>
    <name>ProjectManager</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>前のページへ戻る</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>プロジェクト管理</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>State of the project</source>
        <translation>プロジェクトの状態</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>実行中の操作</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>プロジェクト名</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Copy the chosen project&apos;s files</source>
        <translation>選択したプロジェクトのファイルをコピー</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメータ</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>変数</translation>
    </message>
    <message>
        <source>Tasks and their program files</source>
        <translation>タスクとプログラムファイル</translation>
    </message>
    <message>
        <source>Shown program file</source>
        <translation>表示中のプログラムファイル</translation>
    </message>
    <message>
        <source>Program text</source>
        <translation>プログラムの本文</translation>
    </message>
    <message>
        <source>Whose variables are shown</source>
        <translation>表示中の変数の持ち主</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add a project</source>
        <translation>プロジェクトを追加</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit the project</source>
        <translation>プロジェクトを編集</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove the project</source>
        <translation>プロジェクトを削除</translation>
    </message>
    <message>
        <source>Set Default</source>
        <translation>既定にする</translation>
    </message>
    <message>
        <source>Load the project when the controller starts</source>
        <translation>コントローラの起動時に読み込む</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Switch to the project</source>
        <translation>プロジェクトに切り替える</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新しいプロジェクト</translation>
    </message>
    <message>
        <source>Edit Project</source>
        <translation>プロジェクトの編集</translation>
    </message>
    <message>
        <source>Preparing data...</source>
        <translation>データを準備しています...</translation>
    </message>
    <message>
        <source>Connect the controller first</source>
        <translation>先にコントローラを接続してください</translation>
    </message>
    <message>
        <source>No project is current.</source>
        <translation>現在のプロジェクトはありません。</translation>
    </message>
    <message>
        <source>Variables of the current project: %1</source>
        <translation>現在のプロジェクトの変数: %1</translation>
    </message>
    <message>
        <source>Current, loaded at start-up</source>
        <translation>現在、起動時に読み込む</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Loaded at start-up</source>
        <translation>起動時に読み込む</translation>
    </message>
    <message>
        <source>Not current</source>
        <translation>現在ではない</translation>
    </message>
    <message>
        <source>Touch a program file to look at it.</source>
        <translation>プログラムファイルに触れると表示します。</translation>
    </message>
    <message>
        <source>: the file cannot be read</source>
        <translation>: ファイルを読めません</translation>
    </message>
    <message>
        <source>: empty</source>
        <translation>: 空</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>プロジェクトのインポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>プロジェクトのエクスポート</translation>
    </message>
</context>
<context>
    <name>ProjectParamSetupPage</name>
    <message>
        <source>Scheme layout</source>
        <translation>構成</translation>
    </message>
    <message>
        <source>Single Line - Left</source>
        <translation>1 ライン - 左</translation>
    </message>
    <message>
        <source>Single Line - Right</source>
        <translation>1 ライン - 右</translation>
    </message>
    <message>
        <source>Single Line - Both</source>
        <translation>1 ライン - 両側</translation>
    </message>
    <message>
        <source>Double Line - Both</source>
        <translation>2 ライン - 両側</translation>
    </message>
    <message>
        <source>Palletizing type</source>
        <translation>パレタイズの種類</translation>
    </message>
    <message>
        <source>Palletizing</source>
        <translation>パレタイズ</translation>
    </message>
    <message>
        <source>Depalletizing</source>
        <translation>デパレタイズ</translation>
    </message>
    <message>
        <source>Type of sucker</source>
        <translation>吸着パッドの種類</translation>
    </message>
    <message>
        <source>Single Suction</source>
        <translation>シングル吸着</translation>
    </message>
    <message>
        <source>Double Suction</source>
        <translation>ダブル吸着</translation>
    </message>
    <message>
        <source>Lift platform</source>
        <translation>昇降柱</translation>
    </message>
    <message>
        <source>With Bollard</source>
        <translation>昇降柱あり</translation>
    </message>
    <message>
        <source>Without Bollard</source>
        <translation>昇降柱なし</translation>
    </message>
    <message>
        <source>Other accessories</source>
        <translation>その他の付属品</translation>
    </message>
    <message>
        <source>With Clapboard</source>
        <translation>合紙あり</translation>
    </message>
    <message>
        <source>Without Clapboard</source>
        <translation>合紙なし</translation>
    </message>
    <message>
        <source>Left Recipe</source>
        <translation>左レシピ</translation>
    </message>
    <message>
        <source>Right Recipe</source>
        <translation>右レシピ</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>The scheme layout and the bollard, which is the lift column, choose the robot programs. The other choices are kept with the project.</source>
        <translation>ロボットプログラムは構成と昇降柱で決まります。ほかの選択はプロジェクトとともに保存されます。</translation>
    </message>
    <message>
        <source>There are no robot programs for this layout: they stay empty, and the robot does not move.</source>
        <translation>この構成のロボットプログラムはありません。空のままで、ロボットは動きません。</translation>
    </message>
</context>
<context>
    <name>RecipeEditing</name>
    <message>
        <source>The margins left no room for a product and were set to 0.</source>
        <translation>余白のために製品が入らないので 0 にしました。</translation>
    </message>
</context>
<context>
    <name>RecipeFates</name>
    <message>
        <source>pick points</source>
        <translation>取り点</translation>
    </message>
    <message>
        <source>corner posts</source>
        <translation>コーナーポスト</translation>
    </message>
    <message>
        <source>pallet side</source>
        <translation>パレットの側</translation>
    </message>
    <message>
        <source>choice of tool</source>
        <translation>ツールの選択</translation>
    </message>
    <message>
        <source>choice of work object</source>
        <translation>ワークオブジェクトの選択</translation>
    </message>
    <message>
        <source>automatic layout</source>
        <translation>自動配置</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>Is left out</source>
        <translation>対象外</translation>
    </message>
    <message>
        <source>Skipped: row %1 has the name</source>
        <translation>スキップ: 行 %1 と同名</translation>
    </message>
    <message>
        <source>Skipped: the name is taken</source>
        <translation>スキップ: 同名あり</translation>
    </message>
    <message>
        <source>Skipped: row %1 replaces it</source>
        <translation>スキップ: 行 %1 が置き換え</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>新しいレシピ</translation>
    </message>
    <message>
        <source>Row %1 has the name: becomes &quot;%2&quot;</source>
        <translation>行 %1 と同名: 「%2」になります</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>「%1」に改名</translation>
    </message>
    <message>
        <source>Replaces no. %1 and stands at no. %2</source>
        <translation>%1 番を置き換え、%2 番になります</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>Usual values for: %1</source>
        <translation>既定値: %1</translation>
    </message>
</context>
<context>
    <name>RecipeFrame</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecipeMatchModel</name>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>コントローラ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>%1 places, %2 layers</source>
        <translation>%1 箇所、%2 段</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>同じ</translation>
    </message>
    <message>
        <source>At place %1</source>
        <translation>%1 番目</translation>
    </message>
    <message>
        <source>Other points</source>
        <translation>点が異なる</translation>
    </message>
    <message>
        <source>Missing there</source>
        <translation>そちらにない</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>そちらのみ</translation>
    </message>
</context>
<context>
    <name>RecipeText</name>
    <message>
        <source>The name is empty.</source>
        <translation>名前が空です。</translation>
    </message>
    <message>
        <source>The name begins or ends with a blank.</source>
        <translation>名前の先頭または末尾が空白です。</translation>
    </message>
    <message>
        <source>The name has %1 characters; at most %2 are allowed.</source>
        <translation>名前が %1 文字あります。最大 %2 文字です。</translation>
    </message>
    <message>
        <source>The name holds a line break or another control character.</source>
        <translation>名前に改行などの制御文字が含まれています。</translation>
    </message>
    <message>
        <source>There is a recipe &quot;%1&quot; already.</source>
        <translation>レシピ「%1」は既にあります。</translation>
    </message>
</context>
<context>
    <name>RecipeTexts</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2
Product: %3
Pallet: %4</source>
        <translation>箱: %1、段: %2
製品: %3
パレット: %4</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2</source>
        <translation>箱: %1、段: %2</translation>
    </message>
    <message>
        <source>Separator sheets: %1</source>
        <translation>合紙: %1</translation>
    </message>
    <message>
        <source>Height: %1 mm (load %2 mm)</source>
        <translation>高さ: %1 mm（荷 %2 mm）</translation>
    </message>
    <message>
        <source>Weight: %1 kg (load %2 kg)</source>
        <translation>重量: %1 kg（荷 %2 kg）</translation>
    </message>
</context>
<context>
    <name>RecipeWizard</name>
    <message>
        <source>Recipe</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>最後の編集を元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>元に戻した編集をやり直す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cancel and take the edits back</source>
        <translation>キャンセルして編集を取り消す</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>前のページへ戻る</translation>
    </message>
    <message>
        <source>Take back all edits?</source>
        <translation>すべての編集を取り消しますか？</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1／%2: %3</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>%1 x %2 x %3 mm</source>
        <translation>%1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>%1 kg</source>
        <translation>%1 kg</translation>
    </message>
    <message>
        <source>Separator sheet</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1, %2 of them shown</source>
        <translation>%1、うち %2 を表示</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>%1/%2 by %3 mm</source>
        <translation>%1/%2 %3 mm</translation>
    </message>
    <message>
        <source>Overlap: %1 and %2 more</source>
        <translation>重なり: %1、他 %2 件</translation>
    </message>
    <message>
        <source>Overlap: %1</source>
        <translation>重なり: %1</translation>
    </message>
    <message>
        <source>%1 %2 mm</source>
        <translation>%1 %2 mm</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Over the pallet: %1</source>
        <translation>はみ出し: %1</translation>
    </message>
    <message>
        <source>Products with missing or unreadable values: %1</source>
        <translation>値がない、または読めない製品: %1</translation>
    </message>
    <message>
        <source>Products with impossible sizes or positions: %1</source>
        <translation>寸法または位置があり得ない製品: %1</translation>
    </message>
    <message>
        <source>Products with an unknown direction: %1</source>
        <translation>方向が不明な製品: %1</translation>
    </message>
    <message>
        <source>Products whose number is not their place in the order: %1</source>
        <translation>番号が順序と一致しない製品: %1</translation>
    </message>
    <message>
        <source>The product&apos;s size is not valid</source>
        <translation>製品の寸法が無効です</translation>
    </message>
    <message>
        <source>The pallet&apos;s size is not valid</source>
        <translation>パレットの寸法が無効です</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>段</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Load of the layer</source>
        <translation>段の荷寸法</translation>
    </message>
    <message>
        <source>Height over the deck</source>
        <translation>パレット面からの高さ</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>%1～%2 mm</translation>
    </message>
    <message>
        <source>Layers of products</source>
        <translation>製品の段数</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Height with the pallet</source>
        <translation>パレット込みの高さ</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Weight with the pallet</source>
        <translation>パレット込みの重量</translation>
    </message>
</context>
<context>
    <name>RunFrame</name>
    <message>
        <source>Why no side is shown</source>
        <translation>側が表示されない理由</translation>
    </message>
    <message>
        <source>Make a project for these recipes</source>
        <translation>このレシピでプロジェクトを作る</translation>
    </message>
    <message>
        <source>There is no connection to the controller.</source>
        <translation>コントローラに接続していません。</translation>
    </message>
    <message>
        <source>There are no recipes yet. Make one on the page &quot;Recipes&quot;.</source>
        <translation>レシピがまだありません。「レシピ」ページで作成してください。</translation>
    </message>
    <message>
        <source>No robot project is in use. Make one here, or choose one on the page &quot;Projects&quot;.</source>
        <translation>使用中のプロジェクトがありません。ここで作るか「プロジェクト」ページで選んでください。</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>コントローラを待っています。</translation>
    </message>
    <message>
        <source>The controller did not take it: %1</source>
        <translation>コントローラが受け付けませんでした: %1</translation>
    </message>
    <message>
        <source>The controller holds the recipe &quot;%1&quot; otherwise. Send the recipes first.</source>
        <translation>コントローラのレシピ「%1」は内容が違います。先に送ってください。</translation>
    </message>
    <message>
        <source>Start the left side at</source>
        <translation>左側の開始位置</translation>
    </message>
    <message>
        <source>Start the right side at</source>
        <translation>右側の開始位置</translation>
    </message>
    <message>
        <source>Recipe &quot;%1&quot;</source>
        <translation>レシピ「%1」</translation>
    </message>
    <message>
        <source>The left side broke off</source>
        <translation>左側が中断しました</translation>
    </message>
    <message>
        <source>The right side broke off</source>
        <translation>右側が中断しました</translation>
    </message>
    <message>
        <source>Clear the gripper, look at the pallet, and confirm the box to go on with. It is proposed by the counters and by what lies there.</source>
        <translation>グリッパを空にし、パレットを見て、続ける箱を確認してください。カウンタと実際の積み付けから提案しています。</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the left side to 0? Layer and piece stay as they are.</source>
        <translation>左側のパレット数とサイクル時間を 0 にしますか? 段と個数はそのままです。</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the right side to 0? Layer and piece stay as they are.</source>
        <translation>右側のパレット数とサイクル時間を 0 にしますか? 段と個数はそのままです。</translation>
    </message>
    <message>
        <source>Reset counters</source>
        <translation>カウンタを初期化</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>ここから開始</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>RunSideCard</name>
    <message>
        <source>State of the side</source>
        <translation>側の状態</translation>
    </message>
    <message>
        <source>Recipe of the side</source>
        <translation>側のレシピ</translation>
    </message>
    <message>
        <source>What lies on the pallet</source>
        <translation>パレット上の荷</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>箱数</translation>
    </message>
    <message>
        <source>Boxes on the pallet</source>
        <translation>パレット上の箱数</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>個</translation>
    </message>
    <message>
        <source>Piece of the layer</source>
        <translation>段内の番号</translation>
    </message>
    <message>
        <source>Pallets</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Finished pallets</source>
        <translation>完成パレット</translation>
    </message>
    <message>
        <source>Cycle time</source>
        <translation>サイクル時間</translation>
    </message>
    <message>
        <source>Per hour</source>
        <translation>毎時</translation>
    </message>
    <message>
        <source>Boxes per hour</source>
        <translation>毎時の箱数</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Enable or disable the side</source>
        <translation>側の有効・無効</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>開始位置</translation>
    </message>
    <message>
        <source>Start at a layer and piece</source>
        <translation>段と個数を指定して開始</translation>
    </message>
    <message>
        <source>Reset the counters</source>
        <translation>カウンタを初期化</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>コントローラなし</translation>
    </message>
    <message>
        <source>Not in this project</source>
        <translation>このプロジェクトにはありません</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Broken off: confirm layer and piece</source>
        <translation>中断: 段と個数を確認</translation>
    </message>
    <message>
        <source>Pallet full: exchange and confirm it</source>
        <translation>満載: 交換して確認</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Enabled, no program runs</source>
        <translation>有効、プログラム停止中</translation>
    </message>
    <message>
        <source>Robot is moved by hand</source>
        <translation>ロボットは手動操作中</translation>
    </message>
    <message>
        <source>Stacking</source>
        <translation>積み付け中</translation>
    </message>
    <message>
        <source>Enabled, waits for its turn</source>
        <translation>有効、順番待ち</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
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
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>無効にする</translation>
    </message>
</context>
<context>
    <name>SeriesText</name>
    <message>
        <source>There is nothing to lay.</source>
        <translation>置くものがありません。</translation>
    </message>
    <message>
        <source>This recipe has no pattern &quot;%1&quot;.</source>
        <translation>このレシピにパターン「%1」はありません。</translation>
    </message>
    <message>
        <source>That makes %1 layers; a recipe holds at most %2.</source>
        <translation>%1 段になります。レシピは最大 %2 段です。</translation>
    </message>
</context>
<context>
    <name>StackFrame</name>
    <message>
        <source>Layer of the plan</source>
        <translation>平面図の段</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>段の平面図</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>段の問題</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>レシピの合計</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>%1 段目</translation>
    </message>
</context>
<context>
    <name>StackHomePage</name>
    <message>
        <source>Recipes</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search recipes</source>
        <translation>レシピを検索</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>レシピの名前</translation>
    </message>
    <message>
        <source>Description of the recipe</source>
        <translation>レシピの説明</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>レシピの図</translation>
    </message>
    <message>
        <source>Summary of the recipe</source>
        <translation>レシピの概要</translation>
    </message>
    <message>
        <source>Layers of the recipe</source>
        <translation>レシピの段</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>There are no recipes yet. Touch &quot;New&quot; to make one.</source>
        <translation>レシピはまだありません。「新規」に触れて作成してください。</translation>
    </message>
    <message>
        <source>No recipe is called or described so.</source>
        <translation>その名前や説明のレシピはありません。</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>新しいレシピ</translation>
    </message>
    <message>
        <source>Recipe %1</source>
        <translation>レシピ %1</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>%1 のコピー</translation>
    </message>
    <message>
        <source>New name for %1</source>
        <translation>%1 の新しい名前</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>レシピの削除</translation>
    </message>
    <message>
        <source>Delete the recipe &quot;%1&quot;?</source>
        <translation>レシピ「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>The recipe &quot;%1&quot; was deleted.</source>
        <translation>レシピ「%1」を削除しました。</translation>
    </message>
    <message>
        <source>The recipe is back as &quot;%1&quot;; its name was taken.</source>
        <translation>元の名前は使用中のため、レシピを「%1」として戻しました。</translation>
    </message>
    <message>
        <source>The recipe cannot be made: the list of recipes is missing.</source>
        <translation>レシピを作れません: レシピの一覧がありません。</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Robot projects</source>
        <translation>ロボットのプロジェクト</translation>
    </message>
    <message>
        <source>Recipes on the controller</source>
        <translation>コントローラのレシピ</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>レシピのインポート</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>レシピのエクスポート</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>レシピまたは共通設定が変更されました。点を生成し直してください。</translation>
    </message>
</context>
<context>
    <name>StackPanel</name>
    <message>
        <source>The stack from above a corner; drag to turn it</source>
        <translation>斜め上から見た積み付け。ドラッグで回せます</translation>
    </message>
    <message>
        <source>Turn the stack anticlockwise</source>
        <translation>積み付けを反時計回りに回す</translation>
    </message>
    <message>
        <source>Turn the stack clockwise</source>
        <translation>積み付けを時計回りに回す</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>What is laid</source>
        <translation>置いたもの</translation>
    </message>
    <message>
        <source>Take the last layer off</source>
        <translation>最後の段を外す</translation>
    </message>
    <message>
        <source>Take the last box off</source>
        <translation>最後の箱を外す</translation>
    </message>
    <message>
        <source>How much is laid</source>
        <translation>置いた量</translation>
    </message>
    <message>
        <source>Lay the next box</source>
        <translation>次の箱を置く</translation>
    </message>
    <message>
        <source>Lay the next layer</source>
        <translation>次の段を置く</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1／%2</translation>
    </message>
    <message>
        <source>%1: layer %2, sheet</source>
        <translation>%1: %2 段目、合紙</translation>
    </message>
    <message>
        <source>%1: layer %2, box %3</source>
        <translation>%1: %2 段目、箱 %3</translation>
    </message>
</context>
<context>
    <name>StackPatternScene</name>
    <message>
        <source>Separator sheet, its size is not set</source>
        <translation>合紙、寸法未設定</translation>
    </message>
    <message>
        <source>Separator sheet %1 x %2 x %3 mm</source>
        <translation>合紙 %1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>This recipe has no layers</source>
        <translation>このレシピには段がありません</translation>
    </message>
    <message>
        <source>There is no layer %1; the recipe has %2</source>
        <translation>%1 段目はありません。レシピは %2 段です</translation>
    </message>
    <message>
        <source>The recipe has no pattern &quot;%1&quot;</source>
        <translation>レシピにパターン「%1」がありません</translation>
    </message>
    <message>
        <source>Empty layer: it is left out</source>
        <translation>空の段: 省かれます</translation>
    </message>
    <message>
        <source>No pattern is chosen for this layer: the stack ends below it</source>
        <translation>この段にはパターンが選ばれていません。積み付けはこの下で終わります</translation>
    </message>
    <message>
        <source>Not placed: the stack ends at a layer below</source>
        <translation>置かれません。積み付けは下の段で終わります</translation>
    </message>
    <message>
        <source>The pattern &quot;%1&quot; is empty</source>
        <translation>パターン「%1」は空です</translation>
    </message>
</context>
<context>
    <name>StackSetupPage</name>
    <message>
        <source>Recipes</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Back to the recipes</source>
        <translation>レシピに戻る</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>レシピ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>直前の編集を元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>元に戻した編集をやり直す</translation>
    </message>
    <message>
        <source>No recipe is open. Choose one above or go to the recipes.</source>
        <translation>レシピが開かれていません。上で選ぶか、レシピ一覧へ移動してください。</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>製品</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Waypoints</source>
        <translation>経由点</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Wizard</source>
        <translation>ウィザード</translation>
    </message>
    <message>
        <source>Go through a part of the recipe page by page</source>
        <translation>レシピの一部をページごとに設定</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>送り込み方向</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Product and pallet</source>
        <translation>製品とパレット</translation>
    </message>
    <message>
        <source>This recipe is being stacked. Changes take effect when you leave the page, on the pallet that was begun, too.</source>
        <translation>このレシピは積み付け中です。変更はページを離れると有効になり、積みかけのパレットにも及びます。</translation>
    </message>
</context>
<context>
    <name>StartDialog</name>
    <message>
        <source>What is asked</source>
        <translation>確認内容</translation>
    </message>
    <message>
        <source>What lies on the pallet then</source>
        <translation>そのときのパレット上の荷</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>段</translation>
    </message>
    <message>
        <source>Layer down</source>
        <translation>段を下げる</translation>
    </message>
    <message>
        <source>Layer up</source>
        <translation>段を上げる</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>個</translation>
    </message>
    <message>
        <source>Piece down</source>
        <translation>個数を減らす</translation>
    </message>
    <message>
        <source>Piece up</source>
        <translation>個数を増やす</translation>
    </message>
    <message>
        <source>Products that lie there</source>
        <translation>置かれている製品</translation>
    </message>
    <message>
        <source>The gripper is empty</source>
        <translation>グリッパは空</translation>
    </message>
    <message>
        <source>Why it cannot begin there</source>
        <translation>そこから始められない理由</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>ここから開始</translation>
    </message>
    <message>
        <source>Take the product out of the gripper and confirm that it is empty.</source>
        <translation>グリッパから製品を外し、空であることを確認してください。</translation>
    </message>
    <message>
        <source>%1 of %2 boxes lie on the pallet.</source>
        <translation>パレット上に %1 / %2 箱。</translation>
    </message>
</context>
<context>
    <name>StatusText</name>
    <message>
        <source>Moved by x %1, y %2 mm</source>
        <translation>移動量 x %1、y %2 mm</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>製品が選択されていません</translation>
    </message>
    <message>
        <source>%1 products, %2 x %3 mm</source>
        <translation>製品 %1 個、%2 x %3 mm</translation>
    </message>
    <message>
        <source>Product %1: x %2, y %3 mm, %4°</source>
        <translation>製品 %1: x %2、y %3 mm、%4°</translation>
    </message>
    <message>
        <source>(1 of %1) %2</source>
        <translation>(1／%1) %2</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>Invalid X number</source>
        <translation>X の数が正しくありません</translation>
    </message>
    <message>
        <source>Invalid Y number</source>
        <translation>Y の数が正しくありません</translation>
    </message>
    <message>
        <source>Invalid Y1 or Y2 number</source>
        <translation>Y1 または Y2 の数が正しくありません</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>製品の数が 200 を超えています</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s x edge</source>
        <translation>製品がパレットの x の端を超えています</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s y edge</source>
        <translation>製品がパレットの y の端を超えています</translation>
    </message>
</context>
<context>
    <name>TitleText</name>
    <message>
        <source>%1 mm, 1 px = %2 mm</source>
        <translation>%1 mm、1 px = %2 mm</translation>
    </message>
    <message>
        <source>overlap</source>
        <translation>重なり</translation>
    </message>
    <message>
        <source>over the pallet</source>
        <translation>はみ出し</translation>
    </message>
    <message>
        <source>label side</source>
        <translation>ラベル面</translation>
    </message>
    <message>
        <source>approach, to scale</source>
        <translation>接近方向、縮尺どおり</translation>
    </message>
    <message>
        <source>layer below</source>
        <translation>下の段</translation>
    </message>
</context>
<context>
    <name>ToolFrame</name>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>Tool, seen from the flange</source>
        <translation>フランジから見たツール</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>質量</translation>
    </message>
    <message>
        <source>Centre of gravity X</source>
        <translation>重心 X</translation>
    </message>
    <message>
        <source>Centre of gravity Y</source>
        <translation>重心 Y</translation>
    </message>
    <message>
        <source>Centre of gravity Z</source>
        <translation>重心 Z</translation>
    </message>
    <message>
        <source>Two touches</source>
        <translation>2 回の接触</translation>
    </message>
    <message>
        <source>Touch a fixed tip with the tool and teach the first touch. Turn the hand about its own axis by 90° or more, touch the tip again and teach the second one.</source>
        <translation>固定した針先にツールで触れ、1 回目を教示します。手首を自身の軸まわりに 90° 以上回し、再び針先に触れて 2 回目を教示します。</translation>
    </message>
    <message>
        <source>Measure X and Y</source>
        <translation>X と Y を測定</translation>
    </message>
    <message>
        <source>Touch 1</source>
        <translation>接触 1</translation>
    </message>
    <message>
        <source>Touch 2</source>
        <translation>接触 2</translation>
    </message>
    <message>
        <source>The shared tool &quot;%1&quot;, used by all recipes with &quot;Shared tool&quot;.</source>
        <translation>共通ツール「%1」。「共通ツール」を使うすべてのレシピで使われます。</translation>
    </message>
    <message>
        <source>The tool of this recipe alone.</source>
        <translation>このレシピ専用のツール。</translation>
    </message>
    <message>
        <source>Teach both touches first.</source>
        <translation>先に 2 回の接触を教示してください。</translation>
    </message>
</context>
<context>
    <name>ToolText</name>
    <message>
        <source>Turn the hand by at least %1 degrees about its own axis between the two touches.</source>
        <translation>2 回の接触の間に、手首を自身の軸まわりに %1 度以上回してください。</translation>
    </message>
    <message>
        <source>The two touches are %1 mm apart in the direction of the hand: the tip moved or was not met.</source>
        <translation>2 回の接触が手首の方向に %1 mm ずれています。針先が動いたか、触れていません。</translation>
    </message>
</context>
<context>
    <name>TransferText</name>
    <message>
        <source>Import success!</source>
        <translation>インポートしました！</translation>
    </message>
    <message>
        <source>%1: the disk did not take everything. Do not pull it out; export again.</source>
        <translation>%1: ディスクに書き込みきれませんでした。抜かずに再度エクスポートしてください。</translation>
    </message>
    <message>
        <source>Export success to %1!</source>
        <translation>%1 へエクスポートしました！</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>直前のインポートを取り消しました。</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>WaypointAdjustWizard</name>
    <message>
        <source>Waypoints</source>
        <translation>経由点</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Heights and taught points</source>
        <translation>高さと教示点</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
</context>
<context>
    <name>WaypointsFrame</name>
    <message>
        <source>Place side</source>
        <translation>置き側</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>取り側</translation>
    </message>
    <message>
        <source>Offsets</source>
        <translation>オフセット</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>Heights over the place point</source>
        <translation>置き点からの高さ</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>接近</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>退避</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Heights over the pick point</source>
        <translation>取り点からの高さ</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>左パレット</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>進入 X</translation>
    </message>
    <message>
        <source>Enter Y</source>
        <translation>進入 Y</translation>
    </message>
    <message>
        <source>Enter height</source>
        <translation>進入高さ</translation>
    </message>
    <message>
        <source>Ready height</source>
        <translation>準備高さ</translation>
    </message>
    <message>
        <source>Approach height</source>
        <translation>接近高さ</translation>
    </message>
    <message>
        <source>Retract height</source>
        <translation>退避高さ</translation>
    </message>
    <message>
        <source>Exit height</source>
        <translation>退出高さ</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>右パレット</translation>
    </message>
    <message>
        <source>Place point</source>
        <translation>置き点</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>進入点</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>取り点</translation>
    </message>
    <message>
        <source>The shared work object gives the place points; the heights come from the shared offsets.</source>
        <translation>置き点は共通ワークオブジェクトで、高さは共通オフセットで決まります。</translation>
    </message>
    <message>
        <source>The first product of the first layer is placed at the place point&apos;s height; positions come from the pattern.</source>
        <translation>1 段目の最初の製品は置き点の高さに置かれ、位置はパターンで決まります。</translation>
    </message>
    <message>
        <source>The shared tool gives the pick points and the approach height.</source>
        <translation>取り点と接近高さは共通ツールで決まります。</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>ロボットはすべての製品を取り点で取ります。</translation>
    </message>
    <message>
        <source>Shared by all recipes on this work object.</source>
        <translation>このワークオブジェクトを使う全レシピに共通です。</translation>
    </message>
    <message>
        <source>Kept with this recipe for the robot program; the points follow the shared offsets of the work object calibrated by one point.</source>
        <translation>ロボットプログラム用にこのレシピに保存されます。点は 1 点校正したワークオブジェクトの共通オフセットに従います。</translation>
    </message>
</context>
<context>
    <name>XFileModel</name>
    <message>
        <source>Folder %1</source>
        <translation>フォルダ %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
</context>
<context>
    <name>palx</name>
    <message>
        <source>The way points have regenerated!</source>
        <translation>経由点を再生成しました！</translation>
    </message>
    <message>
        <source>it holds something else</source>
        <translation>内容が異なります</translation>
    </message>
    <message>
        <source>%1 cannot be read and was kept as %2: %3</source>
        <translation>%1 は読み取れないため %2 として残しました: %3</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>フォルダを作れません</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The panel keeps the data; make room or give access, then change them once more</source>
        <translation>%1 に書き込めません: %2。データはパネルに残っています。空きを作るか権限を与えてから、もう一度変更してください</translation>
    </message>
    <message>
        <source>Product para is invalid</source>
        <translation>製品のパラメータが無効です</translation>
    </message>
    <message>
        <source>Product length is invalid and is setted to default</source>
        <translation>製品の長さが無効なため、既定値にしました</translation>
    </message>
    <message>
        <source>Product width is invalid and is setted to default</source>
        <translation>製品の幅が無効なため、既定値にしました</translation>
    </message>
    <message>
        <source>Pallet para is invalid</source>
        <translation>パレットのパラメータが無効です</translation>
    </message>
    <message>
        <source>Pallet length is invalid and is setted to default</source>
        <translation>パレットの長さが無効なため、既定値にしました</translation>
    </message>
    <message>
        <source>Pallet width is invalid and is setted to default</source>
        <translation>パレットの幅が無効なため、既定値にしました</translation>
    </message>
    <message>
        <source>Pallet&apos;length is less than product&apos;length</source>
        <translation>パレットの長さが製品の長さより短いです</translation>
    </message>
    <message>
        <source>Pallet&apos;width is less than product&apos;width</source>
        <translation>パレットの幅が製品の幅より小さいです</translation>
    </message>
    <message>
        <source>The project has no such variable: %1</source>
        <translation>プロジェクトにその変数はありません: %1</translation>
    </message>
</context>
<context>
    <name>palx::ControllerRecipes</name>
    <message>
        <source>Its answer is no list of recipes.</source>
        <translation>応答がレシピの一覧ではありません。</translation>
    </message>
    <message>
        <source>The controller does not tell which recipes it holds: %1</source>
        <translation>コントローラが保持するレシピを知らせません: %1</translation>
    </message>
</context>
<context>
    <name>palx::HeldMove</name>
    <message>
        <source>The move could not be sent to the controller.</source>
        <translation>動きをコントローラへ送れませんでした。</translation>
    </message>
</context>
<context>
    <name>palx::JogLabels</name>
    <message>
        <source>J1(%1)</source>
        <translation>J1(%1)</translation>
    </message>
    <message>
        <source>J2(%1)</source>
        <translation>J2(%1)</translation>
    </message>
    <message>
        <source>J3(%1)</source>
        <translation>J3(%1)</translation>
    </message>
    <message>
        <source>J4(%1)</source>
        <translation>J4(%1)</translation>
    </message>
    <message>
        <source>J5(%1)</source>
        <translation>J5(%1)</translation>
    </message>
    <message>
        <source>J6(%1)</source>
        <translation>J6(%1)</translation>
    </message>
    <message>
        <source>J7(%1)</source>
        <translation>J7(%1)</translation>
    </message>
    <message>
        <source>A(%1)</source>
        <translation>A(%1)</translation>
    </message>
    <message>
        <source>B(%1)</source>
        <translation>B(%1)</translation>
    </message>
    <message>
        <source>C(%1)</source>
        <translation>C(%1)</translation>
    </message>
</context>
<context>
    <name>palx::MediumChoice</name>
    <message>
        <source>The folder is not there any more.</source>
        <translation>フォルダはもうありません。</translation>
    </message>
    <message>
        <source>The disk is write-protected. Nothing can be saved on it.</source>
        <translation>ディスクは書き込み禁止です。保存できません。</translation>
    </message>
    <message>
        <source>This folder is write-protected.</source>
        <translation>このフォルダは書き込み禁止です。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>同じ名前のフォルダがあります。</translation>
    </message>
    <message>
        <source>There is a file of that name.</source>
        <translation>同じ名前のファイルがあります。</translation>
    </message>
</context>
<context>
    <name>palx::MediumFolder</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>フォルダを読めません。</translation>
    </message>
    <message>
        <source>Only %1 entries of the folder are shown.</source>
        <translation>フォルダの %1 件だけを表示しています。</translation>
    </message>
</context>
<context>
    <name>palx::MediumNames</name>
    <message>
        <source>This disk cannot keep a name with %1.</source>
        <translation>このディスクでは %1 を含む名前は使えません。</translation>
    </message>
    <message>
        <source>This disk cannot keep a name that ends with a dot or a blank.</source>
        <translation>このディスクでは末尾が点や空白の名前は使えません。</translation>
    </message>
    <message>
        <source>A PC cannot open a file named %1.</source>
        <translation>PC では %1 という名前のファイルを開けません。</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 characters.</source>
        <translation>名前が長すぎます: %1 / %2 文字。</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 bytes.</source>
        <translation>名前が長すぎます: %1 / %2 バイト。</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>ファイルに名前が必要です。</translation>
    </message>
    <message>
        <source>A name does not begin with a dot: the file would be hidden.</source>
        <translation>名前の先頭に点は使えません: 隠しファイルになります。</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>名前に見えない文字があります。</translation>
    </message>
</context>
<context>
    <name>palx::PatternEditing</name>
    <message>
        <source>Choose at least three products to space them evenly.</source>
        <translation>等間隔にするには製品を 3 個以上選択してください。</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products; there would be %2.</source>
        <translation>パターンの製品は最大 %1 個です。%2 個になってしまいます。</translation>
    </message>
</context>
<context>
    <name>palx::ProjectText</name>
    <message>
        <source>The robot is not known yet: connect the controller first</source>
        <translation>ロボットがまだ分かりません。先にコントローラを接続してください</translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation>パスを作れません: %1</translation>
    </message>
    <message>
        <source>Remove folder %1 failed</source>
        <translation>フォルダ %1 を削除できませんでした</translation>
    </message>
    <message>
        <source>Try to add invalid project name</source>
        <translation>プロジェクト名が正しくありません</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>プロジェクトはすでにあります</translation>
    </message>
    <message>
        <source>Are you sure to create and switch to new project: %1?</source>
        <translation>新しいプロジェクトを作成して切り替えますか: %1？</translation>
    </message>
    <message>
        <source>Failed to clone project from: %1</source>
        <translation>プロジェクトを複製できませんでした: %1</translation>
    </message>
    <message>
        <source>Cannot rename to an existing project</source>
        <translation>既存のプロジェクトの名前にはできません</translation>
    </message>
    <message>
        <source>Are you sure to update and switch to project %1?</source>
        <translation>プロジェクト %1 を更新して切り替えますか？</translation>
    </message>
    <message>
        <source>Cannot remove empty project</source>
        <translation>空のプロジェクトは削除できません</translation>
    </message>
    <message>
        <source>Are you sure to delete project %1?</source>
        <translation>プロジェクト %1 を削除しますか？</translation>
    </message>
    <message>
        <source>Project %1 removed</source>
        <translation>プロジェクト %1 を削除しました</translation>
    </message>
    <message>
        <source>Empty project</source>
        <translation>空のプロジェクト</translation>
    </message>
    <message>
        <source>Are you sure to switch to project %1?</source>
        <translation>プロジェクト %1 に切り替えますか？</translation>
    </message>
    <message>
        <source>Reload project %1</source>
        <translation>プロジェクト %1 を再読み込み</translation>
    </message>
    <message>
        <source>The controller did not take the start-up project</source>
        <translation>コントローラが起動プロジェクトを受け取りませんでした</translation>
    </message>
    <message>
        <source>Auto load project is set to null!</source>
        <translation>自動読み込みのプロジェクトを空にしました！</translation>
    </message>
    <message>
        <source>Set %1 to auto load project success!</source>
        <translation>%1 を自動読み込みのプロジェクトにしました！</translation>
    </message>
    <message>
        <source>File %1 already exists!</source>
        <translation>ファイル %1 はすでにあります！</translation>
    </message>
    <message>
        <source>Cannot create task folder: %1</source>
        <translation>タスクのフォルダを作れません: %1</translation>
    </message>
    <message>
        <source>Cannot read program template: %1</source>
        <translation>プログラムのテンプレートを読めません: %1</translation>
    </message>
    <message>
        <source>Cannot write to file: %1</source>
        <translation>ファイルに書き込めません: %1</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>プロジェクト管理</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>Main Function</source>
        <translation>メイン関数</translation>
    </message>
    <message>
        <source>Back Home</source>
        <translation>原点復帰</translation>
    </message>
    <message>
        <source>Init</source>
        <translation>初期化</translation>
    </message>
    <message>
        <source>Left Stack</source>
        <translation>左の積み付け</translation>
    </message>
    <message>
        <source>Right Stack</source>
        <translation>右の積み付け</translation>
    </message>
    <message>
        <source>Helper Function</source>
        <translation>補助関数</translation>
    </message>
    <message>
        <source>Conveyor belt inspection</source>
        <translation>コンベヤの監視</translation>
    </message>
    <message>
        <source>Palletizing status detection</source>
        <translation>パレタイズ状態の検出</translation>
    </message>
    <message>
        <source>Program - Estop - Collision</source>
        <translation>プログラム - 非常停止 - 衝突</translation>
    </message>
    <message>
        <source>Anomaly detection</source>
        <translation>異常の検出</translation>
    </message>
    <message>
        <source>Lifting column status detection</source>
        <translation>昇降柱状態の検出</translation>
    </message>
    <message>
        <source>Enable left-side stacking</source>
        <translation>左側のパレタイズを有効にする</translation>
    </message>
    <message>
        <source>Enable right-side stacking</source>
        <translation>右側のパレタイズを有効にする</translation>
    </message>
    <message>
        <source>Left side recipe index</source>
        <translation>左側のレシピ番号</translation>
    </message>
    <message>
        <source>Left side pallet count</source>
        <translation>左側のパレット数</translation>
    </message>
    <message>
        <source>Left side pallet total count</source>
        <translation>左側のパレット総数</translation>
    </message>
    <message>
        <source>Left side current layer</source>
        <translation>左側の現在の段</translation>
    </message>
    <message>
        <source>Left side current layer count</source>
        <translation>左側の現在の段の数</translation>
    </message>
    <message>
        <source>Left side total pallets</source>
        <translation>左側の総パレット数</translation>
    </message>
    <message>
        <source>Left side total piled count</source>
        <translation>左側の総積み数</translation>
    </message>
    <message>
        <source>Left side cycle time</source>
        <translation>左側のサイクルタイム</translation>
    </message>
    <message>
        <source>Left side box height</source>
        <translation>左側の箱の高さ</translation>
    </message>
    <message>
        <source>Right side recipe index</source>
        <translation>右側のレシピ番号</translation>
    </message>
    <message>
        <source>Right side pallet count</source>
        <translation>右側のパレット数</translation>
    </message>
    <message>
        <source>Right side pallet total count</source>
        <translation>右側のパレット総数</translation>
    </message>
    <message>
        <source>Right side current layer</source>
        <translation>右側の現在の段</translation>
    </message>
    <message>
        <source>Right side current layer count</source>
        <translation>右側の現在の段の数</translation>
    </message>
    <message>
        <source>Right side total pallets</source>
        <translation>右側の総パレット数</translation>
    </message>
    <message>
        <source>Right side total piled count</source>
        <translation>右側の総積み数</translation>
    </message>
    <message>
        <source>Right side cycle time</source>
        <translation>右側のサイクルタイム</translation>
    </message>
    <message>
        <source>Right side box height</source>
        <translation>右側の箱の高さ</translation>
    </message>
    <message>
        <source>Left: 1, Right: 2</source>
        <translation>左: 1、右: 2</translation>
    </message>
    <message>
        <source>Left full flag</source>
        <translation>左の満載フラグ</translation>
    </message>
    <message>
        <source>Right full flag</source>
        <translation>右の満載フラグ</translation>
    </message>
    <message>
        <source>Lifting column state, 1 up, 0 down</source>
        <translation>昇降柱の状態、1 上、0 下</translation>
    </message>
    <message>
        <source>Using lifting column</source>
        <translation>昇降柱を使用中</translation>
    </message>
    <message>
        <source>Stacking maximum height</source>
        <translation>積み付けの最大高さ</translation>
    </message>
    <message>
        <source>Maximum height reachable by the robot in the stacking scene</source>
        <translation>積み付け時にロボットが届く最大高さ</translation>
    </message>
    <message>
        <source>Gripping materials</source>
        <translation>製品を把持中</translation>
    </message>
    <message>
        <source>StandBy Point Margin</source>
        <translation>待機点の余裕</translation>
    </message>
    <message>
        <source>Lift height</source>
        <translation>昇降の高さ</translation>
    </message>
    <message>
        <source>calculate time</source>
        <translation>時間の計測</translation>
    </message>
    <message>
        <source>box height</source>
        <translation>箱の高さ</translation>
    </message>
    <message>
        <source>current pos</source>
        <translation>現在位置</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; %2</source>
        <translation>項目「%1」%2</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>は暗号化されています</translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>はリンクです</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>はファイルでもフォルダでもありません</translation>
    </message>
    <message>
        <source>is called a file and a folder</source>
        <translation>はファイルともフォルダともされています</translation>
    </message>
    <message>
        <source>is a folder with a content of its own</source>
        <translation>は自身の内容を持つフォルダです</translation>
    </message>
    <message>
        <source>is packed in a way that is not known here</source>
        <translation>は未知の方式で圧縮されています</translation>
    </message>
    <message>
        <source>it has %1 entries; no project has more than %2</source>
        <translation>項目が %1 件あります。プロジェクトは %2 件までです</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>its list of entries is damaged</source>
        <translation>項目の一覧が壊れています</translation>
    </message>
    <message>
        <source>has a name that is read in two ways</source>
        <translation>の名前は二通りに読めます</translation>
    </message>
    <message>
        <source>makes it larger than %1 MB, which no project is</source>
        <translation>で %1 MB を超えます。そのようなプロジェクトはありません</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>は壊れています</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 を確認中</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>読み込めません: %1</translation>
    </message>
    <message>
        <source>it is no whole zip archive</source>
        <translation>完全な zip アーカイブではありません</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのファイルはありません</translation>
    </message>
    <message>
        <source>has an absolute name</source>
        <translation>は絶対パスです</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>はフォルダの外を指します</translation>
    </message>
    <message>
        <source>has a backslash in its name</source>
        <translation>の名前に逆斜線があります</translation>
    </message>
    <message>
        <source>has a name that is no path</source>
        <translation>の名前はパスではありません</translation>
    </message>
    <message>
        <source>has a name that is no text in UTF-8</source>
        <translation>の名前は UTF-8 ではありません</translation>
    </message>
    <message>
        <source>has a control character in its name</source>
        <translation>の名前に制御文字があります</translation>
    </message>
    <message>
        <source>has too long a name</source>
        <translation>の名前が長すぎます</translation>
    </message>
    <message>
        <source>needs a folder where there is another entry</source>
        <translation>に必要なフォルダの場所に別の項目があります</translation>
    </message>
    <message>
        <source>is there twice</source>
        <translation>が二つあります</translation>
    </message>
    <message>
        <source>makes the project too large for an archive</source>
        <translation>でプロジェクトが大きくなりすぎます</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>フォルダ %1 がありません</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>%1 を圧縮中</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>アーカイブを書けません: %1</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>展開中</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; was not unpacked as it is listed</source>
        <translation>項目「%1」の展開結果が一覧と違います</translation>
    </message>
    <message>
        <source>more was unpacked than it lists</source>
        <translation>一覧より多く展開されました</translation>
    </message>
    <message>
        <source>there is no room for %1 MB</source>
        <translation>%1 MB の空きがありません</translation>
    </message>
    <message>
        <source>it cannot be unpacked to %1</source>
        <translation>%1 に展開できません</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>レシピは受け取られませんでした: %1</translation>
    </message>
    <message>
        <source>The templates cannot be put back</source>
        <translation>テンプレートを元に戻せません</translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>ディスクに書き込み中</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>そのプロジェクトはありません</translation>
    </message>
    <message>
        <source>Export %1 failed!</source>
        <translation>%1 のエクスポートに失敗しました！</translation>
    </message>
    <message>
        <source>Export Project templates failed!</source>
        <translation>プロジェクトテンプレートのエクスポートに失敗しました！</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>エクスポート先を指定してください！</translation>
    </message>
    <message>
        <source>please select item!</source>
        <translation>項目を選択してください！</translation>
    </message>
    <message>
        <source>Export the project &quot;mod&quot; and the templates one after the other: both become &quot;mod.zip&quot;</source>
        <translation>プロジェクト「mod」とテンプレートは別々にエクスポートしてください: どちらも「mod.zip」になります</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>Export to %1 success!</source>
        <translation>%1 へエクスポートしました！</translation>
    </message>
    <message>
        <source>the permissions of its files cannot be set</source>
        <translation>ファイルの権限を設定できません</translation>
    </message>
    <message>
        <source>there is no room beside the robot&apos;s folder</source>
        <translation>ロボットのフォルダの横に空きがありません</translation>
    </message>
    <message>
        <source>Delete temp file failed!</source>
        <translation>一時ファイルの削除に失敗しました！</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1 を作成できません</translation>
    </message>
    <message>
        <source>%1 import success!</source>
        <translation>%1 をインポートしました！</translation>
    </message>
    <message>
        <source>Import %1 failed!</source>
        <translation>%1 のインポートに失敗しました！</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a project</source>
        <translation>「%1」はプロジェクト名に使えません</translation>
    </message>
    <message>
        <source>What was imported may be lost when the power fails: %1</source>
        <translation>停電するとインポートした内容が失われることがあります: %1</translation>
    </message>
    <message>
        <source>%1 holds no list of variables</source>
        <translation>%1 に変数の一覧がありません</translation>
    </message>
    <message>
        <source>&quot;var.xml&quot;: the value of %1 is none that a project can have</source>
        <translation>「var.xml」: %1 の値はプロジェクトでは使えません</translation>
    </message>
    <message>
        <source>Import project templates failed!</source>
        <translation>プロジェクトテンプレートのインポートに失敗しました！</translation>
    </message>
    <message>
        <source>Reset project templates success!</source>
        <translation>プロジェクトテンプレートを初期化しました！</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>%1 を置き換えられません</translation>
    </message>
    <message>
        <source>Import project templates success!</source>
        <translation>プロジェクトテンプレートをインポートしました！</translation>
    </message>
    <message>
        <source>Project templates import success!</source>
        <translation>プロジェクトテンプレートのインポートが完了しました！</translation>
    </message>
    <message>
        <source>the disk takes its archive and another of this export for one</source>
        <translation>ディスクはそのアーカイブとこの書き出しの別のアーカイブを区別できません</translation>
    </message>
    <message>
        <source>templates reset</source>
        <translation>テンプレートのリセット</translation>
    </message>
    <message>
        <source>program templates</source>
        <translation>プログラムテンプレート</translation>
    </message>
    <message>
        <source>The controller is away: the variables of %1 are looked at when it is back and the project is reloaded</source>
        <translation>コントローラーに接続されていません。%1 の変数は、接続が戻りプロジェクトを再読み込みしたときに確認されます</translation>
    </message>
    <message>
        <source>it holds no project</source>
        <translation>プロジェクトが含まれていません</translation>
    </message>
    <message>
        <source>it holds no program templates</source>
        <translation>プログラムテンプレートが含まれていません</translation>
    </message>
</context>
<context>
    <name>palx::RunText</name>
    <message>
        <source>The recipe has no points yet. Generate them on the page &quot;Points&quot;.</source>
        <translation>レシピに点がまだありません。「点」ページで生成してください。</translation>
    </message>
    <message>
        <source>The side is in use. Disable it and let the robot end its pallet, or stop the program.</source>
        <translation>この側は使用中です。無効にしてパレットの完了を待つか、プログラムを停止してください。</translation>
    </message>
    <message>
        <source>There is no recipe for this side.</source>
        <translation>この側のレシピがありません。</translation>
    </message>
    <message>
        <source>The controller names a recipe that is not here.</source>
        <translation>コントローラが示すレシピはここにありません。</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed after the points were made. Generate them again on the page &quot;Points&quot;.</source>
        <translation>点の生成後にレシピまたは共通設定が変更されました。「点」ページで生成し直してください。</translation>
    </message>
    <message>
        <source>left pallet</source>
        <translation>左パレット</translation>
    </message>
    <message>
        <source>right pallet</source>
        <translation>右パレット</translation>
    </message>
    <message>
        <source>Stop the program first!</source>
        <translation>先にプログラムを停止してください！</translation>
    </message>
    <message>
        <source>There is no recipe for the %1!</source>
        <translation>%1のレシピがありません！</translation>
    </message>
    <message>
        <source>Clear the gripper first!</source>
        <translation>先にグリッパを空にしてください！</translation>
    </message>
    <message>
        <source>Products of the recipe &quot;%1&quot; lie on the %2!</source>
        <translation>%2にレシピ「%1」の製品があります！</translation>
    </message>
    <message>
        <source>The %1 is full; replace it first!</source>
        <translation>%1は満載です。先に交換してください！</translation>
    </message>
    <message>
        <source>The recipe has layers 1 to %1!</source>
        <translation>レシピの段は 1～%1 です！</translation>
    </message>
    <message>
        <source>Layer %1 has pieces 1 to %2!</source>
        <translation>%1 段目の個は 1～%2 です！</translation>
    </message>
    <message>
        <source>Confirm layer and piece of the %1 first!</source>
        <translation>先に%1の段と個を確認してください！</translation>
    </message>
    <message>
        <source>The lift column was stopped; go on with the start button of the cell!</source>
        <translation>昇降柱が停止しました。セルの起動ボタンで続けてください！</translation>
    </message>
    <message>
        <source>The lift column has no power; press the stop and then the start button of the cell!</source>
        <translation>昇降柱の動力がありません。セルの停止ボタン、次に起動ボタンを押してください！</translation>
    </message>
    <message>
        <source>The pallet is not as counted; stop the program and confirm the piece!</source>
        <translation>パレットが計数と違います。プログラムを停止し、個を確認してください！</translation>
    </message>
    <message>
        <source>The product was lost; stop the program and confirm the piece!</source>
        <translation>製品が失われました。プログラムを停止し、個を確認してください！</translation>
    </message>
    <message>
        <source>Recipes would get other places, and the programs that run would take other ones. Stop them first!</source>
        <translation>レシピの順番が変わり、実行中のプログラムが別のレシピを取ります。先に停止してください！</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;. Disable the side and let its pallet end, or stop the program!</source>
        <translation>%1はレシピ「%2」を使用中です。側を無効にしてパレットの完了を待つか、プログラムを停止してください！</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;, which stands behind this one: another would take its place. Disable the side and let its pallet end, or stop the program!</source>
        <translation>%1で使用中のレシピ「%2」はこの後にあり、別のレシピがその位置になります。側を無効にしてパレットの完了を待つか、プログラムを停止してください！</translation>
    </message>
    <message>
        <source>The products on the %1 are not of the recipe&apos;s size. Take them off, or change the recipe back!</source>
        <translation>%1の製品はレシピの寸法と違います。取り除くか、レシピを元に戻してください！</translation>
    </message>
    <message>
        <source>The recipe lays no products. Put some into the patterns of its layers.</source>
        <translation>レシピには置く製品がありません。段のパターンに製品を入れてください。</translation>
    </message>
</context>
<context>
    <name>xFileDialog</name>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Used space</source>
        <translation>使用領域</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>One folder up</source>
        <translation>一つ上のフォルダ</translation>
    </message>
    <message>
        <source>Shown folder</source>
        <translation>表示中のフォルダ</translation>
    </message>
    <message>
        <source>Kind of the files</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新しいフォルダ</translation>
    </message>
    <message>
        <source>Files and folders</source>
        <translation>ファイルとフォルダ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Plug in a USB disk.</source>
        <translation>USB ディスクを差し込んでください。</translation>
    </message>
    <message>
        <source>What is chosen, or why nothing can be</source>
        <translation>選択中のもの、または選べない理由</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Use what is chosen</source>
        <translation>選択したものを使う</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>このフォルダを使う</translation>
    </message>
    <message>
        <source>The disk %1 was pulled out.</source>
        <translation>ディスク %1 が抜かれました。</translation>
    </message>
    <message>
        <source>%1 free of %2</source>
        <translation>空き %1 / %2</translation>
    </message>
    <message>
        <source>Its files are shown as soon as it is ready.</source>
        <translation>準備ができ次第、ファイルを表示します。</translation>
    </message>
    <message>
        <source>The disk %1 is plugged in, but cannot be read. Format it on a PC (FAT32).</source>
        <translation>ディスク %1 は差し込まれていますが読めません。PC でフォーマットしてください (FAT32)。</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>フォルダを作成できません。</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>%1 を置き換えます</translation>
    </message>
    <message>
        <source>Touch a file.</source>
        <translation>ファイルをタッチしてください。</translation>
    </message>
    <message>
        <source>There is no such file in this folder.</source>
        <translation>このフォルダにそのファイルはありません。</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>ファイルを置き換えますか？</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 はすでにあります。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読めません。</translation>
    </message>
    <message>
        <source>It is safe to pull out the disk %1 now.</source>
        <translation>ディスク %1 を安全に抜けます。</translation>
    </message>
    <message>
        <source>Do not pull out the disk %1 yet: it has not taken everything.</source>
        <translation>ディスク %1 はまだ抜かないでください: 書き込みが終わっていません。</translation>
    </message>
    <message>
        <source>%1 is on no disk that is plugged in</source>
        <translation>%1 は接続中のディスク上にありません</translation>
    </message>
</context>
</TS>
