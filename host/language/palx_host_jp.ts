<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export the log</source>
        <translation>ログの書き出し</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
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
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Kind of the file</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>The file that is written</source>
        <translation>書き出すファイル</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>記録の数</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Export the shown records</source>
        <translation>表示中の記録を書き出す</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>ログを消去</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search the log</source>
        <translation>ログを検索</translation>
    </message>
    <message>
        <source>The chosen record</source>
        <translation>選択した記録</translation>
    </message>
</context>
<context>
    <name>PanelCellPage</name>
    <message>
        <source>State of the programs</source>
        <translation>プログラムの状態</translation>
    </message>
    <message>
        <source>Why, and which project</source>
        <translation>理由とプロジェクト</translation>
    </message>
    <message>
        <source>Time in the cell</source>
        <translation>セルの時間</translation>
    </message>
    <message>
        <source>The cell</source>
        <translation>セル</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>左へ回す</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>右へ回す</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>1 x</source>
        <translation>1 x</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>実時間</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>操作盤</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
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
        <source>Faults</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>スタート</translation>
    </message>
    <message>
        <source>Start button of the cell</source>
        <translation>セルのスタートボタン</translation>
    </message>
    <message>
        <source>Stop button of the cell</source>
        <translation>セルの停止ボタン</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset button of the cell</source>
        <translation>セルのリセットボタン</translation>
    </message>
    <message>
        <source>Clear gripper</source>
        <translation>グリッパを空にする</translation>
    </message>
    <message>
        <source>Left arrow button of the cell</source>
        <translation>セルの左矢印ボタン</translation>
    </message>
    <message>
        <source>Right arrow button of the cell</source>
        <translation>セルの右矢印ボタン</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>左パレット</translation>
    </message>
    <message>
        <source>Take away</source>
        <translation>取り去る</translation>
    </message>
    <message>
        <source>Left pallet away</source>
        <translation>左パレットを取り去る</translation>
    </message>
    <message>
        <source>Bring empty</source>
        <translation>空を置く</translation>
    </message>
    <message>
        <source>Left pallet: bring an empty one</source>
        <translation>左パレット: 空を置く</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>右パレット</translation>
    </message>
    <message>
        <source>Right pallet away</source>
        <translation>右パレットを取り去る</translation>
    </message>
    <message>
        <source>Right pallet: bring an empty one</source>
        <translation>右パレット: 空を置く</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Input on</source>
        <translation>入力オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Input off</source>
        <translation>入力オフ</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>押す</translation>
    </message>
    <message>
        <source>Press for half a second</source>
        <translation>0.5 秒押す</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>変数を検索</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新しい値</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Set the variable</source>
        <translation>変数を設定</translation>
    </message>
    <message>
        <source>Number of violations</source>
        <translation>違反の数</translation>
    </message>
    <message>
        <source>Violations</source>
        <translation>違反</translation>
    </message>
    <message>
        <source>The chosen violation</source>
        <translation>選択した違反</translation>
    </message>
    <message>
        <source>What was asked and answered</source>
        <translation>要求と応答</translation>
    </message>
    <message>
        <source>Speed that the controller tells</source>
        <translation>コントローラが示す速度</translation>
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
        <source>Conveyor, gripper and lift column</source>
        <translation>コンベヤ、グリッパ、昇降柱</translation>
    </message>
</context>
<context>
    <name>PanelControllerPage</name>
    <message>
        <source>Controller</source>
        <translation>コントローラ</translation>
    </message>
    <message>
        <source>State of the link</source>
        <translation>接続の状態</translation>
    </message>
    <message>
        <source>What the state of the link means</source>
        <translation>接続の状態の意味</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Controller name</source>
        <translation>コントローラ名</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Controller software</source>
        <translation>コントローラのソフトウェア</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>ロボット</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Motion of the robot</source>
        <translation>ロボットの動作</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>有効なツール</translation>
    </message>
    <message>
        <source>Current project</source>
        <translation>現在のプロジェクト</translation>
    </message>
    <message>
        <source>Start project</source>
        <translation>起動プロジェクト</translation>
    </message>
    <message>
        <source>Project that starts by itself</source>
        <translation>自動で始まるプロジェクト</translation>
    </message>
</context>
<context>
    <name>TextKeyboard</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
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
        <source>Delete the letter before</source>
        <translation>前の文字を削除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>テキストを消去</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>左へ</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>右へ</translation>
    </message>
</context>
<context>
    <name>bwaf::BModule</name>
    <message>
        <source>The data of the module %1 is incomplete: %2</source>
        <translation>モジュール %1 のデータが不完全です: %2</translation>
    </message>
</context>
<context>
    <name>controller::Texts</name>
    <message>
        <source>out of reach: the wrist would stand %1 mm from the shoulder, the arm reaches %2 mm</source>
        <translation>届きません: 手首は肩から %1 mm の位置になりますが、アームの到達距離は %2 mm です</translation>
    </message>
    <message>
        <source>joint %1 would stand at %2°, its limits are %3° and %4°</source>
        <translation>軸 %1 が %2° になりますが、可動範囲は %3° と %4° の間です</translation>
    </message>
    <message>
        <source>The panel speaks version %1 of the link, the controller version %2.</source>
        <translation>接続のバージョンは、パネルが %1、コントローラが %2 です。</translation>
    </message>
    <message>
        <source>a Hello without a session</source>
        <translation>セッションのない Hello</translation>
    </message>
    <message>
        <source>serves another panel</source>
        <translation>別のパネルに接続中です</translation>
    </message>
    <message>
        <source>nothing is done before a Hello was accepted</source>
        <translation>Hello が受け入れられるまで何も行いません</translation>
    </message>
    <message>
        <source>a panel sends no message of the kind %1</source>
        <translation>パネルは種類 %1 のメッセージを送りません</translation>
    </message>
    <message>
        <source>the controller ended the connection</source>
        <translation>コントローラが接続を終了しました</translation>
    </message>
    <message>
        <source>signals cannot be caught</source>
        <translation>シグナルを捕捉できません</translation>
    </message>
    <message>
        <source>after %1 % of the straight way joint %2 would turn by %3° at one place</source>
        <translation>直線経路の %1 % で軸 %2 が 1 か所で %3° 回転することになります</translation>
    </message>
    <message>
        <source>after %1 % of the straight way: %2</source>
        <translation>直線経路の %1 % で: %2</translation>
    </message>
    <message>
        <source>no recipe: %1</source>
        <translation>レシピではありません: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no recipe: %2</source>
        <translation>「%1」はレシピではありません: %2</translation>
    </message>
    <message>
        <source>this is no list of recipes</source>
        <translation>レシピの一覧ではありません</translation>
    </message>
    <message>
        <source>the name is there twice</source>
        <translation>同じ名前が 2 回あります</translation>
    </message>
    <message>
        <source>entry %1: %2</source>
        <translation>項目 %1: %2</translation>
    </message>
    <message>
        <source>&quot;index&quot; is missing or no whole number</source>
        <translation>「index」がないか、整数ではありません</translation>
    </message>
    <message>
        <source>there is no recipe %1, there are %2</source>
        <translation>レシピ %1 はありません。全部で %2 件です</translation>
    </message>
    <message>
        <source>&quot;name&quot; is missing or no text</source>
        <translation>「name」がないか、文字列ではありません</translation>
    </message>
    <message>
        <source>recipe %1 has the name &quot;%2&quot; already</source>
        <translation>レシピ %1 に既に名前「%2」があります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>「%1」がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of %2 numbers</source>
        <translation>「%1」は %2 個の数値の一覧ではありません</translation>
    </message>
    <message>
        <source>&quot;%1.#%2&quot; is no number</source>
        <translation>「%1.#%2」は数値ではありません</translation>
    </message>
    <message>
        <source>in &quot;%1&quot;: %2</source>
        <translation>「%1」内: %2</translation>
    </message>
    <message>
        <source>this is no product with its points</source>
        <translation>点を持つ製品ではありません</translation>
    </message>
    <message>
        <source>&quot;points.put&quot; is no list of layers</source>
        <translation>「points.put」は段の一覧ではありません</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1&quot; is no list of products</source>
        <translation>「points.put.#%1」は製品の一覧ではありません</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1.#%2&quot;: %3</source>
        <translation>「points.put.#%1.#%2」: %3</translation>
    </message>
    <message>
        <source>this is no record with names</source>
        <translation>名前付きのレコードではありません</translation>
    </message>
    <message>
        <source>&quot;points&quot; is missing</source>
        <translation>「points」がありません</translation>
    </message>
    <message>
        <source>&quot;layers&quot; is no list</source>
        <translation>「layers」は一覧ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is lost</source>
        <translation>「%1」が失われました</translation>
    </message>
    <message>
        <source>&quot;type&quot; is &quot;%1&quot;, neither &quot;l&quot; nor &quot;j&quot;</source>
        <translation>「type」が「%1」で、「l」でも「j」でもありません</translation>
    </message>
    <message>
        <source>&quot;motion.speed&quot; is no speed: %1</source>
        <translation>「motion.speed」は速度ではありません: %1</translation>
    </message>
    <message>
        <source>&quot;point&quot; is missing</source>
        <translation>「point」がありません</translation>
    </message>
    <message>
        <source>in &quot;point&quot;: %1</source>
        <translation>「point」内: %1</translation>
    </message>
    <message>
        <source>the robot is moving already</source>
        <translation>ロボットは既に動作中です</translation>
    </message>
    <message>
        <source>stopped: no sign from the held button for %1 ms</source>
        <translation>停止: 押しているボタンの信号が %1 ms ありませんでした</translation>
    </message>
    <message>
        <source>this is no file of a controller</source>
        <translation>コントローラのファイルではありません</translation>
    </message>
    <message>
        <source>length and checksum do not fit the content</source>
        <translation>長さとチェックサムが内容と一致しません</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be made</source>
        <translation>フォルダ「%1」を作れません</translation>
    </message>
    <message>
        <source>another controller uses the folder &quot;%1&quot;</source>
        <translation>別のコントローラがフォルダ「%1」を使用しています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and was set aside as &quot;%3&quot;</source>
        <translation>「%1」は壊れている（%2）ため、「%3」として退避しました</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and cannot be moved</source>
        <translation>「%1」は壊れており（%2）、移動できません</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: フォルダを作れません</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>シミュレーションコントローラ</translation>
    </message>
    <message>
        <source>nothing will be kept: %1</source>
        <translation>何も保存されません: %1</translation>
    </message>
    <message>
        <source>The controller cannot keep its state: %1</source>
        <translation>コントローラが状態を保存できません: %1</translation>
    </message>
    <message>
        <source>the panel does not write &quot;%1&quot;</source>
        <translation>パネルは「%1」に書き込みません</translation>
    </message>
    <message>
        <source>what was written at &quot;%1&quot; is nested too deep</source>
        <translation>「%1」に書かれた内容の入れ子が深すぎます</translation>
    </message>
    <message>
        <source>there is no place &quot;%1&quot;</source>
        <translation>場所「%1」がありません</translation>
    </message>
    <message>
        <source>there is no event &quot;%1&quot;</source>
        <translation>イベント「%1」がありません</translation>
    </message>
    <message>
        <source>stopped: the link to the panel is lost</source>
        <translation>停止: パネルとの接続が失われました</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing or no text</source>
        <translation>「%1」がないか、文字列ではありません</translation>
    </message>
    <message>
        <source>the controller knows no request &quot;%1&quot;</source>
        <translation>コントローラは要求「%1」を知りません</translation>
    </message>
    <message>
        <source>the robot is moving</source>
        <translation>ロボットが動作中です</translation>
    </message>
    <message>
        <source>the controller does not answer</source>
        <translation>コントローラが応答しません</translation>
    </message>
    <message>
        <source>cannot listen on port %1: %2</source>
        <translation>ポート %1 で待ち受けできません: %2</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is missing</source>
        <translation>「load.mass」がありません</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is no mass: %1</source>
        <translation>「load.mass」は質量ではありません: %1</translation>
    </message>
    <message>
        <source>&quot;name&quot; is no text</source>
        <translation>「name」は文字列ではありません</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; stands for no tool</source>
        <translation>名前「%1」はツールなしを表します</translation>
    </message>
    <message>
        <source>no toolset: %1</source>
        <translation>ツールセットではありません: %1</translation>
    </message>
    <message>
        <source>there are %1 tools already, no more are kept</source>
        <translation>ツールは既に %1 個あり、これ以上は保存できません</translation>
    </message>
    <message>
        <source>there is no toolset &quot;%1&quot;</source>
        <translation>ツールセット「%1」がありません</translation>
    </message>
    <message>
        <source>there is no variable &quot;%1&quot;</source>
        <translation>変数「%1」がありません</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; is not persistent</source>
        <translation>変数「%1」は保持変数ではありません</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; of type %2 does not take &quot;%3&quot;</source>
        <translation>型 %2 の変数「%1」に「%3」は入れられません</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; has no place for a value</source>
        <translation>変数「%1」に値を入れる場所がありません</translation>
    </message>
    <message>
        <source>this is no map of variables</source>
        <translation>変数の表ではありません</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 を起動できません: %2</translation>
    </message>
    <message>
        <source>%1 ended</source>
        <translation>%1 が終了しました</translation>
    </message>
    <message>
        <source>stopped: another move was asked for</source>
        <translation>停止: 別の動きが求められました</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be written: %2</source>
        <translation>フォルダ「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>The project %1 cannot be built: it has no folder in the workspace &quot;%2&quot;</source>
        <translation>プロジェクト %1 をビルドできません。作業領域「%2」にフォルダがありません</translation>
    </message>
    <message>
        <source>there is no recipe &quot;%1&quot;</source>
        <translation>レシピ「%1」がありません</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; cannot be used: %2</source>
        <translation>レシピ「%1」は使えません: %2</translation>
    </message>
    <message>
        <source>recipe %1</source>
        <translation>レシピ %1</translation>
    </message>
    <message>
        <source>left recipe %1</source>
        <translation>左レシピ %1</translation>
    </message>
    <message>
        <source>right recipe %1</source>
        <translation>右レシピ %1</translation>
    </message>
    <message>
        <source>there is no %1, there are %2</source>
        <translation>%1 はありません。%2 個あります</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no layer %2, it has %3</source>
        <translation>レシピ「%1」に %2 段目はありません。%3 段です</translation>
    </message>
    <message>
        <source>layer %1 of the recipe &quot;%2&quot; has no piece %3, it has %4</source>
        <translation>レシピ「%2」の %1 段目に %3 個目はありません。%4 個です</translation>
    </message>
    <message>
        <source>no pallet point is set yet</source>
        <translation>パレットの点がまだありません</translation>
    </message>
    <message>
        <source>it has no points</source>
        <translation>点がありません</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no point &quot;%2&quot; for layer %3, piece %4</source>
        <translation>レシピ「%1」に %3 段目 %4 個目の点「%2」がありません</translation>
    </message>
    <message>
        <source>in &quot;%1&quot; of the recipe &quot;%2&quot;: %3</source>
        <translation>レシピ「%2」の「%1」: %3</translation>
    </message>
    <message>
        <source>its work object needs three calibration points</source>
        <translation>ワークオブジェクトには校正点が 3 つ必要です</translation>
    </message>
    <message>
        <source>start button</source>
        <translation>起動ボタン</translation>
    </message>
    <message>
        <source>stop button</source>
        <translation>停止ボタン</translation>
    </message>
    <message>
        <source>reset button</source>
        <translation>リセットボタン</translation>
    </message>
    <message>
        <source>left arrow button</source>
        <translation>左矢印ボタン</translation>
    </message>
    <message>
        <source>right arrow button</source>
        <translation>右矢印ボタン</translation>
    </message>
    <message>
        <source>left pallet in place</source>
        <translation>左パレット在席</translation>
    </message>
    <message>
        <source>right pallet in place</source>
        <translation>右パレット在席</translation>
    </message>
    <message>
        <source>scanner 1, input 1</source>
        <translation>スキャナ 1、入力 1</translation>
    </message>
    <message>
        <source>scanner 1, input 2</source>
        <translation>スキャナ 1、入力 2</translation>
    </message>
    <message>
        <source>scanner 1, input 3</source>
        <translation>スキャナ 1、入力 3</translation>
    </message>
    <message>
        <source>scanner 2, input 1</source>
        <translation>スキャナ 2、入力 1</translation>
    </message>
    <message>
        <source>scanner 2, input 2</source>
        <translation>スキャナ 2、入力 2</translation>
    </message>
    <message>
        <source>scanner 2, input 3</source>
        <translation>スキャナ 2、入力 3</translation>
    </message>
    <message>
        <source>air pressure</source>
        <translation>空気圧</translation>
    </message>
    <message>
        <source>product in place</source>
        <translation>製品在席</translation>
    </message>
    <message>
        <source>start lamp</source>
        <translation>起動ランプ</translation>
    </message>
    <message>
        <source>stop lamp</source>
        <translation>停止ランプ</translation>
    </message>
    <message>
        <source>reset lamp</source>
        <translation>リセットランプ</translation>
    </message>
    <message>
        <source>left arrow lamp</source>
        <translation>左矢印ランプ</translation>
    </message>
    <message>
        <source>right arrow lamp</source>
        <translation>右矢印ランプ</translation>
    </message>
    <message>
        <source>suction</source>
        <translation>吸着</translation>
    </message>
    <message>
        <source>scanner 1, zone 1</source>
        <translation>スキャナ 1、区域 1</translation>
    </message>
    <message>
        <source>scanner 1, zone 2</source>
        <translation>スキャナ 1、区域 2</translation>
    </message>
    <message>
        <source>scanner 2, zone 1</source>
        <translation>スキャナ 2、区域 1</translation>
    </message>
    <message>
        <source>scanner 2, zone 2</source>
        <translation>スキャナ 2、区域 2</translation>
    </message>
    <message>
        <source>left beacon red</source>
        <translation>左表示灯 赤</translation>
    </message>
    <message>
        <source>left beacon yellow</source>
        <translation>左表示灯 黄</translation>
    </message>
    <message>
        <source>left beacon green</source>
        <translation>左表示灯 緑</translation>
    </message>
    <message>
        <source>left buzzer</source>
        <translation>左ブザー</translation>
    </message>
    <message>
        <source>right beacon red</source>
        <translation>右表示灯 赤</translation>
    </message>
    <message>
        <source>right beacon yellow</source>
        <translation>右表示灯 黄</translation>
    </message>
    <message>
        <source>right beacon green</source>
        <translation>右表示灯 緑</translation>
    </message>
    <message>
        <source>right buzzer</source>
        <translation>右ブザー</translation>
    </message>
    <message>
        <source>conveyor forward</source>
        <translation>コンベヤ正転</translation>
    </message>
    <message>
        <source>conveyor reverse</source>
        <translation>コンベヤ逆転</translation>
    </message>
    <message>
        <source>&quot;on&quot; is missing or neither true nor false</source>
        <translation>「on」がないか true でも false でもありません</translation>
    </message>
    <message>
        <source>and %1 more problems in the programs</source>
        <translation>プログラムにほか %1 件の問題</translation>
    </message>
    <message>
        <source>there is no current project</source>
        <translation>現在のプロジェクトがありません</translation>
    </message>
    <message>
        <source>the project %1 has no folder in the workspace</source>
        <translation>プロジェクト %1 のフォルダが作業領域にありません</translation>
    </message>
    <message>
        <source>the programs have problems: %1</source>
        <translation>プログラムに問題があります: %1</translation>
    </message>
    <message>
        <source>paused at the panel</source>
        <translation>パネルで一時停止</translation>
    </message>
    <message>
        <source>&quot;factor&quot; is no number from %1 to %2</source>
        <translation>「factor」は %1～%2 の数ではありません</translation>
    </message>
    <message>
        <source>there is no input &quot;%1&quot;</source>
        <translation>入力「%1」がありません</translation>
    </message>
    <message>
        <source>there is no fault &quot;%1&quot;, there are %2</source>
        <translation>故障「%1」はありません。使えるもの: %2</translation>
    </message>
    <message>
        <source>&quot;side&quot; is neither 0 (left) nor 1 (right)</source>
        <translation>「side」が 0 (左) でも 1 (右) でもありません</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, neither &quot;take&quot; nor &quot;bring&quot;</source>
        <translation>「action」が「%1」で、「take」でも「bring」でもありません</translation>
    </message>
    <message>
        <source>Program: %1</source>
        <translation>プログラム: %1</translation>
    </message>
    <message>
        <source>%1 %2:%3, layer %4, piece %5: %6</source>
        <translation>%1 %2:%3、%4 段目、%5 個目: %6</translation>
    </message>
    <message>
        <source>this is no name of a file</source>
        <translation>ファイル名ではありません</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>ファイルを読めません: %1</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>ファイルが %1 バイトを超えています</translation>
    </message>
    <message>
        <source>there is no kind of task &quot;%1&quot;</source>
        <translation>タスクの種類「%1」がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a task</source>
        <translation>「%1」はタスク名ではありません</translation>
    </message>
    <message>
        <source>the emergency stop is pressed</source>
        <translation>非常停止が押されています</translation>
    </message>
    <message>
        <source>the robot was stopped by a collision; reset first</source>
        <translation>ロボットは衝突で停止しました。先にリセットしてください</translation>
    </message>
    <message>
        <source>somebody stands in the field of scanner %1</source>
        <translation>スキャナ %1 の範囲に人がいます</translation>
    </message>
    <message>
        <source>the project has no motion task</source>
        <translation>プロジェクトに動作タスクがありません</translation>
    </message>
    <message>
        <source>no program runs</source>
        <translation>プログラムは動いていません</translation>
    </message>
    <message>
        <source>the program runs; pause it first</source>
        <translation>プログラムが動いています。先に一時停止してください</translation>
    </message>
    <message>
        <source>the power was cut</source>
        <translation>電源が切れました</translation>
    </message>
    <message>
        <source>the stop button was pressed</source>
        <translation>停止ボタンが押されました</translation>
    </message>
    <message>
        <source>paused by the program, %1</source>
        <translation>プログラムによる一時停止、%1</translation>
    </message>
    <message>
        <source>the program is at its end</source>
        <translation>プログラムは終わりました</translation>
    </message>
    <message>
        <source>one step was made, to %1</source>
        <translation>1 ステップ実行、%1 まで</translation>
    </message>
    <message>
        <source>a program runs; pause it first</source>
        <translation>プログラムが動いています。先に一時停止してください</translation>
    </message>
    <message>
        <source>the robot is braking</source>
        <translation>ロボットが減速しています</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, not &quot;clear&quot;</source>
        <translation>「action」は「%1」で、「clear」ではありません</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>%1: this is no file</source>
        <translation>%1: ファイルではありません</translation>
    </message>
    <message>
        <source>%1: it is nested too deep</source>
        <translation>%1: 入れ子が深すぎます</translation>
    </message>
    <message>
        <source>%1: there is no list</source>
        <translation>%1: リストがありません</translation>
    </message>
    <message>
        <source>The project %1 cannot be read: %2</source>
        <translation>プロジェクト %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The folder of the project %1 does not take its tasks and variables: %2</source>
        <translation>プロジェクト %1 のフォルダーにタスクと変数を書き込めません: %2</translation>
    </message>
    <message>
        <source>The folder of the project %1 was exchanged while its program runs; what is in it counts when the program is stopped and started again</source>
        <translation>プロジェクト %1 のフォルダーがプログラムの実行中に入れ替えられました。プログラムを停止して再び開始すると、その内容が有効になります</translation>
    </message>
    <message>
        <source>The project %1 has no tasks: edit it, and they are made anew</source>
        <translation>プロジェクト %1 にタスクがありません。編集すると新しく作られます</translation>
    </message>
    <message>
        <source>the folder of the project was exchanged, and its counters with it: look at them before it runs</source>
        <translation>プロジェクトのフォルダーがカウンターごと入れ替えられました。実行前に確認してください</translation>
    </message>
</context>
<context>
    <name>host::ControllerLink</name>
    <message>
        <source>Looking for the controller.</source>
        <translation>コントローラを探しています。</translation>
    </message>
    <message>
        <source>The link to the controller is closed.</source>
        <translation>コントローラとの接続を閉じました。</translation>
    </message>
    <message>
        <source>The controller is being asked for its state.</source>
        <translation>コントローラの状態を問い合わせています。</translation>
    </message>
    <message>
        <source>The link to the controller broke: %1. Edits stay in the panel and are sent when it is back. Check the cable and the controller.</source>
        <translation>コントローラとの接続が切れました: %1。変更はパネルに残り、復旧後に送られます。ケーブルとコントローラを確認してください。</translation>
    </message>
    <message>
        <source>The controller cannot be reached: %1. Check the cable and whether it is switched on.</source>
        <translation>コントローラに接続できません: %1。ケーブルと電源を確認してください。</translation>
    </message>
    <message>
        <source>it did not answer the greeting</source>
        <translation>あいさつに応答しませんでした</translation>
    </message>
    <message>
        <source>it was silent for %1 s</source>
        <translation>%1 s 間応答がありませんでした</translation>
    </message>
    <message>
        <source>An edit cannot be sent to the controller: %1</source>
        <translation>変更をコントローラに送れません: %1</translation>
    </message>
    <message>
        <source>the controller must not send such a message</source>
        <translation>コントローラはこのメッセージを送ってはなりません</translation>
    </message>
    <message>
        <source>The controller speaks version %1 of the link, this panel version %2. Update the older one.</source>
        <translation>接続のバージョンは、コントローラが %1、このパネルが %2 です。古い方を更新してください。</translation>
    </message>
    <message>
        <source>Controller %1 connected, software %2, robot %3.</source>
        <translation>コントローラ %1 に接続しました。ソフトウェア %2、ロボット %3。</translation>
    </message>
    <message>
        <source>The controller serves another panel. Close the link there; this panel asks again by itself.</source>
        <translation>コントローラは別のパネルに接続中です。そちらの接続を閉じてください。このパネルは自動で再試行します。</translation>
    </message>
    <message>
        <source>The controller refuses this panel&apos;s version of the link: %1. Update the older one.</source>
        <translation>コントローラがこのパネルの接続バージョンを拒否しました: %1。古い方を更新してください。</translation>
    </message>
    <message>
        <source>The controller sent something that cannot be read and was left out: %1.</source>
        <translation>コントローラから読み取れない内容が届いたため、無視しました: %1。</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>このパネルはコントローラに接続されていません。</translation>
    </message>
    <message>
        <source>The controller did not carry out &quot;%1&quot;: %2</source>
        <translation>コントローラは「%1」を実行しませんでした: %2</translation>
    </message>
    <message>
        <source>The controller is not connected.</source>
        <translation>コントローラが接続されていません。</translation>
    </message>
    <message>
        <source>The link to the controller broke before it answered.</source>
        <translation>コントローラの応答前に接続が切れました。</translation>
    </message>
    <message>
        <source>The controller did not answer within %1 s.</source>
        <translation>コントローラが %1 s 以内に応答しませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no node that a controller may change</source>
        <translation>「%1」はコントローラが変更できるノードではありません</translation>
    </message>
    <message>
        <source>there is no place for &quot;%1&quot;</source>
        <translation>「%1」を置く場所がありません</translation>
    </message>
    <message>
        <source>a greeting without a state</source>
        <translation>状態のないあいさつ</translation>
    </message>
    <message>
        <source>The controller did not take a message of the panel: %1.</source>
        <translation>コントローラがパネルのメッセージを受け付けませんでした: %1。</translation>
    </message>
    <message>
        <source>Messages that could not be read: %1.</source>
        <translation>読めなかったメッセージ: %1。</translation>
    </message>
    <message>
        <source>Answers that came late or twice: %1.</source>
        <translation>遅れたか重複した応答: %1。</translation>
    </message>
    <message>
        <source>Requests without an answer: %1.</source>
        <translation>応答のない要求: %1。</translation>
    </message>
    <message>
        <source>The controller answered a request too late or twice. The answer was dropped.</source>
        <translation>コントローラの応答が遅すぎるか重複しました。応答は破棄されました。</translation>
    </message>
</context>
<context>
    <name>host::HostSession</name>
    <message>
        <source>The panel cannot start</source>
        <translation>パネルを起動できません</translation>
    </message>
    <message>
        <source>another session runs in this process</source>
        <translation>このプロセスでは別のセッションが動作中です</translation>
    </message>
    <message>
        <source>A folder cannot be made</source>
        <translation>フォルダを作れません</translation>
    </message>
    <message>
        <source>nothing is stored there</source>
        <translation>そこには何も保存されません</translation>
    </message>
    <message>
        <source>The stored data cannot be used</source>
        <translation>保存データを使えません</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>データを保存できません</translation>
    </message>
    <message>
        <source>The panel&apos;s own nodes cannot be built</source>
        <translation>パネル自身のノードを作れません</translation>
    </message>
    <message>
        <source>The plug-in cannot be used</source>
        <translation>プラグインを使えません</translation>
    </message>
    <message>
        <source>The plug-in is left out</source>
        <translation>プラグインは読み込まれません</translation>
    </message>
    <message>
        <source>a module &quot;%1&quot; is there already</source>
        <translation>モジュール「%1」は既にあります</translation>
    </message>
    <message>
        <source>its factory made no module &quot;%1&quot;</source>
        <translation>ファクトリがモジュール「%1」を作りませんでした</translation>
    </message>
</context>
<context>
    <name>host::LibraryFile</name>
    <message>
        <source>it is no library</source>
        <translation>ライブラリではありません</translation>
    </message>
    <message>
        <source>the file is incomplete: it has %1 bytes, %2 are needed</source>
        <translation>ファイルが不完全です: %1 バイトしかなく、%2 バイト必要です</translation>
    </message>
</context>
<context>
    <name>host::Link</name>
    <message>
        <source>a message of %1 bytes is longer than the %2 that are read</source>
        <translation>%1 バイトのメッセージは、読み取れる %2 バイトを超えています</translation>
    </message>
    <message>
        <source>no message is of the kind %1</source>
        <translation>種類 %1 のメッセージはありません</translation>
    </message>
    <message>
        <source>the message is of version %1 of the link, only version %2 is read</source>
        <translation>メッセージの接続バージョンは %1 ですが、読めるのはバージョン %2 だけです</translation>
    </message>
    <message>
        <source>the message has %1 bytes where its head names %2</source>
        <translation>メッセージは %1 バイトですが、ヘッダーでは %2 です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the wrong kind</source>
        <translation>「%1」の種類が正しくありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>「%1」が範囲外です</translation>
    </message>
    <message>
        <source>the message is no map of keys</source>
        <translation>メッセージがキーの表ではありません</translation>
    </message>
    <message>
        <source>these bytes are no message of the link</source>
        <translation>このバイト列は接続のメッセージではありません</translation>
    </message>
    <message>
        <source>the message is cut off in its head</source>
        <translation>メッセージがヘッダーの途中で切れています</translation>
    </message>
    <message>
        <source>the message was damaged on its way</source>
        <translation>メッセージが伝送中に壊れました</translation>
    </message>
</context>
<context>
    <name>host::LogKeeper</name>
    <message>
        <source>A log record cannot be kept: %1</source>
        <translation>ログの記録を残せません: %1</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translation>見出しがありません</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1。%2 として残しました</translation>
    </message>
    <message>
        <source>The log cannot be kept over a restart: %1</source>
        <translation>ログを再起動後まで残せません: %1</translation>
    </message>
</context>
<context>
    <name>host::PluginLoader</name>
    <message>
        <source>it has no entry &quot;%1&quot;, so it is no plug-in of this panel</source>
        <translation>入口「%1」がないため、このパネルのプラグインではありません</translation>
    </message>
    <message>
        <source>its entry &quot;%1&quot; tells nothing</source>
        <translation>入口「%1」が何も返しません</translation>
    </message>
    <message>
        <source>it was built for interface %1 of the framework, this panel has interface %2</source>
        <translation>フレームワークのインターフェース %1 用ですが、このパネルは %2 です</translation>
    </message>
    <message>
        <source>it tells no name</source>
        <translation>名前がありません</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのファイルはありません</translation>
    </message>
    <message>
        <source>it has registered no module under the name &quot;%1&quot;</source>
        <translation>名前「%1」のモジュールが登録されていません</translation>
    </message>
    <message>
        <source>it has registered no version under the name &quot;%1&quot;</source>
        <translation>名前「%1」のバージョンが登録されていません</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded</source>
        <translation>プラグインを読み込めません</translation>
    </message>
</context>
<context>
    <name>host::Store</name>
    <message>
        <source>a store is open already in this program</source>
        <translation>このプログラムでは保存領域が既に開かれています</translation>
    </message>
    <message>
        <source>files cannot be made there</source>
        <translation>そこにファイルを作れません</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is in use by %2 (process %3 on %4). End that program or choose another data folder.</source>
        <translation>データフォルダ「%1」は %2 が使用中です（%4 のプロセス %3）。そのプログラムを終了するか、別のデータフォルダを選んでください。</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>フォルダを作れません</translation>
    </message>
    <message>
        <source>another program has written it in the meantime</source>
        <translation>その間に別のプログラムが書き込みました</translation>
    </message>
    <message>
        <source>What the panel holds is stored anew.</source>
        <translation>パネルの内容を新しく保存します。</translation>
    </message>
    <message>
        <source>The panel starts from its templates.</source>
        <translation>パネルはテンプレートから起動します。</translation>
    </message>
    <message>
        <source>%1 entries in it were whole and were taken over.</source>
        <translation>完全な %1 件を引き継ぎました。</translation>
    </message>
    <message>
        <source>%1 of its %2 entries were whole and were taken over.</source>
        <translation>%2 件中、完全な %1 件を引き継ぎました。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; cannot be read: %2. The panel starts from its templates; the stored data will be kept aside.</source>
        <translation>「%1」の保存データを読めません: %2。パネルはテンプレートから起動し、保存データは別に残します。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2. %3 entries were whole and were taken over.</source>
        <translation>「%1」の保存データが壊れています: %2。完全な %3 件を引き継ぎました。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; could not be used: %2.</source>
        <translation>「%1」の保存データを使えませんでした: %2。</translation>
    </message>
    <message>
        <source>The file was kept as &quot;%1&quot;.</source>
        <translation>ファイルを「%1」として残しました。</translation>
    </message>
    <message>
        <source>All other entries were taken over.</source>
        <translation>他の項目はすべて引き継ぎました。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2.</source>
        <translation>「%1」の保存データが壊れています: %2。</translation>
    </message>
    <message>
        <source>entry %1 has no valid text</source>
        <translation>項目 %1 の文字列が無効です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be stored: %2.</source>
        <translation>「%1」を保存できません: %2。</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; cannot be written: %2. Changes are kept in memory, and saving is tried again every %3 seconds and at the end. Make the folder writable or free space on its disk; what is not saved is lost with the end of the program.</source>
        <translation>データフォルダ「%1」に書き込めません: %2。変更はメモリにあり、%3 秒ごとと終了時に保存を再試行します。フォルダを書き込み可能にするか、ディスクの空きを増やしてください。保存されていない内容はプログラム終了時に失われます。</translation>
    </message>
    <message>
        <source>the SQLite driver of Qt is not installed</source>
        <translation>Qt の SQLite ドライバがインストールされていません</translation>
    </message>
    <message>
        <source>it is no store of this panel</source>
        <translation>このパネルの保存データではありません</translation>
    </message>
    <message>
        <source>it was written by a newer version of this panel (form %1)</source>
        <translation>新しいバージョンのパネルが書いたものです（形式 %1）</translation>
    </message>
    <message>
        <source>its form %1 is unknown</source>
        <translation>形式 %1 は不明です</translation>
    </message>
    <message>
        <source>the checksum of entry %1 is wrong</source>
        <translation>項目 %1 のチェックサムが一致しません</translation>
    </message>
    <message>
        <source>its manifest is missing</source>
        <translation>マニフェストがありません</translation>
    </message>
    <message>
        <source>the checksum of its manifest is wrong</source>
        <translation>マニフェストのチェックサムが一致しません</translation>
    </message>
    <message>
        <source>it holds %1 entries instead of %2, or others</source>
        <translation>%2 件ではなく %1 件あるか、内容が異なります</translation>
    </message>
    <message>
        <source>the file cannot be renamed</source>
        <translation>ファイルの名前を変更できません</translation>
    </message>
    <message>
        <source>it cannot be renamed</source>
        <translation>名前を変更できません</translation>
    </message>
</context>
<context>
    <name>host::TreeBinder</name>
    <message>
        <source>The template cannot be used: %1</source>
        <translation>テンプレートを使えません: %1</translation>
    </message>
    <message>
        <source>The template %1 holds no map of keys</source>
        <translation>テンプレート %1 にキーの表がありません</translation>
    </message>
    <message>
        <source>Stored values do not fit the template and were left out: %1</source>
        <translation>保存値がテンプレートに合わないため省きました: %1</translation>
    </message>
</context>
<context>
    <name>ix::ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>欄を空にする</translation>
    </message>
</context>
<context>
    <name>ix::calc</name>
    <message>
        <source>%1 are only %2 mm apart; at least %3 mm are needed.</source>
        <translation>%1 の間隔が %2 mm しかありません。%3 mm 以上必要です。</translation>
    </message>
    <message>
        <source>A calibration point holds no number.</source>
        <translation>校正点に数値がありません。</translation>
    </message>
    <message>
        <source>The origin and the point on X</source>
        <translation>原点と X 軸上の点</translation>
    </message>
    <message>
        <source>The origin and the point on the XY plane</source>
        <translation>原点と XY 平面上の点</translation>
    </message>
    <message>
        <source>The directions to the two points differ by only %1 degrees; at least %2 are needed.</source>
        <translation>2 点への方向の差が %1 度しかありません。%2 度以上必要です。</translation>
    </message>
</context>
<context>
    <name>nexo::ManagerHelper</name>
    <message>
        <source>The translation %1 cannot be read.</source>
        <translation>翻訳 %1 を読めません。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>nexo::SettingManager</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1（%2 バイト目）</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>JSON オブジェクトがありません</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is no text</source>
        <translation>「%1」の値が文字列ではありません</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. Settings are not saved.</source>
        <translation>設定ファイル %1 を使えません: %2。設定は保存されません。</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. It is kept as %3.</source>
        <translation>設定ファイル %1 を使えません: %2。%3 として残しました。</translation>
    </message>
    <message>
        <source>Cannot save the settings file %1: %2</source>
        <translation>設定ファイル %1 を保存できません: %2</translation>
    </message>
</context>
<context>
    <name>orba::ModuleManager</name>
    <message>
        <source>%1 (at &quot;%2&quot;)</source>
        <translation>%1（「%2」）</translation>
    </message>
    <message>
        <source>lists and maps are nested more than %1 deep</source>
        <translation>一覧と表の入れ子が %1 を超えています</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file has %1 bytes, more than the %2 that are read</source>
        <translation>ファイルは %1 バイトで、読み取れる %2 バイトを超えています</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>開けません: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>読めません: %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>書き込めません: %1</translation>
    </message>
    <message>
        <source>is written, but may be lost when the power fails: %1</source>
        <translation>書き込みましたが、停電時に失われることがあります: %1</translation>
    </message>
    <message>
        <source>a whole number is outside of 64 bits</source>
        <translation>整数が 64 ビットに収まりません</translation>
    </message>
    <message>
        <source>an item is {&quot;name&quot;: text, &quot;value&quot;: ...}, without &quot;name&quot; when it has none</source>
        <translation>項目は {&quot;name&quot;: 文字列, &quot;value&quot;: ...} の形です。名前がなければ &quot;name&quot; を省きます</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; stands alone with one text</source>
        <translation>「#utf16」は 1 つの文字列だけを持ちます</translation>
    </message>
    <message>
        <source>a mixed container is {&quot;#mixed&quot;: &quot;list&quot; or &quot;map&quot;, &quot;#items&quot;: [...]}</source>
        <translation>混在コンテナは {&quot;#mixed&quot;: &quot;list&quot; または &quot;map&quot;, &quot;#items&quot;: [...]} の形です</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>数値が大きすぎます</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; holds no base64 text of UTF-16</source>
        <translation>「#utf16」に UTF-16 の base64 文字列がありません</translation>
    </message>
    <message>
        <source>keys that begin with one &quot;#&quot; are reserved, write &quot;##&quot;</source>
        <translation>「#」1 つで始まるキーは予約済みです。「##」と書いてください</translation>
    </message>
    <message>
        <source>a name is a text or {&quot;#utf16&quot;: ...}</source>
        <translation>名前は文字列か {&quot;#utf16&quot;: ...} です</translation>
    </message>
    <message>
        <source>a zero byte stands outside of a text</source>
        <translation>文字列の外にゼロバイトがあります</translation>
    </message>
    <message>
        <source>the text has %1 bytes, more than the %2 that are read</source>
        <translation>テキストは %1 バイトで、読み取れる %2 バイトを超えています</translation>
    </message>
    <message>
        <source>a number is not finite</source>
        <translation>数値が有限ではありません</translation>
    </message>
    <message>
        <source>the tree is too large to be written</source>
        <translation>ツリーが大きすぎて書き込めません</translation>
    </message>
    <message>
        <source>there is no such node</source>
        <translation>そのノードはありません</translation>
    </message>
    <message>
        <source>document types and entities are not accepted</source>
        <translation>文書型と実体は受け付けません</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot; is unknown</source>
        <translation>実体「%1」は不明です</translation>
    </message>
    <message>
        <source>unknown element &quot;%1&quot;</source>
        <translation>不明な要素「%1」</translation>
    </message>
    <message>
        <source>text stands between elements</source>
        <translation>要素の間に文字列があります</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>文書が空です</translation>
    </message>
    <message>
        <source>unknown attribute %1=&quot;%2&quot;</source>
        <translation>不明な属性 %1=&quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown type &quot;%1&quot;</source>
        <translation>不明な型「%1」</translation>
    </message>
    <message>
        <source>the element has no type</source>
        <translation>要素に型がありません</translation>
    </message>
    <message>
        <source>only a string has an encoding</source>
        <translation>エンコードを持てるのは文字列だけです</translation>
    </message>
    <message>
        <source>there is no name to be decoded</source>
        <translation>復号する名前がありません</translation>
    </message>
    <message>
        <source>the name is no base64 text of UTF-16</source>
        <translation>名前が UTF-16 の base64 文字列ではありません</translation>
    </message>
    <message>
        <source>the string is no base64 text of UTF-16</source>
        <translation>文字列が UTF-16 の base64 ではありません</translation>
    </message>
    <message>
        <source>a null holds no value</source>
        <translation>null は値を持ちません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>「%1」は true でも false でもありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number of 64 bits</source>
        <translation>「%1」は 64 ビットの整数ではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>「%1」は有限の数値ではありません</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>テキストが UTF-8 ではありません</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>停止されました</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not accepted</source>
        <translation>文字コード「%1」は使えません</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>要素の属性が %1 個を超えています</translation>
    </message>
</context>
<context>
    <name>panel::CellPage</name>
    <message>
        <source>No project is in use.</source>
        <translation>使用中のプロジェクトはありません。</translation>
    </message>
    <message>
        <source>Project %1</source>
        <translation>プロジェクト %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>コントローラなし</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>運転中</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
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
        <source>no pallet</source>
        <translation>パレットなし</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>%1 of %2 boxes</source>
        <translation>%1 / %2 箱</translation>
    </message>
    <message>
        <source>No vacuum</source>
        <translation>真空なし</translation>
    </message>
    <message>
        <source>Lost box</source>
        <translation>箱の落下</translation>
    </message>
    <message>
        <source>Conveyor jam</source>
        <translation>コンベヤ詰まり</translation>
    </message>
    <message>
        <source>Pallet pulled</source>
        <translation>パレット引き抜き</translation>
    </message>
    <message>
        <source>Emergency stop</source>
        <translation>非常停止</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>衝突</translation>
    </message>
    <message>
        <source>Power cut</source>
        <translation>停電</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>意味</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>プロシージャ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Layer / piece</source>
        <translation>段 / 個</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1: オン</translation>
    </message>
    <message>
        <source>Violations: %1, lost boxes: %2</source>
        <translation>違反: %1、落下した箱: %2</translation>
    </message>
    <message>
        <source>%1: waiting for the controller</source>
        <translation>%1: コントローラを待っています</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>product at the stop</source>
        <translation>製品がストッパ位置</translation>
    </message>
    <message>
        <source>product in %1 mm</source>
        <translation>製品まで %1 mm</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>詰まり</translation>
    </message>
    <message>
        <source>vacuum</source>
        <translation>真空あり</translation>
    </message>
    <message>
        <source>no vacuum</source>
        <translation>真空なし</translation>
    </message>
    <message>
        <source>carries a product</source>
        <translation>製品を保持中</translation>
    </message>
    <message>
        <source>Conveyor: %1</source>
        <translation>コンベヤ: %1</translation>
    </message>
    <message>
        <source>Gripper: %1</source>
        <translation>グリッパ: %1</translation>
    </message>
    <message>
        <source>Lift column: %1 mm, %2</source>
        <translation>昇降柱: %1 mm、%2</translation>
    </message>
    <message>
        <source>Task, line</source>
        <translation>タスク、行</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>物体</translation>
    </message>
    <message>
        <source>switch on disabled</source>
        <translation>スイッチオン無効</translation>
    </message>
    <message>
        <source>ready to switch on</source>
        <translation>スイッチオン準備完了</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>スイッチオン</translation>
    </message>
    <message>
        <source>operation enabled</source>
        <translation>運転有効</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>故障</translation>
    </message>
</context>
<context>
    <name>panel::CellTable</name>
    <message>
        <source>runs</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>waits</source>
        <translation>待ち</translation>
    </message>
    <message>
        <source>moves</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
</context>
<context>
    <name>panel::ControllerPage</name>
    <message>
        <source>Moving</source>
        <translation>移動中</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>停止中</translation>
    </message>
</context>
<context>
    <name>panel::ExportDialog</name>
    <message>
        <source>Table (CSV)</source>
        <translation>表 (CSV)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>ファイルに名前が必要です。</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot; and does not begin with &quot;.&quot;.</source>
        <translation>名前に「/」は使えず、「.」で始められません。</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>ファイルを置き換えますか？</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 はすでにあります。</translation>
    </message>
</context>
<context>
    <name>panel::LogModel</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>ロボット</translation>
    </message>
</context>
<context>
    <name>panel::LogPage</name>
    <message>
        <source>All levels</source>
        <translation>すべてのレベル</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>エラーと警告</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>記録: %1</translation>
    </message>
    <message>
        <source>Records: %1 of %2</source>
        <translation>記録: %1／%2</translation>
    </message>
    <message>
        <source>%1 records were exported to %2.</source>
        <translation>%1 件の記録を %2 に書き出しました。</translation>
    </message>
    <message>
        <source>The log was not exported. %1</source>
        <translation>ログを書き出せませんでした。%1</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>ログを消去</translation>
    </message>
    <message>
        <source>All %1 records are deleted for good, those that the filter hides as well. Export them first to keep them.</source>
        <translation>フィルタで隠れているものも含め、%1 件の記録がすべて完全に削除されます。残すには先に書き出してください。</translation>
    </message>
</context>
<context>
    <name>panel::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>panel::Navigator</name>
    <message>
        <source>Packages</source>
        <translation>パッケージ</translation>
    </message>
    <message>
        <source>Navigator</source>
        <translation>ナビゲータ</translation>
    </message>
</context>
<context>
    <name>panel::Options</name>
    <message>
        <source>Folder of the stored data, settings and logs.</source>
        <translation>保存データ、設定、ログのフォルダ。</translation>
    </message>
    <message>
        <source>Controller workspace.</source>
        <translation>コントローラのワークスペース。</translation>
    </message>
    <message>
        <source>en, cn, ru, jp or kr.</source>
        <translation>en、cn、ru、jp、kr のいずれか。</translation>
    </message>
    <message>
        <source>Plug-in library to load; may be given several times.</source>
        <translation>読み込むプラグインライブラリ。複数回指定できます。</translation>
    </message>
    <message>
        <source>Recipes (file or folder) for an empty store; may be given several times.</source>
        <translation>空の保存領域に入れるレシピ（ファイルまたはフォルダ）。複数回指定できます。</translation>
    </message>
    <message>
        <source>Desktop panel of the palletizing workstation.</source>
        <translation>パレタイズワークステーションのデスクトップパネル。</translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation>不明な引数「%1」。</translation>
    </message>
    <message>
        <source>Unknown language &quot;%1&quot;; there are %2.</source>
        <translation>不明な言語「%1」。使えるのは %2 です。</translation>
    </message>
    <message>
        <source>Robot controller: inprocess (simulated, the default), spawn (simulated, in a process of its own), HOST:PORT or none.</source>
        <translation>ロボットコントローラ: inprocess（シミュレーション、既定）、spawn（別プロセスのシミュレーション）、HOST:PORT、none。</translation>
    </message>
    <message>
        <source>Unknown controller &quot;%1&quot;; there are inprocess, spawn, none and HOST:PORT.</source>
        <translation>不明なコントローラ「%1」。使えるのは inprocess、spawn、none、HOST:PORT です。</translation>
    </message>
    <message>
        <source>Fields that are touched open a keypad or keyboard.</source>
        <translation>触れた欄にテンキーまたはキーボードを開きます。</translation>
    </message>
</context>
<context>
    <name>panel::PanelWindow</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Robot panel</source>
        <translation>ロボットパネル</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>ページ「%1」はありません。</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>データを保存できません</translation>
    </message>
    <message>
        <source>Changes since the last saving are lost when the panel closes now.</source>
        <translation>今パネルを閉じると、前回の保存以降の変更が失われます。</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>閉じない</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>コントローラ</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>セル</translation>
    </message>
</context>
<context>
    <name>panel::ProblemPage</name>
    <message>
        <source>The panel did not start completely</source>
        <translation>パネルは完全には起動しませんでした</translation>
    </message>
</context>
<context>
    <name>panel::StatusStrip</name>
    <message>
        <source>Controller</source>
        <translation>コントローラ</translation>
    </message>
    <message>
        <source>Last notice</source>
        <translation>最新の通知</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Controller %1</source>
        <translation>コントローラ %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>コントローラなし</translation>
    </message>
    <message>
        <source>Check controller</source>
        <translation>コントローラを確認</translation>
    </message>
    <message>
        <source>Controller refuses</source>
        <translation>コントローラが拒否</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>このパネルはコントローラに接続されていません。</translation>
    </message>
    <message>
        <source>Editing goes on; the recipes stay in the panel.</source>
        <translation>編集は続けられます。レシピはパネルに残ります。</translation>
    </message>
</context>
</TS>
