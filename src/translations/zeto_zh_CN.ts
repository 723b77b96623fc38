<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Edit Value</source>
        <translation>编辑值</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>复制值</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>复制名称</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Filter options</source>
        <translation>筛选选项</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Whole Words Only</source>
        <translation>全字匹配</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>%1 is not a number.</source>
        <translation>%1 不是数字。</translation>
    </message>
</context>
<context>
    <name>GenErrorsDlg</name>
    <message>
        <source>Gen&lt;i&gt;Cam errors</source>
        <translation>Gen&lt;i&gt;Cam 错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>无错误</translation>
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
        <translation>相机未接受该值。</translation>
    </message>
    <message>
        <source>The feature cannot be changed at the moment.</source>
        <translation>该功能目前无法更改。</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>Unknown Error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>假</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;名称:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮点数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;类型:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;选择器:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;限值&lt;/i&gt;: 最小: %1, 最大: %2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;增量&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;有效值&lt;/i&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;枚举项&lt;/i&gt;:</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;说明:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;可流式保存:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Cachable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;可缓存:&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Executing...</source>
        <translation>正在执行...</translation>
    </message>
    <message>
        <source>The value does not fit the type of the feature</source>
        <translation>该值与功能的类型不符</translation>
    </message>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;值不可用&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;值不可读&gt;</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>Camera Features</source>
        <translation>相机功能</translation>
    </message>
    <message>
        <source>Filter by feature name.
Using of wildcard is possible.</source>
        <translation>按功能名称筛选。
可以使用通配符。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Filter options</source>
        <translation>筛选选项</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>可见性:</translation>
    </message>
    <message>
        <source>Level of feature visibility</source>
        <translation>功能的可见性级别</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>Show Error Dialog</source>
        <translation>显示错误对话框</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Clear filter</source>
        <translation>清除筛选</translation>
    </message>
</context>
<context>
    <name>IPv4Editor</name>
    <message>
        <source>&quot;%1&quot; is not an IPv4 address.</source>
        <translation>&quot;%1&quot; 不是 IPv4 地址。</translation>
    </message>
</context>
<context>
    <name>InfoView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>全部复制(&amp;A)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>IntegerEditor</name>
    <message>
        <source>%1 is not a number from %2 to %3.</source>
        <translation>%1 不是 %2 到 %3 之间的数字。</translation>
    </message>
</context>
<context>
    <name>MacEditor</name>
    <message>
        <source>&quot;%1&quot; is not a MAC address.</source>
        <translation>&quot;%1&quot; 不是 MAC 地址。</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>设置 IP 地址</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>网络适配器 IP 配置</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>相机 IP 配置</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP 地址(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>子网掩码(&amp;S)</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>默认网关(&amp;G)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP 配置正常</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>子网掩码不匹配！</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>IP 地址不正确！</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>子网 IP 不匹配！</translation>
    </message>
</context>
<context>
    <name>StringEditor</name>
    <message>
        <source>&quot;%1&quot; does not fit into the feature.</source>
        <translation>&quot;%1&quot; 超出该功能的长度。</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>供应商</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>固件版本</translation>
    </message>
    <message>
        <source>Manufacturer info</source>
        <translation>制造商信息</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>用户 ID</translation>
    </message>
    <message>
        <source>Sensor type</source>
        <translation>传感器类型</translation>
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
        <translation>固件映像</translation>
    </message>
    <message>
        <source>Customer ID</source>
        <translation>客户 ID</translation>
    </message>
    <message>
        <source>Family ID</source>
        <translation>系列 ID</translation>
    </message>
    <message>
        <source>XML version</source>
        <translation>XML 版本</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>跟踪速度</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>手动白平衡系数</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>归一</translation>
    </message>
    <message>
        <source>Red unity</source>
        <translation>红色归一</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Green unity</source>
        <translation>绿色归一</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Blue unity</source>
        <translation>蓝色归一</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>红色系数:</translation>
    </message>
    <message>
        <source>4095</source>
        <translation>4095</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>绿色系数:</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>蓝色系数:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>帧 A/B</translation>
    </message>
    <message>
        <source>Output mode:</source>
        <translation>输出模式:</translation>
    </message>
    <message>
        <source>Dual Video:</source>
        <translation>双视频:</translation>
    </message>
    <message>
        <source>Frame-A +</source>
        <translation>帧 A +</translation>
    </message>
    <message>
        <source>Frame-B</source>
        <translation>帧 B</translation>
    </message>
    <message>
        <source>Shutter mode:</source>
        <translation>快门模式:</translation>
    </message>
    <message>
        <source>Rolling</source>
        <translation>卷帘</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>ADC Selector:</source>
        <translation>ADC 选择:</translation>
    </message>
    <message>
        <source>10 bits</source>
        <translation>10 位</translation>
    </message>
    <message>
        <source>12 bits</source>
        <translation>12 位</translation>
    </message>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>双视频
行时间 [pclk]:</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>曝光控制</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Clocks</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>[%1]:</source>
        <translation>[%1]:</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>固定帧周期</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Frame line time</source>
        <translation>帧行时间</translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>行时间 [pclk]:</translation>
    </message>
    <message>
        <source>Frame size</source>
        <translation>帧尺寸</translation>
    </message>
    <message>
        <source>Full Frame</source>
        <translation>全画幅</translation>
    </message>
    <message>
        <source>QFHD</source>
        <translation>QFHD</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度:</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>X 偏移:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>Y 偏移:</translation>
    </message>
    <message>
        <source>Current size:</source>
        <translation>当前尺寸:</translation>
    </message>
    <message>
        <source>Subsampling</source>
        <translation>子采样</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Subsampling:</source>
        <translation>子采样:</translation>
    </message>
    <message>
        <source>x M:</source>
        <translation>x M:</translation>
    </message>
    <message>
        <source>Averaging:</source>
        <translation>平均:</translation>
    </message>
    <message>
        <source>Video amplifier</source>
        <translation>视频放大器</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>模拟增益:</translation>
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
        <translation>数字增益:</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>黑电平:</translation>
    </message>
    <message>
        <source>Wide dynamic range</source>
        <translation>宽动态范围</translation>
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
        <translation>帧 A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>帧 B</translation>
    </message>
    <message>
        <source>Number of Frame-B</source>
        <translation>帧 B 的数量</translation>
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
        <translation>相机信息</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>帧 A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>帧 B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Size, Frame A</source>
        <translation>尺寸，帧 A</translation>
    </message>
    <message>
        <source>Size, Frame B</source>
        <translation>尺寸，帧 B</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Frame Rate, Frame A</source>
        <translation>帧率，帧 A</translation>
    </message>
    <message>
        <source>Frame Rate, Frame B</source>
        <translation>帧率，帧 B</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Exposure Time, Frame A</source>
        <translation>曝光时间，帧 A</translation>
    </message>
    <message>
        <source>Exposure Time, Frame B</source>
        <translation>曝光时间，帧 B</translation>
    </message>
    <message>
        <source>us</source>
        <translation>us</translation>
    </message>
    <message>
        <source>Frame Time</source>
        <translation>帧时间</translation>
    </message>
    <message>
        <source>Frame Time, Frame A</source>
        <translation>帧时间，帧 A</translation>
    </message>
    <message>
        <source>Frame Time, Frame B</source>
        <translation>帧时间，帧 B</translation>
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
        <translation>帧 A/B</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>脉冲</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>频闪</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>数据输出</translation>
    </message>
    <message>
        <source>Ctrl+6</source>
        <translation>Ctrl+6</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Select a device</source>
        <translation>选择设备</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>%1 answers slowly</source>
        <translation>%1 响应缓慢</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 无响应</translation>
    </message>
    <message>
        <source>Connection to %1 lost</source>
        <translation>与 %1 的连接已丢失</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>无法打开 %1。</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigMapper</name>
    <message>
        <source>Error while working with &apos;%1&apos; parameter!<byte value="xd"/>
Description: %2</source>
        <translation>处理参数“%1”时出错！<byte value="xd"/>
说明: %2</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>数据输出</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera Link 输出</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>抽头:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>位深:</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>校正</translation>
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
        <translation>像素类型</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>像素格式:</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>图像翻转</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>水平镜像</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>垂直镜像</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>LUT 设置</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>测试模式</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>测试图案:</translation>
    </message>
    <message>
        <source>Dyn.Thres.:</source>
        <translation>动态阈值:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>脉冲控制</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>内部脉冲发生器</translation>
    </message>
    <message>
        <source>Timing of the pulses</source>
        <translation>脉冲时序</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>粒度:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>频率 [Hz]:</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>脉冲数量</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>连续</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>处理</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
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
        <translation>运行中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
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
        <translation>频闪控制</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>频闪 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>模式:</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>参考:</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>频闪 2</translation>
    </message>
    <message>
        <source>Timing of the strobes</source>
        <translation>频闪时序</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>Out1:</translation>
    </message>
    <message>
        <source>Out1 polarity</source>
        <translation>Out1 极性</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>Out2:</translation>
    </message>
    <message>
        <source>Out2 polarity</source>
        <translation>Out2 极性</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>延迟 [%1s]:</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>宽度 [%1s]:</translation>
    </message>
</context>
<context>
    <name>ZetoCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>触发控制</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>触发源:</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>边沿:</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>去抖:</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>软件
触发</translation>
    </message>
</context>
<context>
    <name>ZetoCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>选择相机</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>接口信息(&amp;I)</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>接口信息</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>设备信息(&amp;D)</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>设备信息</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>设置 IP 地址</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>轮询</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>显示名称</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>供应商</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Access status</source>
        <translation>访问状态</translation>
    </message>
    <message>
        <source>USB Version</source>
        <translation>USB 版本</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>网络掩码</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>可读写</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>无法访问</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>IP 子网不匹配</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
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
        <translation>自定义</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>IP 配置警告</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>指定的 IP 配置不正确，相机可能无法被发现
按“确定”跳过 IP 配置，或按“忽略”确认</translation>
    </message>
</context>
<context>
    <name>ZetoGui::AboutDialog</name>
    <message>
        <source>%1 %2 Zeto. All rights reserved.</source>
        <translation>%1 %2 Zeto. 保留所有权利。</translation>
    </message>
</context>
<context>
    <name>ZetoGui::ZetoCameraSelectorDialog</name>
    <message>
        <source>&amp;Rescan</source>
        <translation>重新扫描(&amp;R)</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>设置 IP 地址</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>无法设置 IP 地址</translation>
    </message>
</context>
</TS>
