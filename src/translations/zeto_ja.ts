<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Edit Value</source>
        <translation>値を編集</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>名前をコピー</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Filter options</source>
        <translation>フィルターオプション</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>Whole Words Only</source>
        <translation>単語全体のみ</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 は数値ではありません。</translation>
    </message>
</context>
<context>
    <name>GenErrorsDlg</name>
    <message>
        <source>Gen&lt;i&gt;Cam errors</source>
        <translation>Gen&lt;i&gt;Cam エラー</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>{%1}{id:%3}: %2 
</source>
        <translation>{%1}{id:%3}: %2 
</translation>
    </message>
</context>
<context>
    <name>GenParamDelegate</name>
    <message>
        <source>The camera did not take the value.</source>
        <translation>カメラが値を受け付けませんでした。</translation>
    </message>
    <message>
        <source>The feature cannot be changed at the moment.</source>
        <translation>この項目は現在変更できません。</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>Unknown Error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>偽</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;名前:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮動小数点数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>ブール値</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>列挙</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;型:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;セレクター:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;範囲&lt;/i&gt;: 最小: %1、最大: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;増分&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;有効な値&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;列挙の項目&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;説明:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;ストリーム可能:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Cachable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;キャッシュ可能:&lt;/i&gt; %1</translation>
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
        <source>Executing...</source>
        <translation>実行中...</translation>
    </message>
    <message>
        <source>The value does not fit the type of the feature</source>
        <translation>値が項目の型に合いません</translation>
    </message>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;値は利用できません&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;値を読み取れません&gt;</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>Camera Features</source>
        <translation>カメラの機能</translation>
    </message>
    <message>
        <source>Filter by feature name.
Using of wildcard is possible.</source>
        <translation>機能名で絞り込みます。
ワイルドカードを使用できます。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Filter options</source>
        <translation>フィルターオプション</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>すべて折りたたむ</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>表示レベル:</translation>
    </message>
    <message>
        <source>Level of feature visibility</source>
        <translation>機能の表示レベル</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>上級</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>達人</translation>
    </message>
    <message>
        <source>Show Error Dialog</source>
        <translation>エラーダイアログを表示</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Clear filter</source>
        <translation>フィルターを消去</translation>
    </message>
</context>
<context>
    <name>IPv4Editor</name>
    <message>
        <source>&quot;%1&quot; is not an IPv4 address.</source>
        <translation>&quot;%1&quot; は IPv4 アドレスではありません。</translation>
    </message>
</context>
<context>
    <name>InfoView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>すべてコピー(&amp;A)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>IntegerEditor</name>
    <message>
        <source>%1 is not a number from %2 to %3.</source>
        <translation>%1 は %2 から %3 までの数値ではありません。</translation>
    </message>
</context>
<context>
    <name>MacEditor</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address.</source>
        <translation>&quot;%1&quot; は MAC アドレスではありません。</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>ネットワークアダプターの IP 設定</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC アドレス</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>サブネットマスク</translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>カメラの IP 設定</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP アドレス(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>サブネットマスク(&amp;S)</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>デフォルトゲートウェイ(&amp;G)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP 設定は正常です</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>サブネットマスクが一致しません！</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>IP アドレスが正しくありません！</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>サブネットの IP が一致しません！</translation>
    </message>
</context>
<context>
    <name>StringEditor</name>
    <message>
        <source>&quot;%1&quot; does not fit into the feature.</source>
        <translation>&quot;%1&quot; はこの項目に入りません。</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>ファミリー</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>ファームウェアバージョン</translation>
    </message>
    <message>
        <source>Manufacturer info</source>
        <translation>製造元情報</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>ユーザー ID</translation>
    </message>
    <message>
        <source>Sensor type</source>
        <translation>センサーの種類</translation>
    </message>
    <message>
        <source>RGS ID</source>
        <translation>RGS ID</translation>
    </message>
    <message>
        <source>FPGA ID</source>
        <translation>FPGA ID</translation>
    </message>
    <message>
        <source>EPCS ID</source>
        <translation>EPCS ID</translation>
    </message>
    <message>
        <source>Firmware image</source>
        <translation>ファームウェアイメージ</translation>
    </message>
    <message>
        <source>Customer ID</source>
        <translation>顧客 ID</translation>
    </message>
    <message>
        <source>Family ID</source>
        <translation>ファミリー ID</translation>
    </message>
    <message>
        <source>XML version</source>
        <translation>XML バージョン</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>追従速度</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>手動 WB 係数</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>等倍</translation>
    </message>
    <message>
        <source>Red unity</source>
        <translation>赤を 1 に</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Green unity</source>
        <translation>緑を 1 に</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Blue unity</source>
        <translation>青を 1 に</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>赤係数:</translation>
    </message>
    <message>
        <source>4095</source>
        <translation>4095</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>緑係数:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>青係数:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>フレーム A/B</translation>
    </message>
    <message>
        <source>Output mode:</source>
        <translation>出力モード:</translation>
    </message>
    <message>
        <source>Dual Video:</source>
        <translation>デュアルビデオ:</translation>
    </message>
    <message>
        <source>Frame-A +</source>
        <translation>フレーム A +</translation>
    </message>
    <message>
        <source>Frame-B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Shutter mode:</source>
        <translation>シャッターモード:</translation>
    </message>
    <message>
        <source>Rolling</source>
        <translation>ローリング</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>グローバル</translation>
    </message>
    <message>
        <source>ADC Selector:</source>
        <translation>ADC 選択:</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 ビット</translation>
    </message>
    <message>
        <source>12 bits</source>
        <translation>12 ビット</translation>
    </message>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>デュアルビデオの
ライン時間 [pclk]:</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>露光制御</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>ライン</translation>
    </message>
    <message>
        <source>Clocks</source>
        <translation>クロック</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>[%1]:</source>
        <translation>[%1]:</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>固定フレーム周期</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Frame line time</source>
        <translation>フレームのライン時間</translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>ライン時間 [pclk]:</translation>
    </message>
    <message>
        <source>Frame size</source>
        <translation>フレームサイズ</translation>
    </message>
    <message>
        <source>Full Frame</source>
        <translation>フルフレーム</translation>
    </message>
    <message>
        <source>QFHD</source>
        <translation>QFHD</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>オフセット X:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>オフセット Y:</translation>
    </message>
    <message>
        <source>Current size:</source>
        <translation>現在のサイズ:</translation>
    </message>
    <message>
        <source>Subsampling</source>
        <translation>サブサンプリング</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>平均化</translation>
    </message>
    <message>
        <source>Subsampling:</source>
        <translation>サブサンプリング:</translation>
    </message>
    <message>
        <source>x M:</source>
        <translation>x M:</translation>
    </message>
    <message>
        <source>Averaging:</source>
        <translation>平均化:</translation>
    </message>
    <message>
        <source>Video amplifier</source>
        <translation>ビデオアンプ</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>アナログゲイン:</translation>
    </message>
    <message>
        <source>1x</source>
        <translation>1x</translation>
    </message>
    <message>
        <source>2x</source>
        <translation>2x</translation>
    </message>
    <message>
        <source>4x</source>
        <translation>4x</translation>
    </message>
    <message>
        <source>8x</source>
        <translation>8x</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>デジタルゲイン:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>黒レベル:</translation>
    </message>
    <message>
        <source>Wide dynamic range</source>
        <translation>ワイドダイナミックレンジ</translation>
    </message>
    <message>
        <source>P1:</source>
        <translation>P1:</translation>
    </message>
    <message>
        <source>E1</source>
        <translation>E1</translation>
    </message>
    <message>
        <source>P2:</source>
        <translation>P2:</translation>
    </message>
    <message>
        <source>E2</source>
        <translation>E2</translation>
    </message>
    <message>
        <source>P3:</source>
        <translation>P3:</translation>
    </message>
    <message>
        <source>E3</source>
        <translation>E3</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>フレーム A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Number of Frame-B</source>
        <translation>フレーム B の数</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>CamConfig</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>カメラ情報</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>フレーム A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>フレーム B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Size, Frame A</source>
        <translation>サイズ、フレーム A</translation>
    </message>
    <message>
        <source>Size, Frame B</source>
        <translation>サイズ、フレーム B</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Frame Rate, Frame A</source>
        <translation>フレームレート、フレーム A</translation>
    </message>
    <message>
        <source>Frame Rate, Frame B</source>
        <translation>フレームレート、フレーム B</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>Exposure Time, Frame A</source>
        <translation>露光時間、フレーム A</translation>
    </message>
    <message>
        <source>Exposure Time, Frame B</source>
        <translation>露光時間、フレーム B</translation>
    </message>
    <message>
        <source>us</source>
        <translation>us</translation>
    </message>
    <message>
        <source>Frame Time</source>
        <translation>フレーム時間</translation>
    </message>
    <message>
        <source>Frame Time, Frame A</source>
        <translation>フレーム時間、フレーム A</translation>
    </message>
    <message>
        <source>Frame Time, Frame B</source>
        <translation>フレーム時間、フレーム B</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Ctrl+1</source>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>フレーム A/B</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>パルス</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>ストロボ</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>データ出力</translation>
    </message>
    <message>
        <source>Ctrl+6</source>
        <translation>Ctrl+6</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Select a device</source>
        <translation>デバイスを選択</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>%1 answers slowly</source>
        <translation>%1 の応答が遅れています</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 が応答しません</translation>
    </message>
    <message>
        <source>Connection to %1 lost</source>
        <translation>%1 との接続が失われました</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 を開けません。</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigMapper</name>
    <message>
        <source>Error while working with &apos;%1&apos; parameter!<byte value="xd"/>
Description: %2</source>
        <translation>パラメーター &apos;%1&apos; の処理中にエラーが発生しました！<byte value="xd"/>
説明: %2</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>データ出力</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera Link 出力</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>タップ数:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>深度:</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC:</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC:</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>ピクセルの種類</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>ピクセル形式:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>画像反転</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>水平反転</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>垂直反転</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT 設定</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>テストモード</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>テストパターン:</translation>
    </message>
    <message>
        <source>Dyn.Thres.:</source>
        <translation>動的しきい値:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>パルス制御</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>内部パルス発生器</translation>
    </message>
    <message>
        <source>Timing of the pulses</source>
        <translation>パルスのタイミング</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>分解能:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>周波数 [Hz]:</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>パルス数</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>連続</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>処理</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S, Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S, Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source> [%1s]:</source>
        <translation> [%1s]:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>ストロボ制御</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>ストロボ 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>モード:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>基準:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>ストロボ 2</translation>
    </message>
    <message>
        <source>Timing of the strobes</source>
        <translation>ストロボのタイミング</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>Out1:</translation>
    </message>
    <message>
        <source>Out1 polarity</source>
        <translation>Out1 の極性</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>Out2:</translation>
    </message>
    <message>
        <source>Out2 polarity</source>
        <translation>Out2 の極性</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>遅延 [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>幅 [%1s]:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>トリガー制御</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>トリガーソース:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>エッジ:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>デバウンス:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>ソフトウェア
トリガー</translation>
    </message>
</context>
<context>
    <name>ZetoCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>カメラを選択</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>インターフェイス情報(&amp;I)</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>インターフェイス情報</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>デバイス情報(&amp;D)</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>デバイス情報</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>ポーリング</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Access status</source>
        <translation>アクセス状態</translation>
    </message>
    <message>
        <source>USB Version</source>
        <translation>USB バージョン</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC アドレス</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>ネットマスク</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>ゲートウェイ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>読み書き可</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>アクセス不可</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>IP サブネット不一致</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>IP 設定の警告</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>指定された IP 設定は正しくありません。カメラを検出できなくなる可能性があります。
IP 設定を行わない場合は OK を、続行する場合は無視を押してください</translation>
    </message>
</context>
<context>
    <name>ZetoGui::AboutDialog</name>
    <message>
        <source>%1 %2 Zeto. All rights reserved.</source>
        <translation>%1 %2 Zeto. All rights reserved.</translation>
    </message>
</context>
<context>
    <name>ZetoGui::ZetoCameraSelectorDialog</name>
    <message>
        <source>&amp;Rescan</source>
        <translation>再検索(&amp;R)</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>IP アドレスの設定</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>IP アドレスを設定できません</translation>
    </message>
</context>
</TS>
