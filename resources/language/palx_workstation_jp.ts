<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
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
    <message>
        <source>dx
mm</source>
        <translation>dx
mm</translation>
    </message>
    <message>
        <source>dy
mm</source>
        <translation>dy
mm</translation>
    </message>
    <message>
        <source>dz
mm</source>
        <translation>dz
mm</translation>
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
        <source>Layer</source>
        <translation>段</translation>
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
        <source>Place the layer earlier</source>
        <translation>段を前に移す</translation>
    </message>
    <message>
        <source>Place the layer later</source>
        <translation>段を後に移す</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>Repeat the whole sequence on top</source>
        <translation>並び全体を上に繰り返す</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>%1 段目</translation>
    </message>
    <message>
        <source>No layer chosen</source>
        <translation>段が選択されていません</translation>
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
    <name>Palx</name>
    <message>
        <source>W-Palletizing</source>
        <translation>W-パレタイズ</translation>
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
        <source>What is wrong with the pattern</source>
        <translation>パターンの問題点</translation>
    </message>
    <message>
        <source>Products of the pattern</source>
        <translation>パターンの製品</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Place the product earlier</source>
        <translation>製品を先に置く</translation>
    </message>
    <message>
        <source>Place the product later</source>
        <translation>製品を後に置く</translation>
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
        <source>New pattern</source>
        <translation>新しいパターン</translation>
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
        <source>Pattern %1 (in %2 layers)</source>
        <translation>パターン %1（%2 段で使用）</translation>
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
        <source>It is used in %1 layers, which will get no points.</source>
        <translation>%1 段で使われており、それらの段には点が作られなくなります。</translation>
    </message>
    <message>
        <source>Delete the pattern %1? %2</source>
        <translation>パターン %1 を削除しますか？ %2</translation>
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
    <name>RecipeFrame</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
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
        <source>The margins left no room for a product and were set to 0.</source>
        <translation>余白のため製品を置く場所がなく、余白を 0 にしました。</translation>
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
</TS>
