<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export the log</source>
        <translation>导出日志</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Kind of the file</source>
        <translation>文件种类</translation>
    </message>
    <message>
        <source>The file that is written</source>
        <translation>写入的文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>记录数</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export the shown records</source>
        <translation>导出显示的记录</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>清空日志</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search the log</source>
        <translation>搜索日志</translation>
    </message>
    <message>
        <source>The chosen record</source>
        <translation>所选记录</translation>
    </message>
</context>
<context>
    <name>PanelCellPage</name>
    <message>
        <source>State of the programs</source>
        <translation>程序状态</translation>
    </message>
    <message>
        <source>Why, and which project</source>
        <translation>原因及工程</translation>
    </message>
    <message>
        <source>Time in the cell</source>
        <translation>工作站时间</translation>
    </message>
    <message>
        <source>The cell</source>
        <translation>工作站</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>左转</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>右转</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
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
        <translation>实时</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>单步</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>操作台</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Start button of the cell</source>
        <translation>工作站启动按钮</translation>
    </message>
    <message>
        <source>Stop button of the cell</source>
        <translation>工作站停止按钮</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Reset button of the cell</source>
        <translation>工作站复位按钮</translation>
    </message>
    <message>
        <source>Clear gripper</source>
        <translation>清空抓手</translation>
    </message>
    <message>
        <source>Left arrow button of the cell</source>
        <translation>工作站左箭头按钮</translation>
    </message>
    <message>
        <source>Right arrow button of the cell</source>
        <translation>工作站右箭头按钮</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>左托盘</translation>
    </message>
    <message>
        <source>Take away</source>
        <translation>取走</translation>
    </message>
    <message>
        <source>Left pallet away</source>
        <translation>取走左托盘</translation>
    </message>
    <message>
        <source>Bring empty</source>
        <translation>放空托盘</translation>
    </message>
    <message>
        <source>Left pallet: bring an empty one</source>
        <translation>左托盘：放上空托盘</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>右托盘</translation>
    </message>
    <message>
        <source>Right pallet away</source>
        <translation>取走右托盘</translation>
    </message>
    <message>
        <source>Right pallet: bring an empty one</source>
        <translation>右托盘：放上空托盘</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Input on</source>
        <translation>输入开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Input off</source>
        <translation>输入关</translation>
    </message>
    <message>
        <source>Press</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Press for half a second</source>
        <translation>按下半秒</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search variables</source>
        <translation>搜索变量</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Set the variable</source>
        <translation>设置变量</translation>
    </message>
    <message>
        <source>Number of violations</source>
        <translation>违规数量</translation>
    </message>
    <message>
        <source>Violations</source>
        <translation>违规</translation>
    </message>
    <message>
        <source>The chosen violation</source>
        <translation>所选违规</translation>
    </message>
    <message>
        <source>What was asked and answered</source>
        <translation>请求与应答</translation>
    </message>
    <message>
        <source>Speed that the controller tells</source>
        <translation>控制器报告的速度</translation>
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
        <translation>输送线、抓手和升降柱</translation>
    </message>
</context>
<context>
    <name>PanelControllerPage</name>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>State of the link</source>
        <translation>通信状态</translation>
    </message>
    <message>
        <source>What the state of the link means</source>
        <translation>通信状态的含义</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Controller name</source>
        <translation>控制器名称</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Controller software</source>
        <translation>控制器软件</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Motion of the robot</source>
        <translation>机器人运动</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>当前工具</translation>
    </message>
    <message>
        <source>Current project</source>
        <translation>当前工程</translation>
    </message>
    <message>
        <source>Start project</source>
        <translation>启动工程</translation>
    </message>
    <message>
        <source>Project that starts by itself</source>
        <translation>自动启动的工程</translation>
    </message>
</context>
<context>
    <name>TextKeyboard</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Delete the letter before</source>
        <translation>删除前一个字符</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear the text</source>
        <translation>清除文本</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>大写字母</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>向左</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>向右</translation>
    </message>
</context>
<context>
    <name>bwaf::BModule</name>
    <message>
        <source>The data of the module %1 is incomplete: %2</source>
        <translation>模块 %1 的数据不完整：%2</translation>
    </message>
</context>
<context>
    <name>controller::Texts</name>
    <message>
        <source>out of reach: the wrist would stand %1 mm from the shoulder, the arm reaches %2 mm</source>
        <translation>超出可达范围：手腕距肩部将为 %1 mm，手臂可达 %2 mm</translation>
    </message>
    <message>
        <source>joint %1 would stand at %2°, its limits are %3° and %4°</source>
        <translation>关节 %1 将位于 %2°，其限位为 %3° 和 %4°</translation>
    </message>
    <message>
        <source>The panel speaks version %1 of the link, the controller version %2.</source>
        <translation>面板使用的通信版本为 %1，控制器为 %2。</translation>
    </message>
    <message>
        <source>a Hello without a session</source>
        <translation>没有会话的 Hello</translation>
    </message>
    <message>
        <source>serves another panel</source>
        <translation>正在为另一面板服务</translation>
    </message>
    <message>
        <source>nothing is done before a Hello was accepted</source>
        <translation>在 Hello 被接受之前不执行任何操作</translation>
    </message>
    <message>
        <source>a panel sends no message of the kind %1</source>
        <translation>面板不发送类型为 %1 的消息</translation>
    </message>
    <message>
        <source>the controller ended the connection</source>
        <translation>控制器结束了连接</translation>
    </message>
    <message>
        <source>signals cannot be caught</source>
        <translation>无法捕获信号</translation>
    </message>
    <message>
        <source>after %1 % of the straight way joint %2 would turn by %3° at one place</source>
        <translation>直线行程的 %1 % 之后，关节 %2 将在一处转动 %3°</translation>
    </message>
    <message>
        <source>after %1 % of the straight way: %2</source>
        <translation>直线行程的 %1 % 之后：%2</translation>
    </message>
    <message>
        <source>no recipe: %1</source>
        <translation>不是配方：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no recipe: %2</source>
        <translation>“%1”不是配方：%2</translation>
    </message>
    <message>
        <source>this is no list of recipes</source>
        <translation>这不是配方列表</translation>
    </message>
    <message>
        <source>the name is there twice</source>
        <translation>名称重复出现</translation>
    </message>
    <message>
        <source>entry %1: %2</source>
        <translation>条目 %1：%2</translation>
    </message>
    <message>
        <source>&quot;index&quot; is missing or no whole number</source>
        <translation>“index”缺失或不是整数</translation>
    </message>
    <message>
        <source>there is no recipe %1, there are %2</source>
        <translation>没有配方 %1，共有 %2 个</translation>
    </message>
    <message>
        <source>&quot;name&quot; is missing or no text</source>
        <translation>“name”缺失或不是文本</translation>
    </message>
    <message>
        <source>recipe %1 has the name &quot;%2&quot; already</source>
        <translation>配方 %1 已使用名称“%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of %2 numbers</source>
        <translation>“%1”不是包含 %2 个数字的列表</translation>
    </message>
    <message>
        <source>&quot;%1.#%2&quot; is no number</source>
        <translation>“%1.#%2”不是数字</translation>
    </message>
    <message>
        <source>in &quot;%1&quot;: %2</source>
        <translation>在“%1”中：%2</translation>
    </message>
    <message>
        <source>this is no product with its points</source>
        <translation>这不是带点的产品</translation>
    </message>
    <message>
        <source>&quot;points.put&quot; is no list of layers</source>
        <translation>“points.put”不是层列表</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1&quot; is no list of products</source>
        <translation>“points.put.#%1”不是产品列表</translation>
    </message>
    <message>
        <source>&quot;points.put.#%1.#%2&quot;: %3</source>
        <translation>“points.put.#%1.#%2”：%3</translation>
    </message>
    <message>
        <source>this is no record with names</source>
        <translation>这不是带名称的记录</translation>
    </message>
    <message>
        <source>&quot;points&quot; is missing</source>
        <translation>缺少“points”</translation>
    </message>
    <message>
        <source>&quot;layers&quot; is no list</source>
        <translation>“layers”不是列表</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is lost</source>
        <translation>“%1”丢失</translation>
    </message>
    <message>
        <source>&quot;type&quot; is &quot;%1&quot;, neither &quot;l&quot; nor &quot;j&quot;</source>
        <translation>“type”为“%1”，既不是“l”也不是“j”</translation>
    </message>
    <message>
        <source>&quot;motion.speed&quot; is no speed: %1</source>
        <translation>“motion.speed”不是速度：%1</translation>
    </message>
    <message>
        <source>&quot;point&quot; is missing</source>
        <translation>缺少“point”</translation>
    </message>
    <message>
        <source>in &quot;point&quot;: %1</source>
        <translation>在“point”中：%1</translation>
    </message>
    <message>
        <source>the robot is moving already</source>
        <translation>机器人已在运动</translation>
    </message>
    <message>
        <source>stopped: no sign from the held button for %1 ms</source>
        <translation>已停止：%1 ms 内未收到按住按钮的信号</translation>
    </message>
    <message>
        <source>this is no file of a controller</source>
        <translation>这不是控制器的文件</translation>
    </message>
    <message>
        <source>length and checksum do not fit the content</source>
        <translation>长度和校验和与内容不符</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be made</source>
        <translation>无法创建文件夹“%1”</translation>
    </message>
    <message>
        <source>another controller uses the folder &quot;%1&quot;</source>
        <translation>另一个控制器正在使用文件夹“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and was set aside as &quot;%3&quot;</source>
        <translation>“%1”已损坏（%2），已另存为“%3”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged (%2) and cannot be moved</source>
        <translation>“%1”已损坏（%2），且无法移动</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1：无法创建文件夹</translation>
    </message>
    <message>
        <source>Simulated controller</source>
        <translation>模拟控制器</translation>
    </message>
    <message>
        <source>nothing will be kept: %1</source>
        <translation>不会保留任何内容：%1</translation>
    </message>
    <message>
        <source>The controller cannot keep its state: %1</source>
        <translation>控制器无法保存其状态：%1</translation>
    </message>
    <message>
        <source>the panel does not write &quot;%1&quot;</source>
        <translation>面板不写入“%1”</translation>
    </message>
    <message>
        <source>what was written at &quot;%1&quot; is nested too deep</source>
        <translation>写入“%1”的内容嵌套过深</translation>
    </message>
    <message>
        <source>there is no place &quot;%1&quot;</source>
        <translation>没有位置“%1”</translation>
    </message>
    <message>
        <source>there is no event &quot;%1&quot;</source>
        <translation>没有事件“%1”</translation>
    </message>
    <message>
        <source>stopped: the link to the panel is lost</source>
        <translation>已停止：与面板的通信中断</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing or no text</source>
        <translation>“%1”缺失或不是文本</translation>
    </message>
    <message>
        <source>the controller knows no request &quot;%1&quot;</source>
        <translation>控制器不识别请求“%1”</translation>
    </message>
    <message>
        <source>the robot is moving</source>
        <translation>机器人正在运动</translation>
    </message>
    <message>
        <source>the controller does not answer</source>
        <translation>控制器无应答</translation>
    </message>
    <message>
        <source>cannot listen on port %1: %2</source>
        <translation>无法监听端口 %1：%2</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is missing</source>
        <translation>缺少“load.mass”</translation>
    </message>
    <message>
        <source>&quot;load.mass&quot; is no mass: %1</source>
        <translation>“load.mass”不是质量：%1</translation>
    </message>
    <message>
        <source>&quot;name&quot; is no text</source>
        <translation>“name”不是文本</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; stands for no tool</source>
        <translation>名称“%1”表示无工具</translation>
    </message>
    <message>
        <source>no toolset: %1</source>
        <translation>不是工具组：%1</translation>
    </message>
    <message>
        <source>there are %1 tools already, no more are kept</source>
        <translation>已有 %1 个工具，不能再增加</translation>
    </message>
    <message>
        <source>there is no toolset &quot;%1&quot;</source>
        <translation>没有工具组“%1”</translation>
    </message>
    <message>
        <source>there is no variable &quot;%1&quot;</source>
        <translation>没有变量“%1”</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; is not persistent</source>
        <translation>变量“%1”不是持久变量</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; of type %2 does not take &quot;%3&quot;</source>
        <translation>类型为 %2 的变量“%1”不接受“%3”</translation>
    </message>
    <message>
        <source>the variable &quot;%1&quot; has no place for a value</source>
        <translation>变量“%1”没有存放值的位置</translation>
    </message>
    <message>
        <source>this is no map of variables</source>
        <translation>这不是变量表</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <source>%1 ended</source>
        <translation>%1 已结束</translation>
    </message>
    <message>
        <source>stopped: another move was asked for</source>
        <translation>已停止：请求了其他移动</translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入文件夹“%1”：%2</translation>
    </message>
    <message>
        <source>The project %1 cannot be built: it has no folder in the workspace &quot;%2&quot;</source>
        <translation>无法构建工程 %1：工作区“%2”中没有其文件夹</translation>
    </message>
    <message>
        <source>there is no recipe &quot;%1&quot;</source>
        <translation>没有配方“%1”</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; cannot be used: %2</source>
        <translation>无法使用配方“%1”：%2</translation>
    </message>
    <message>
        <source>recipe %1</source>
        <translation>配方 %1</translation>
    </message>
    <message>
        <source>left recipe %1</source>
        <translation>左侧配方 %1</translation>
    </message>
    <message>
        <source>right recipe %1</source>
        <translation>右侧配方 %1</translation>
    </message>
    <message>
        <source>there is no %1, there are %2</source>
        <translation>没有 %1，共有 %2 个</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no layer %2, it has %3</source>
        <translation>配方“%1”没有第 %2 层，共 %3 层</translation>
    </message>
    <message>
        <source>layer %1 of the recipe &quot;%2&quot; has no piece %3, it has %4</source>
        <translation>配方“%2”的第 %1 层没有第 %3 件，共 %4 件</translation>
    </message>
    <message>
        <source>no pallet point is set yet</source>
        <translation>尚未设置托盘点</translation>
    </message>
    <message>
        <source>it has no points</source>
        <translation>没有点</translation>
    </message>
    <message>
        <source>the recipe &quot;%1&quot; has no point &quot;%2&quot; for layer %3, piece %4</source>
        <translation>配方“%1”没有第 %3 层第 %4 件的点“%2”</translation>
    </message>
    <message>
        <source>in &quot;%1&quot; of the recipe &quot;%2&quot;: %3</source>
        <translation>配方“%2”的“%1”：%3</translation>
    </message>
    <message>
        <source>its work object needs three calibration points</source>
        <translation>其工件需要三个标定点</translation>
    </message>
    <message>
        <source>start button</source>
        <translation>启动按钮</translation>
    </message>
    <message>
        <source>stop button</source>
        <translation>停止按钮</translation>
    </message>
    <message>
        <source>reset button</source>
        <translation>复位按钮</translation>
    </message>
    <message>
        <source>left arrow button</source>
        <translation>左箭头按钮</translation>
    </message>
    <message>
        <source>right arrow button</source>
        <translation>右箭头按钮</translation>
    </message>
    <message>
        <source>left pallet in place</source>
        <translation>左托盘到位</translation>
    </message>
    <message>
        <source>right pallet in place</source>
        <translation>右托盘到位</translation>
    </message>
    <message>
        <source>scanner 1, input 1</source>
        <translation>扫描仪 1，输入 1</translation>
    </message>
    <message>
        <source>scanner 1, input 2</source>
        <translation>扫描仪 1，输入 2</translation>
    </message>
    <message>
        <source>scanner 1, input 3</source>
        <translation>扫描仪 1，输入 3</translation>
    </message>
    <message>
        <source>scanner 2, input 1</source>
        <translation>扫描仪 2，输入 1</translation>
    </message>
    <message>
        <source>scanner 2, input 2</source>
        <translation>扫描仪 2，输入 2</translation>
    </message>
    <message>
        <source>scanner 2, input 3</source>
        <translation>扫描仪 2，输入 3</translation>
    </message>
    <message>
        <source>air pressure</source>
        <translation>气压</translation>
    </message>
    <message>
        <source>product in place</source>
        <translation>产品到位</translation>
    </message>
    <message>
        <source>start lamp</source>
        <translation>启动灯</translation>
    </message>
    <message>
        <source>stop lamp</source>
        <translation>停止灯</translation>
    </message>
    <message>
        <source>reset lamp</source>
        <translation>复位灯</translation>
    </message>
    <message>
        <source>left arrow lamp</source>
        <translation>左箭头灯</translation>
    </message>
    <message>
        <source>right arrow lamp</source>
        <translation>右箭头灯</translation>
    </message>
    <message>
        <source>suction</source>
        <translation>吸附</translation>
    </message>
    <message>
        <source>scanner 1, zone 1</source>
        <translation>扫描仪 1，区域 1</translation>
    </message>
    <message>
        <source>scanner 1, zone 2</source>
        <translation>扫描仪 1，区域 2</translation>
    </message>
    <message>
        <source>scanner 2, zone 1</source>
        <translation>扫描仪 2，区域 1</translation>
    </message>
    <message>
        <source>scanner 2, zone 2</source>
        <translation>扫描仪 2，区域 2</translation>
    </message>
    <message>
        <source>left beacon red</source>
        <translation>左灯塔红</translation>
    </message>
    <message>
        <source>left beacon yellow</source>
        <translation>左灯塔黄</translation>
    </message>
    <message>
        <source>left beacon green</source>
        <translation>左灯塔绿</translation>
    </message>
    <message>
        <source>left buzzer</source>
        <translation>左蜂鸣器</translation>
    </message>
    <message>
        <source>right beacon red</source>
        <translation>右灯塔红</translation>
    </message>
    <message>
        <source>right beacon yellow</source>
        <translation>右灯塔黄</translation>
    </message>
    <message>
        <source>right beacon green</source>
        <translation>右灯塔绿</translation>
    </message>
    <message>
        <source>right buzzer</source>
        <translation>右蜂鸣器</translation>
    </message>
    <message>
        <source>conveyor forward</source>
        <translation>输送线正转</translation>
    </message>
    <message>
        <source>conveyor reverse</source>
        <translation>输送线反转</translation>
    </message>
    <message>
        <source>&quot;on&quot; is missing or neither true nor false</source>
        <translation>“on”缺失或既非 true 也非 false</translation>
    </message>
    <message>
        <source>and %1 more problems in the programs</source>
        <translation>程序中另有 %1 个问题</translation>
    </message>
    <message>
        <source>there is no current project</source>
        <translation>没有当前工程</translation>
    </message>
    <message>
        <source>the project %1 has no folder in the workspace</source>
        <translation>工程 %1 在工作区中没有文件夹</translation>
    </message>
    <message>
        <source>the programs have problems: %1</source>
        <translation>程序存在问题：%1</translation>
    </message>
    <message>
        <source>paused at the panel</source>
        <translation>已在面板上暂停</translation>
    </message>
    <message>
        <source>&quot;factor&quot; is no number from %1 to %2</source>
        <translation>“factor”不是 %1 至 %2 的数</translation>
    </message>
    <message>
        <source>there is no input &quot;%1&quot;</source>
        <translation>没有输入“%1”</translation>
    </message>
    <message>
        <source>there is no fault &quot;%1&quot;, there are %2</source>
        <translation>没有故障“%1”，可用：%2</translation>
    </message>
    <message>
        <source>&quot;side&quot; is neither 0 (left) nor 1 (right)</source>
        <translation>“side”既不是 0（左）也不是 1（右）</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, neither &quot;take&quot; nor &quot;bring&quot;</source>
        <translation>“action”为“%1”，既不是“take”也不是“bring”</translation>
    </message>
    <message>
        <source>Program: %1</source>
        <translation>程序：%1</translation>
    </message>
    <message>
        <source>%1 %2:%3, layer %4, piece %5: %6</source>
        <translation>%1 %2:%3，第 %4 层，第 %5 件：%6</translation>
    </message>
    <message>
        <source>this is no name of a file</source>
        <translation>这不是文件名</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>the file is larger than %1 bytes</source>
        <translation>文件大于 %1 字节</translation>
    </message>
    <message>
        <source>there is no kind of task &quot;%1&quot;</source>
        <translation>没有任务类型“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a task</source>
        <translation>“%1”不是任务名</translation>
    </message>
    <message>
        <source>the emergency stop is pressed</source>
        <translation>急停已按下</translation>
    </message>
    <message>
        <source>the robot was stopped by a collision; reset first</source>
        <translation>机器人因碰撞停止；请先复位</translation>
    </message>
    <message>
        <source>somebody stands in the field of scanner %1</source>
        <translation>扫描仪 %1 区域内有人</translation>
    </message>
    <message>
        <source>the project has no motion task</source>
        <translation>工程没有运动任务</translation>
    </message>
    <message>
        <source>no program runs</source>
        <translation>没有程序在运行</translation>
    </message>
    <message>
        <source>the program runs; pause it first</source>
        <translation>程序正在运行；请先暂停</translation>
    </message>
    <message>
        <source>the power was cut</source>
        <translation>电源中断</translation>
    </message>
    <message>
        <source>the stop button was pressed</source>
        <translation>停止按钮已按下</translation>
    </message>
    <message>
        <source>paused by the program, %1</source>
        <translation>程序暂停，%1</translation>
    </message>
    <message>
        <source>the program is at its end</source>
        <translation>程序已结束</translation>
    </message>
    <message>
        <source>one step was made, to %1</source>
        <translation>已执行一步，到 %1</translation>
    </message>
    <message>
        <source>a program runs; pause it first</source>
        <translation>有程序在运行；请先暂停</translation>
    </message>
    <message>
        <source>the robot is braking</source>
        <translation>机器人正在制动</translation>
    </message>
    <message>
        <source>&quot;action&quot; is &quot;%1&quot;, not &quot;clear&quot;</source>
        <translation>“action”为“%1”，而不是“clear”</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>%1: this is no file</source>
        <translation>%1：这不是文件</translation>
    </message>
    <message>
        <source>%1: it is nested too deep</source>
        <translation>%1：嵌套过深</translation>
    </message>
    <message>
        <source>%1: there is no list</source>
        <translation>%1：没有列表</translation>
    </message>
    <message>
        <source>The project %1 cannot be read: %2</source>
        <translation>无法读取项目 %1：%2</translation>
    </message>
    <message>
        <source>The folder of the project %1 does not take its tasks and variables: %2</source>
        <translation>项目 %1 的文件夹无法写入其任务和变量：%2</translation>
    </message>
    <message>
        <source>The folder of the project %1 was exchanged while its program runs; what is in it counts when the program is stopped and started again</source>
        <translation>项目 %1 的文件夹在其程序运行时被替换；停止并重新启动程序后，文件夹中的内容才生效</translation>
    </message>
    <message>
        <source>The project %1 has no tasks: edit it, and they are made anew</source>
        <translation>项目 %1 没有任务：编辑该项目即可重新生成</translation>
    </message>
    <message>
        <source>the folder of the project was exchanged, and its counters with it: look at them before it runs</source>
        <translation>项目文件夹及其计数器已被替换：运行前请检查计数器</translation>
    </message>
</context>
<context>
    <name>host::ControllerLink</name>
    <message>
        <source>Looking for the controller.</source>
        <translation>正在查找控制器。</translation>
    </message>
    <message>
        <source>The link to the controller is closed.</source>
        <translation>与控制器的通信已关闭。</translation>
    </message>
    <message>
        <source>The controller is being asked for its state.</source>
        <translation>正在查询控制器状态。</translation>
    </message>
    <message>
        <source>The link to the controller broke: %1. Edits stay in the panel and are sent when it is back. Check the cable and the controller.</source>
        <translation>与控制器的通信中断：%1。更改保留在面板中，恢复后发送。请检查电缆和控制器。</translation>
    </message>
    <message>
        <source>The controller cannot be reached: %1. Check the cable and whether it is switched on.</source>
        <translation>无法连接控制器：%1。请检查电缆以及控制器是否已开机。</translation>
    </message>
    <message>
        <source>it did not answer the greeting</source>
        <translation>未应答握手</translation>
    </message>
    <message>
        <source>it was silent for %1 s</source>
        <translation>%1 s 内没有响应</translation>
    </message>
    <message>
        <source>An edit cannot be sent to the controller: %1</source>
        <translation>无法将更改发送到控制器：%1</translation>
    </message>
    <message>
        <source>the controller must not send such a message</source>
        <translation>控制器不得发送此类消息</translation>
    </message>
    <message>
        <source>The controller speaks version %1 of the link, this panel version %2. Update the older one.</source>
        <translation>控制器的通信版本为 %1，本面板为 %2。请更新较旧的一方。</translation>
    </message>
    <message>
        <source>Controller %1 connected, software %2, robot %3.</source>
        <translation>控制器 %1 已连接，软件 %2，机器人 %3。</translation>
    </message>
    <message>
        <source>The controller serves another panel. Close the link there; this panel asks again by itself.</source>
        <translation>控制器正在为另一面板服务。请在该面板上关闭连接；本面板会自动重试。</translation>
    </message>
    <message>
        <source>The controller refuses this panel&apos;s version of the link: %1. Update the older one.</source>
        <translation>控制器拒绝本面板的通信版本：%1。请更新较旧的一方。</translation>
    </message>
    <message>
        <source>The controller sent something that cannot be read and was left out: %1.</source>
        <translation>控制器发送了无法读取的内容，已忽略：%1。</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>本面板没有与控制器的连接。</translation>
    </message>
    <message>
        <source>The controller did not carry out &quot;%1&quot;: %2</source>
        <translation>控制器未执行“%1”：%2</translation>
    </message>
    <message>
        <source>The controller is not connected.</source>
        <translation>控制器未连接。</translation>
    </message>
    <message>
        <source>The link to the controller broke before it answered.</source>
        <translation>控制器应答之前通信中断。</translation>
    </message>
    <message>
        <source>The controller did not answer within %1 s.</source>
        <translation>控制器在 %1 s 内未应答。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no node that a controller may change</source>
        <translation>“%1”不是控制器可更改的节点</translation>
    </message>
    <message>
        <source>there is no place for &quot;%1&quot;</source>
        <translation>没有“%1”的位置</translation>
    </message>
    <message>
        <source>a greeting without a state</source>
        <translation>握手不含状态</translation>
    </message>
    <message>
        <source>The controller did not take a message of the panel: %1.</source>
        <translation>控制器未接受面板的消息：%1。</translation>
    </message>
    <message>
        <source>Messages that could not be read: %1.</source>
        <translation>无法读取的消息：%1。</translation>
    </message>
    <message>
        <source>Answers that came late or twice: %1.</source>
        <translation>迟到或重复的应答：%1。</translation>
    </message>
    <message>
        <source>Requests without an answer: %1.</source>
        <translation>无应答的请求：%1。</translation>
    </message>
    <message>
        <source>The controller answered a request too late or twice. The answer was dropped.</source>
        <translation>控制器应答过迟或重复。该应答已丢弃。</translation>
    </message>
</context>
<context>
    <name>host::HostSession</name>
    <message>
        <source>The panel cannot start</source>
        <translation>面板无法启动</translation>
    </message>
    <message>
        <source>another session runs in this process</source>
        <translation>此进程中已有另一会话在运行</translation>
    </message>
    <message>
        <source>A folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>nothing is stored there</source>
        <translation>不会在该处存储任何内容</translation>
    </message>
    <message>
        <source>The stored data cannot be used</source>
        <translation>无法使用已存储的数据</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>无法保存数据</translation>
    </message>
    <message>
        <source>The panel&apos;s own nodes cannot be built</source>
        <translation>无法建立面板自身的节点</translation>
    </message>
    <message>
        <source>The plug-in cannot be used</source>
        <translation>无法使用插件</translation>
    </message>
    <message>
        <source>The plug-in is left out</source>
        <translation>插件被忽略</translation>
    </message>
    <message>
        <source>a module &quot;%1&quot; is there already</source>
        <translation>模块“%1”已存在</translation>
    </message>
    <message>
        <source>its factory made no module &quot;%1&quot;</source>
        <translation>其工厂未创建模块“%1”</translation>
    </message>
</context>
<context>
    <name>host::LibraryFile</name>
    <message>
        <source>it is no library</source>
        <translation>它不是库</translation>
    </message>
    <message>
        <source>the file is incomplete: it has %1 bytes, %2 are needed</source>
        <translation>文件不完整：有 %1 字节，需要 %2 字节</translation>
    </message>
</context>
<context>
    <name>host::Link</name>
    <message>
        <source>a message of %1 bytes is longer than the %2 that are read</source>
        <translation>消息为 %1 字节，超过可读取的 %2 字节</translation>
    </message>
    <message>
        <source>no message is of the kind %1</source>
        <translation>没有类型为 %1 的消息</translation>
    </message>
    <message>
        <source>the message is of version %1 of the link, only version %2 is read</source>
        <translation>消息的通信版本为 %1，只能读取版本 %2</translation>
    </message>
    <message>
        <source>the message has %1 bytes where its head names %2</source>
        <translation>消息有 %1 字节，而其头部声明为 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the wrong kind</source>
        <translation>“%1”的类型错误</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>“%1”超出范围</translation>
    </message>
    <message>
        <source>the message is no map of keys</source>
        <translation>消息不是键的映射</translation>
    </message>
    <message>
        <source>these bytes are no message of the link</source>
        <translation>这些字节不是通信消息</translation>
    </message>
    <message>
        <source>the message is cut off in its head</source>
        <translation>消息在头部被截断</translation>
    </message>
    <message>
        <source>the message was damaged on its way</source>
        <translation>消息在传输中损坏</translation>
    </message>
</context>
<context>
    <name>host::LogKeeper</name>
    <message>
        <source>A log record cannot be kept: %1</source>
        <translation>无法保留日志记录：%1</translation>
    </message>
    <message>
        <source>it has no title</source>
        <translation>它没有标题</translation>
    </message>
    <message>
        <source>%1; it was kept as %2</source>
        <translation>%1；已保存为 %2</translation>
    </message>
    <message>
        <source>The log cannot be kept over a restart: %1</source>
        <translation>重启后无法保留日志：%1</translation>
    </message>
</context>
<context>
    <name>host::PluginLoader</name>
    <message>
        <source>it has no entry &quot;%1&quot;, so it is no plug-in of this panel</source>
        <translation>它没有入口“%1”，因此不是本面板的插件</translation>
    </message>
    <message>
        <source>its entry &quot;%1&quot; tells nothing</source>
        <translation>其入口“%1”未返回任何信息</translation>
    </message>
    <message>
        <source>it was built for interface %1 of the framework, this panel has interface %2</source>
        <translation>它是为框架接口 %1 构建的，本面板的接口为 %2</translation>
    </message>
    <message>
        <source>it tells no name</source>
        <translation>它未给出名称</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>it has registered no module under the name &quot;%1&quot;</source>
        <translation>它没有以名称“%1”注册模块</translation>
    </message>
    <message>
        <source>it has registered no version under the name &quot;%1&quot;</source>
        <translation>它没有以名称“%1”注册版本</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded</source>
        <translation>无法加载插件</translation>
    </message>
</context>
<context>
    <name>host::Store</name>
    <message>
        <source>a store is open already in this program</source>
        <translation>此程序中已打开一个数据存储</translation>
    </message>
    <message>
        <source>files cannot be made there</source>
        <translation>无法在该处创建文件</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; is in use by %2 (process %3 on %4). End that program or choose another data folder.</source>
        <translation>数据文件夹“%1”正被 %2 使用（%4 上的进程 %3）。请结束该程序或选择其他数据文件夹。</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>另一程序</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>another program has written it in the meantime</source>
        <translation>期间已被另一程序写入</translation>
    </message>
    <message>
        <source>What the panel holds is stored anew.</source>
        <translation>面板中的数据将重新存储。</translation>
    </message>
    <message>
        <source>The panel starts from its templates.</source>
        <translation>面板从模板启动。</translation>
    </message>
    <message>
        <source>%1 entries in it were whole and were taken over.</source>
        <translation>其中 %1 个条目完好，已接管。</translation>
    </message>
    <message>
        <source>%1 of its %2 entries were whole and were taken over.</source>
        <translation>其 %2 个条目中有 %1 个完好，已接管。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; cannot be read: %2. The panel starts from its templates; the stored data will be kept aside.</source>
        <translation>无法读取“%1”中存储的数据：%2。面板从模板启动；原数据将另行保留。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2. %3 entries were whole and were taken over.</source>
        <translation>“%1”中存储的数据已损坏：%2。%3 个条目完好，已接管。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; could not be used: %2.</source>
        <translation>无法使用“%1”中存储的数据：%2。</translation>
    </message>
    <message>
        <source>The file was kept as &quot;%1&quot;.</source>
        <translation>文件已保留为“%1”。</translation>
    </message>
    <message>
        <source>All other entries were taken over.</source>
        <translation>其余条目均已接管。</translation>
    </message>
    <message>
        <source>The stored data in &quot;%1&quot; is damaged: %2.</source>
        <translation>“%1”中存储的数据已损坏：%2。</translation>
    </message>
    <message>
        <source>entry %1 has no valid text</source>
        <translation>条目 %1 没有有效文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be stored: %2.</source>
        <translation>无法存储“%1”：%2。</translation>
    </message>
    <message>
        <source>The data folder &quot;%1&quot; cannot be written: %2. Changes are kept in memory, and saving is tried again every %3 seconds and at the end. Make the folder writable or free space on its disk; what is not saved is lost with the end of the program.</source>
        <translation>无法写入数据文件夹“%1”：%2。更改保留在内存中，每 %3 秒以及退出时重试保存。请使文件夹可写或释放磁盘空间；未保存的内容会随程序结束而丢失。</translation>
    </message>
    <message>
        <source>the SQLite driver of Qt is not installed</source>
        <translation>未安装 Qt 的 SQLite 驱动</translation>
    </message>
    <message>
        <source>it is no store of this panel</source>
        <translation>它不是本面板的数据存储</translation>
    </message>
    <message>
        <source>it was written by a newer version of this panel (form %1)</source>
        <translation>它由较新版本的面板写入（格式 %1）</translation>
    </message>
    <message>
        <source>its form %1 is unknown</source>
        <translation>其格式 %1 未知</translation>
    </message>
    <message>
        <source>the checksum of entry %1 is wrong</source>
        <translation>条目 %1 的校验和错误</translation>
    </message>
    <message>
        <source>its manifest is missing</source>
        <translation>缺少其清单</translation>
    </message>
    <message>
        <source>the checksum of its manifest is wrong</source>
        <translation>其清单的校验和错误</translation>
    </message>
    <message>
        <source>it holds %1 entries instead of %2, or others</source>
        <translation>它包含 %1 个条目而非 %2 个，或条目不同</translation>
    </message>
    <message>
        <source>the file cannot be renamed</source>
        <translation>无法重命名文件</translation>
    </message>
    <message>
        <source>it cannot be renamed</source>
        <translation>无法重命名</translation>
    </message>
</context>
<context>
    <name>host::TreeBinder</name>
    <message>
        <source>The template cannot be used: %1</source>
        <translation>无法使用模板：%1</translation>
    </message>
    <message>
        <source>The template %1 holds no map of keys</source>
        <translation>模板 %1 不是键的映射</translation>
    </message>
    <message>
        <source>Stored values do not fit the template and were left out: %1</source>
        <translation>存储的值与模板不符，已忽略：%1</translation>
    </message>
</context>
<context>
    <name>ix::ClearButton</name>
    <message>
        <source>Empty the field</source>
        <translation>清空该字段</translation>
    </message>
</context>
<context>
    <name>ix::calc</name>
    <message>
        <source>%1 are only %2 mm apart; at least %3 mm are needed.</source>
        <translation>%1 仅相距 %2 mm，至少需要 %3 mm。</translation>
    </message>
    <message>
        <source>A calibration point holds no number.</source>
        <translation>标定点不含数字。</translation>
    </message>
    <message>
        <source>The origin and the point on X</source>
        <translation>原点和 X 轴上的点</translation>
    </message>
    <message>
        <source>The origin and the point on the XY plane</source>
        <translation>原点和 XY 平面上的点</translation>
    </message>
    <message>
        <source>The directions to the two points differ by only %1 degrees; at least %2 are needed.</source>
        <translation>到两点的方向仅相差 %1 度，至少需要 %2 度。</translation>
    </message>
</context>
<context>
    <name>nexo::ManagerHelper</name>
    <message>
        <source>The translation %1 cannot be read.</source>
        <translation>无法读取翻译 %1。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>nexo::SettingManager</name>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1，位于字节 %2</translation>
    </message>
    <message>
        <source>it holds no JSON object</source>
        <translation>它不含 JSON 对象</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is no text</source>
        <translation>“%1”的值不是文本</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>它大于 %1 字节</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. Settings are not saved.</source>
        <translation>无法使用设置文件 %1：%2。设置不会保存。</translation>
    </message>
    <message>
        <source>Cannot use the settings file %1: %2. It is kept as %3.</source>
        <translation>无法使用设置文件 %1：%2。已保留为 %3。</translation>
    </message>
    <message>
        <source>Cannot save the settings file %1: %2</source>
        <translation>无法保存设置文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>orba::ModuleManager</name>
    <message>
        <source>%1 (at &quot;%2&quot;)</source>
        <translation>%1（位于“%2”）</translation>
    </message>
    <message>
        <source>lists and maps are nested more than %1 deep</source>
        <translation>列表和映射的嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the file has %1 bytes, more than the %2 that are read</source>
        <translation>文件有 %1 字节，超过可读取的 %2 字节</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>is written, but may be lost when the power fails: %1</source>
        <translation>已写入，但断电时可能丢失：%1</translation>
    </message>
    <message>
        <source>a whole number is outside of 64 bits</source>
        <translation>整数超出 64 位</translation>
    </message>
    <message>
        <source>an item is {&quot;name&quot;: text, &quot;value&quot;: ...}, without &quot;name&quot; when it has none</source>
        <translation>条目形式为 {&quot;name&quot;: 文本, &quot;value&quot;: ...}，无名称时省略 &quot;name&quot;</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; stands alone with one text</source>
        <translation>“#utf16”须单独出现并带一个文本</translation>
    </message>
    <message>
        <source>a mixed container is {&quot;#mixed&quot;: &quot;list&quot; or &quot;map&quot;, &quot;#items&quot;: [...]}</source>
        <translation>混合容器的形式为 {&quot;#mixed&quot;: &quot;list&quot; 或 &quot;map&quot;, &quot;#items&quot;: [...]}</translation>
    </message>
    <message>
        <source>a number is too large</source>
        <translation>数字过大</translation>
    </message>
    <message>
        <source>&quot;#utf16&quot; holds no base64 text of UTF-16</source>
        <translation>“#utf16”不含 UTF-16 的 base64 文本</translation>
    </message>
    <message>
        <source>keys that begin with one &quot;#&quot; are reserved, write &quot;##&quot;</source>
        <translation>以单个“#”开头的键为保留键，请写“##”</translation>
    </message>
    <message>
        <source>a name is a text or {&quot;#utf16&quot;: ...}</source>
        <translation>名称为文本或 {&quot;#utf16&quot;: ...}</translation>
    </message>
    <message>
        <source>a zero byte stands outside of a text</source>
        <translation>文本之外有零字节</translation>
    </message>
    <message>
        <source>the text has %1 bytes, more than the %2 that are read</source>
        <translation>文本有 %1 字节，超过可读取的 %2 字节</translation>
    </message>
    <message>
        <source>a number is not finite</source>
        <translation>数字不是有限值</translation>
    </message>
    <message>
        <source>the tree is too large to be written</source>
        <translation>数据树过大，无法写入</translation>
    </message>
    <message>
        <source>there is no such node</source>
        <translation>没有此节点</translation>
    </message>
    <message>
        <source>document types and entities are not accepted</source>
        <translation>不接受文档类型和实体</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot; is unknown</source>
        <translation>实体“%1”未知</translation>
    </message>
    <message>
        <source>unknown element &quot;%1&quot;</source>
        <translation>未知元素“%1”</translation>
    </message>
    <message>
        <source>text stands between elements</source>
        <translation>元素之间有文本</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>文档为空</translation>
    </message>
    <message>
        <source>unknown attribute %1=&quot;%2&quot;</source>
        <translation>未知属性 %1=&quot;%2&quot;</translation>
    </message>
    <message>
        <source>unknown type &quot;%1&quot;</source>
        <translation>未知类型“%1”</translation>
    </message>
    <message>
        <source>the element has no type</source>
        <translation>元素没有类型</translation>
    </message>
    <message>
        <source>only a string has an encoding</source>
        <translation>只有字符串才有编码</translation>
    </message>
    <message>
        <source>there is no name to be decoded</source>
        <translation>没有可解码的名称</translation>
    </message>
    <message>
        <source>the name is no base64 text of UTF-16</source>
        <translation>名称不是 UTF-16 的 base64 文本</translation>
    </message>
    <message>
        <source>the string is no base64 text of UTF-16</source>
        <translation>字符串不是 UTF-16 的 base64 文本</translation>
    </message>
    <message>
        <source>a null holds no value</source>
        <translation>null 不含值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>“%1”既不是 true 也不是 false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number of 64 bits</source>
        <translation>“%1”不是 64 位整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no finite number</source>
        <translation>“%1”不是有限数字</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot; is not accepted</source>
        <translation>不接受编码“%1”</translation>
    </message>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>元素的属性超过 %1 个</translation>
    </message>
</context>
<context>
    <name>panel::CellPage</name>
    <message>
        <source>No project is in use.</source>
        <translation>未使用工程。</translation>
    </message>
    <message>
        <source>Project %1</source>
        <translation>工程 %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>无控制器</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
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
        <translation>无托盘</translation>
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
        <translation>无真空</translation>
    </message>
    <message>
        <source>Lost box</source>
        <translation>箱掉落</translation>
    </message>
    <message>
        <source>Conveyor jam</source>
        <translation>输送线堵塞</translation>
    </message>
    <message>
        <source>Pallet pulled</source>
        <translation>托盘被拉走</translation>
    </message>
    <message>
        <source>Emergency stop</source>
        <translation>急停</translation>
    </message>
    <message>
        <source>Collision</source>
        <translation>碰撞</translation>
    </message>
    <message>
        <source>Power cut</source>
        <translation>断电</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Procedure</source>
        <translation>过程</translation>
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
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Layer / piece</source>
        <translation>层 / 件</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>%1: on</source>
        <translation>%1：开</translation>
    </message>
    <message>
        <source>Violations: %1, lost boxes: %2</source>
        <translation>违规：%1，掉落箱数：%2</translation>
    </message>
    <message>
        <source>%1: waiting for the controller</source>
        <translation>%1：等待控制器</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>product at the stop</source>
        <translation>产品已到挡块</translation>
    </message>
    <message>
        <source>product in %1 mm</source>
        <translation>产品还有 %1 mm</translation>
    </message>
    <message>
        <source>jammed</source>
        <translation>堵塞</translation>
    </message>
    <message>
        <source>vacuum</source>
        <translation>有真空</translation>
    </message>
    <message>
        <source>no vacuum</source>
        <translation>无真空</translation>
    </message>
    <message>
        <source>carries a product</source>
        <translation>抓着产品</translation>
    </message>
    <message>
        <source>Conveyor: %1</source>
        <translation>输送线：%1</translation>
    </message>
    <message>
        <source>Gripper: %1</source>
        <translation>抓手：%1</translation>
    </message>
    <message>
        <source>Lift column: %1 mm, %2</source>
        <translation>升降柱：%1 mm，%2</translation>
    </message>
    <message>
        <source>Task, line</source>
        <translation>任务，行</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>物体</translation>
    </message>
    <message>
        <source>switch on disabled</source>
        <translation>禁止接通</translation>
    </message>
    <message>
        <source>ready to switch on</source>
        <translation>准备接通</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>已接通</translation>
    </message>
    <message>
        <source>operation enabled</source>
        <translation>运行使能</translation>
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
        <translation>运行</translation>
    </message>
    <message>
        <source>waits</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>moves</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
</context>
<context>
    <name>panel::ControllerPage</name>
    <message>
        <source>Moving</source>
        <translation>移动中</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>静止</translation>
    </message>
</context>
<context>
    <name>panel::ExportDialog</name>
    <message>
        <source>Table (CSV)</source>
        <translation>表格 (CSV)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>文件需要名称。</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot; and does not begin with &quot;.&quot;.</source>
        <translation>名称不能含“/”且不能以“.”开头。</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>替换该文件？</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 已存在。</translation>
    </message>
</context>
<context>
    <name>panel::LogModel</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
</context>
<context>
    <name>panel::LogPage</name>
    <message>
        <source>All levels</source>
        <translation>所有级别</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>错误和警告</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>记录：%1</translation>
    </message>
    <message>
        <source>Records: %1 of %2</source>
        <translation>记录：%1/%2</translation>
    </message>
    <message>
        <source>%1 records were exported to %2.</source>
        <translation>已导出 %1 条记录到 %2。</translation>
    </message>
    <message>
        <source>The log was not exported. %1</source>
        <translation>日志未导出。%1</translation>
    </message>
    <message>
        <source>Clear the log</source>
        <translation>清空日志</translation>
    </message>
    <message>
        <source>All %1 records are deleted for good, those that the filter hides as well. Export them first to keep them.</source>
        <translation>全部 %1 条记录将被永久删除，包括被筛选隐藏的记录。如需保留请先导出。</translation>
    </message>
</context>
<context>
    <name>panel::MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>panel::Navigator</name>
    <message>
        <source>Packages</source>
        <translation>工艺包</translation>
    </message>
    <message>
        <source>Navigator</source>
        <translation>导航</translation>
    </message>
</context>
<context>
    <name>panel::Options</name>
    <message>
        <source>Folder of the stored data, settings and logs.</source>
        <translation>存储数据、设置和日志的文件夹。</translation>
    </message>
    <message>
        <source>Controller workspace.</source>
        <translation>控制器工作区。</translation>
    </message>
    <message>
        <source>en, cn, ru, jp or kr.</source>
        <translation>en、cn、ru、jp 或 kr。</translation>
    </message>
    <message>
        <source>Plug-in library to load; may be given several times.</source>
        <translation>要加载的插件库；可多次指定。</translation>
    </message>
    <message>
        <source>Recipes (file or folder) for an empty store; may be given several times.</source>
        <translation>用于空数据存储的配方（文件或文件夹）；可多次指定。</translation>
    </message>
    <message>
        <source>Desktop panel of the palletizing workstation.</source>
        <translation>码垛工作站的桌面面板。</translation>
    </message>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <translation>未知参数“%1”。</translation>
    </message>
    <message>
        <source>Unknown language &quot;%1&quot;; there are %2.</source>
        <translation>未知语言“%1”；可用：%2。</translation>
    </message>
    <message>
        <source>Robot controller: inprocess (simulated, the default), spawn (simulated, in a process of its own), HOST:PORT or none.</source>
        <translation>机器人控制器：inprocess（模拟，默认）、spawn（模拟，独立进程）、HOST:PORT 或 none。</translation>
    </message>
    <message>
        <source>Unknown controller &quot;%1&quot;; there are inprocess, spawn, none and HOST:PORT.</source>
        <translation>未知控制器“%1”；可用：inprocess、spawn、none 和 HOST:PORT。</translation>
    </message>
    <message>
        <source>Fields that are touched open a keypad or keyboard.</source>
        <translation>触摸字段时打开数字键盘或文字键盘。</translation>
    </message>
</context>
<context>
    <name>panel::PanelWindow</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Robot panel</source>
        <translation>机器人面板</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>没有页面“%1”。</translation>
    </message>
    <message>
        <source>The data cannot be saved</source>
        <translation>无法保存数据</translation>
    </message>
    <message>
        <source>Changes since the last saving are lost when the panel closes now.</source>
        <translation>如果现在关闭面板，上次保存之后的更改将丢失。</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>保持打开</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>工作站</translation>
    </message>
</context>
<context>
    <name>panel::ProblemPage</name>
    <message>
        <source>The panel did not start completely</source>
        <translation>面板未完全启动</translation>
    </message>
</context>
<context>
    <name>panel::StatusStrip</name>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Last notice</source>
        <translation>最近通知</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Controller %1</source>
        <translation>控制器 %1</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>无控制器</translation>
    </message>
    <message>
        <source>Check controller</source>
        <translation>检查控制器</translation>
    </message>
    <message>
        <source>Controller refuses</source>
        <translation>控制器拒绝</translation>
    </message>
    <message>
        <source>This panel has no link to a controller.</source>
        <translation>该面板未与控制器通信。</translation>
    </message>
    <message>
        <source>Editing goes on; the recipes stay in the panel.</source>
        <translation>可继续编辑；配方保存在面板中。</translation>
    </message>
</context>
</TS>
