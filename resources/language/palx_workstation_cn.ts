<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AddPatternDialog</name>
    <message>
        <source>First pattern</source>
        <translation>第一个垛型</translation>
    </message>
</context>
<context>
    <name>AutomaticStackerDialog</name>
    <message>
        <source>Automatic layout</source>
        <translation>自动布局</translation>
    </message>
    <message>
        <source>Top and bottom margin</source>
        <translation>上下边距</translation>
    </message>
    <message>
        <source>Left and right margin</source>
        <translation>左右边距</translation>
    </message>
    <message>
        <source>Space between products</source>
        <translation>产品间距</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>%1 mm over the pallet&apos;s edge</source>
        <translation>超出托盘边缘 %1 mm</translation>
    </message>
    <message>
        <source>Nothing fits</source>
        <translation>放不下</translation>
    </message>
    <message>
        <source>No turned row fits</source>
        <translation>旋转行放不下</translation>
    </message>
    <message>
        <source>Boxes: %1, area: %2 %</source>
        <translation>箱数：%1，面积：%2 %</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Confirm whether to overwrite the current stack type?</source>
        <translation>确认是否覆盖当前垛型？</translation>
    </message>
    <message>
        <source>Please select an effective stack type!</source>
        <translation>请选择有效的垛型！</translation>
    </message>
</context>
<context>
    <name>CalibrationFrame</name>
    <message>
        <source>Pallet frame</source>
        <translation>托盘坐标系</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>来料</translation>
    </message>
</context>
<context>
    <name>CascadeNestingWizard</name>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Layer sequence</source>
        <translation>层顺序</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>垛</translation>
    </message>
</context>
<context>
    <name>ControllerDialog</name>
    <message>
        <source>Recipes on the controller</source>
        <translation>控制器中的配方</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>What the comparison says</source>
        <translation>比较结果</translation>
    </message>
    <message>
        <source>Recipes of panel and controller</source>
        <translation>面板与控制器的配方</translation>
    </message>
    <message>
        <source>Send everything</source>
        <translation>全部发送</translation>
    </message>
    <message>
        <source>Send all recipes to the controller</source>
        <translation>将所有配方发送到控制器</translation>
    </message>
    <message>
        <source>Why nothing can be sent</source>
        <translation>无法发送的原因</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>当前工具</translation>
    </message>
    <message>
        <source>Tool to switch to</source>
        <translation>要切换的工具</translation>
    </message>
    <message>
        <source>Switch tool</source>
        <translation>切换工具</translation>
    </message>
    <message>
        <source>Switch the active tool</source>
        <translation>切换当前工具</translation>
    </message>
    <message>
        <source>There is no connection to the controller. Editing goes on; send the recipes when it is back.</source>
        <translation>未连接控制器。可继续编辑；恢复连接后请发送配方。</translation>
    </message>
    <message>
        <source>The controller is being asked for its recipes.</source>
        <translation>正在查询控制器的配方。</translation>
    </message>
    <message>
        <source>The controller does not tell its recipes: %1</source>
        <translation>控制器未提供其配方：%1</translation>
    </message>
    <message>
        <source>The controller holds all %1 recipes as they are here.</source>
        <translation>控制器中的 %1 个配方与此处一致。</translation>
    </message>
    <message>
        <source>%1 of %2 recipes differ. Send everything to make the controller&apos;s the same.</source>
        <translation>%2 个配方中有 %1 个不同。全部发送可使其一致。</translation>
    </message>
    <message>
        <source>Active tool: %1</source>
        <translation>当前工具：%1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Not possible without a connection.</source>
        <translation>未连接时无法进行。</translation>
    </message>
    <message>
        <source>Shared tool %1</source>
        <translation>共用工具 %1</translation>
    </message>
    <message>
        <source>Tool of %1</source>
        <translation>%1 的工具</translation>
    </message>
    <message>
        <source>The recipes are being sent.</source>
        <translation>正在发送配方。</translation>
    </message>
    <message>
        <source>The controller took all %1 recipes.</source>
        <translation>控制器已接受全部 %1 个配方。</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>配方未被接受：%1</translation>
    </message>
    <message>
        <source>The tool is being switched.</source>
        <translation>正在切换工具。</translation>
    </message>
    <message>
        <source>The controller works with the tool %1.</source>
        <translation>控制器正在使用工具 %1。</translation>
    </message>
    <message>
        <source>The controller did not take the tool. The log may say why.</source>
        <translation>控制器未接受该工具。原因可查看日志。</translation>
    </message>
</context>
<context>
    <name>DirectionsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>垛型平面图</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Choose all products</source>
        <translation>选择所有产品</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>多选</translation>
    </message>
    <message>
        <source>Choose several products</source>
        <translation>选择多个产品</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Propose sides for the chosen products, or for all</source>
        <translation>为所选或全部产品建议方向</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>设置的内容</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>From the upper left</source>
        <translation>从左上方</translation>
    </message>
    <message>
        <source>From above on the plan</source>
        <translation>从平面图上方</translation>
    </message>
    <message>
        <source>From the upper right</source>
        <translation>从右上方</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>从左侧</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>Straight down</source>
        <translation>垂直向下</translation>
    </message>
    <message>
        <source>From the right</source>
        <translation>从右侧</translation>
    </message>
    <message>
        <source>From the lower left</source>
        <translation>从左下方</translation>
    </message>
    <message>
        <source>From below on the plan</source>
        <translation>从平面图下方</translation>
    </message>
    <message>
        <source>From the lower right</source>
        <translation>从右下方</translation>
    </message>
    <message>
        <source>No products</source>
        <translation>没有产品</translation>
    </message>
    <message>
        <source>All products</source>
        <translation>所有产品</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>产品 %1</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>已选 %1 个产品</translation>
    </message>
</context>
<context>
    <name>EditTools</name>
    <message>
        <source>Choose all products</source>
        <translation>选择所有产品</translation>
    </message>
    <message>
        <source>Choose several products by tapping</source>
        <translation>点按选择多个产品</translation>
    </message>
    <message>
        <source>Move the plan with a finger</source>
        <translation>用手指移动平面图</translation>
    </message>
    <message>
        <source>Snap to edges and neighbours</source>
        <translation>吸附到边缘和相邻产品</translation>
    </message>
    <message>
        <source>Add a product</source>
        <translation>添加产品</translation>
    </message>
    <message>
        <source>Copy the chosen products</source>
        <translation>复制所选产品</translation>
    </message>
    <message>
        <source>Paste products</source>
        <translation>粘贴产品</translation>
    </message>
    <message>
        <source>Remove the chosen products</source>
        <translation>删除所选产品</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the left</source>
        <translation>向左旋转 90 度</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the right</source>
        <translation>向右旋转 90 度</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左移</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右移</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Step of moving</source>
        <translation>移动步长</translation>
    </message>
    <message>
        <source>Mirror the pattern, left and right</source>
        <translation>左右镜像垛型</translation>
    </message>
    <message>
        <source>Mirror the pattern, top and bottom</source>
        <translation>上下镜像垛型</translation>
    </message>
    <message>
        <source>Turn the whole pattern by 180 degrees</source>
        <translation>整个垛型旋转 180 度</translation>
    </message>
    <message>
        <source>Angle to turn by</source>
        <translation>旋转角度</translation>
    </message>
    <message>
        <source>Turn by the angle beside</source>
        <translation>按旁边的角度旋转</translation>
    </message>
    <message>
        <source>Align left edges</source>
        <translation>左边缘对齐</translation>
    </message>
    <message>
        <source>Align middles across</source>
        <translation>横向居中对齐</translation>
    </message>
    <message>
        <source>Align right edges</source>
        <translation>右边缘对齐</translation>
    </message>
    <message>
        <source>Space evenly across</source>
        <translation>横向均匀分布</translation>
    </message>
    <message>
        <source>Align upper edges</source>
        <translation>上边缘对齐</translation>
    </message>
    <message>
        <source>Align middles along</source>
        <translation>纵向居中对齐</translation>
    </message>
    <message>
        <source>Align lower edges</source>
        <translation>下边缘对齐</translation>
    </message>
    <message>
        <source>Space evenly along</source>
        <translation>纵向均匀分布</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Copy, remove, turn</source>
        <translation>复制、删除、旋转</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Whole pattern; turn by an angle</source>
        <translation>整个垛型；按角度旋转</translation>
    </message>
    <message>
        <source>Align and space across</source>
        <translation>横向对齐与分布</translation>
    </message>
    <message>
        <source>Align and space along</source>
        <translation>纵向对齐与分布</translation>
    </message>
    <message>
        <source>Show the plan larger</source>
        <translation>放大平面图</translation>
    </message>
    <message>
        <source>Show the plan smaller</source>
        <translation>缩小平面图</translation>
    </message>
</context>
<context>
    <name>ExchangeTableModel</name>
    <message>
        <source>ticked</source>
        <translation>已勾选</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>未勾选</translation>
    </message>
</context>
<context>
    <name>ExchangeText</name>
    <message>
        <source>recipe %1</source>
        <translation>配方 %1</translation>
    </message>
    <message>
        <source>recipe %1 &quot;%2&quot;</source>
        <translation>配方 %1“%2”</translation>
    </message>
    <message>
        <source>holds no list of recipes</source>
        <translation>不含配方列表</translation>
    </message>
    <message>
        <source>Writing the file</source>
        <translation>正在写入文件</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>正在读取文件</translation>
    </message>
</context>
<context>
    <name>FeedingDirectionWizard</name>
    <message>
        <source>Feeding directions</source>
        <translation>进料方向</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>垛</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>%1 is outside of %2 to %3%4.</source>
        <translation>%1 超出 %2 至 %3%4 的范围。</translation>
    </message>
    <message>
        <source>With this margin no product fits on the pallet.</source>
        <translation>采用此边距时，托盘上放不下任何产品。</translation>
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
        <translation>产品大于托盘，将伸出托盘边缘。</translation>
    </message>
</context>
<context>
    <name>FrameText</name>
    <message>
        <source>The pallet&apos;s place needs three calibration points.</source>
        <translation>托盘位置需要三个标定点。</translation>
    </message>
</context>
<context>
    <name>HomeParts</name>
    <message>
        <source>Production</source>
        <translation>生产</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>配方</translation>
    </message>
</context>
<context>
    <name>ImExportDialog</name>
    <message>
        <source>How many are ticked</source>
        <translation>已勾选的数量</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>When a name is taken</source>
        <translation>名称已存在时</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Tick all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Tick none</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Undo the last import</source>
        <translation>撤销上次导入</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>导入配方</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>导出配方</translation>
    </message>
    <message>
        <source>No file chosen</source>
        <translation>未选择文件</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>未选择位置</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>These recipes are here already. Choose a file.</source>
        <translation>这些配方已存在。请选择文件。</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>已勾选 %1 / %2</translation>
    </message>
    <message>
        <source>Open XML file</source>
        <translation>打开 XML 文件</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>Save XML file</source>
        <translation>保存 XML 文件</translation>
    </message>
    <message>
        <source>Choose a file to import from.</source>
        <translation>请选择要导入的文件。</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>已取消。未作任何更改。</translation>
    </message>
    <message>
        <source>Imported: %1 new recipes, %2 of them replace others.</source>
        <translation>已导入 %1 个配方，其中 %2 个替换了原有配方。</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>导出路径不能为空！</translation>
    </message>
    <message>
        <source>Cancelled. No file was written.</source>
        <translation>已取消。未写入文件。</translation>
    </message>
    <message>
        <source>%1 recipes were written to %2.</source>
        <translation>已将 %1 个配方写入 %2。</translation>
    </message>
    <message>
        <source>%1 imported recipes are removed, with what was changed in them since, and %2 replaced ones come back.</source>
        <translation>将删除导入的 %1 个配方及其后的更改，并恢复被替换的 %2 个。</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>已撤销上次导入。</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>将发生什么</translation>
    </message>
</context>
<context>
    <name>ImExportProjectDialog</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Select Project</source>
        <translation>选择工程</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Please select a project and ensure that the imported project file is complete, otherwise the import will fail!</source>
        <translation>请选择工程并确保导入的工程文件完整，否则导入将失败！</translation>
    </message>
    <message>
        <source>Folder for the archives</source>
        <translation>压缩包文件夹</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Choose the folder for the archives</source>
        <translation>选择压缩包文件夹</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Choose all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Choose none</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>You can select the following actions to handle projects with the same name in the imported content. Rename the project by default, or you can choose to replace an existing project.</source>
        <translation>可选择以下方式处理同名工程。默认重命名，也可替换现有工程。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Rename the imported project</source>
        <translation>重命名导入的工程</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replace the existing project</source>
        <translation>替换现有工程</translation>
    </message>
    <message>
        <source>Project templates</source>
        <translation>工程模板</translation>
    </message>
    <message>
        <source>Leave the templates</source>
        <translation>保留模板</translation>
    </message>
    <message>
        <source>Reset template</source>
        <translation>重置模板</translation>
    </message>
    <message>
        <source>Custom template</source>
        <translation>自定义模板</translation>
    </message>
    <message>
        <source>Archive of templates</source>
        <translation>模板压缩包</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Choose the archive of templates</source>
        <translation>选择模板压缩包</translation>
    </message>
    <message>
        <source>Export the program templates</source>
        <translation>导出程序模板</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>执行结果</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Project archives</source>
        <translation>工程压缩包</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>导入工程</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>导出工程</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>No folder is chosen</source>
        <translation>未选择文件夹</translation>
    </message>
    <message>
        <source>No file is chosen</source>
        <translation>未选择文件</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>压缩包</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>将发生什么</translation>
    </message>
    <message>
        <source>Choose project archives</source>
        <translation>选择工程压缩包</translation>
    </message>
    <message>
        <source>Checking the archives</source>
        <translation>正在检查压缩包</translation>
    </message>
    <message>
        <source>Choose a folder for the archives</source>
        <translation>请选择压缩包文件夹</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>不导入</translation>
    </message>
    <message>
        <source>Replaces the project %1</source>
        <translation>替换工程 %1</translation>
    </message>
    <message>
        <source>Renamed to %1</source>
        <translation>改名为 %1</translation>
    </message>
    <message>
        <source>New project %1</source>
        <translation>新工程 %1</translation>
    </message>
    <message>
        <source>New file %1</source>
        <translation>新文件 %1</translation>
    </message>
    <message>
        <source>Not exported</source>
        <translation>不导出</translation>
    </message>
    <message>
        <source>Replaces %1 of %2</source>
        <translation>替换 %2 的 %1</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>已导入：%1</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>已导出。</translation>
    </message>
    <message>
        <source>Cancelled: the folder is as it was before.</source>
        <translation>已取消：文件夹保持原样。</translation>
    </message>
    <message>
        <source>Not everything was exported; the log says why.</source>
        <translation>未全部导出；原因见日志。</translation>
    </message>
    <message>
        <source>Cancelled: everything is as it was before.</source>
        <translation>已取消：一切保持原样。</translation>
    </message>
    <message>
        <source>Nothing was imported; the log says why.</source>
        <translation>未导入任何内容；原因见日志。</translation>
    </message>
    <message>
        <source>Take the last import back? What was changed in it since is lost: %1</source>
        <translation>撤销上次导入？其后的更改将丢失：%1</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>已撤销上次导入。</translation>
    </message>
    <message>
        <source>None</source>
        <comment>choose none</comment>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>未导入：%1</translation>
    </message>
    <message>
        <source>It was not imported; the log says why</source>
        <translation>未导入；原因见日志</translation>
    </message>
</context>
<context>
    <name>ImportText</name>
    <message>
        <source>Merging the recipes</source>
        <translation>正在合并配方</translation>
    </message>
</context>
<context>
    <name>IncomingFrame</name>
    <message>
        <source>Note</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Conveyor</source>
        <translation>输送线</translation>
    </message>
    <message>
        <source>Corner that products lie in</source>
        <translation>产品所靠的角</translation>
    </message>
    <message>
        <source>Product on the conveyor</source>
        <translation>输送线上的产品</translation>
    </message>
    <message>
        <source>Direction of the conveyor</source>
        <translation>输送线方向</translation>
    </message>
    <message>
        <source>Way to the product</source>
        <translation>到产品的路径</translation>
    </message>
    <message>
        <source>Enter point X</source>
        <translation>进入点 X</translation>
    </message>
    <message>
        <source>Enter point Y</source>
        <translation>进入点 Y</translation>
    </message>
    <message>
        <source>Enter point above</source>
        <translation>进入点高出</translation>
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
        <translation>沿 X</translation>
    </message>
    <message>
        <source>Along Y</source>
        <translation>沿 Y</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>角点</translation>
    </message>
    <message>
        <source>Used by all recipes with &quot;Shared tool&quot;. Touch the corner at the conveyor&apos;s end that products lie in with the tool; the pick point is the middle of the product.</source>
        <translation>用于所有选用“共用工具”的配方。用工具触碰输送线末端产品所靠的角；抓取点是产品的中心。</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>抓取点</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>进入点</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>机器人在抓取点抓取每个产品。</translation>
    </message>
    <message>
        <source>Lengthwise</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Crosswise</source>
        <translation>横向</translation>
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
        <translation>中间</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
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
        <translation>旋转</translation>
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
        <translation>数字</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Allowed values</source>
        <translation>允许值</translation>
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
        <translation>改变正负号</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>删除最后一位</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear the value</source>
        <translation>清除数值</translation>
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
        <source>%1 to %2 %3</source>
        <translation>%1 至 %2 %3</translation>
    </message>
    <message>
        <source>Not allowed. Enter %1.</source>
        <translation>不允许。请输入 %1。</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>允许：%1</translation>
    </message>
</context>
<context>
    <name>LayerSeriesDialog</name>
    <message>
        <source>Layers in turn</source>
        <translation>交替层</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>In turn with</source>
        <translation>交替垛型</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Sheet after every so many</source>
        <translation>每隔几层放隔板</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>What the stack will be</source>
        <translation>垛的结果</translation>
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
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Mirrored left to right</source>
        <translation>左右镜像</translation>
    </message>
    <message>
        <source>Mirrored front to back</source>
        <translation>前后镜像</translation>
    </message>
    <message>
        <source>Turned by half</source>
        <translation>旋转 180 度</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>From layer %1 on, replacing</source>
        <translation>从第 %1 层起替换</translation>
    </message>
</context>
<context>
    <name>LayerTableModel</name>
    <message>
        <source>Separator sheet</source>
        <translation>隔板</translation>
    </message>
    <message>
        <source>Empty (end of stack)</source>
        <translation>空（垛结束）</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>箱数</translation>
    </message>
    <message>
        <source>From
mm</source>
        <translation>从
mm</translation>
    </message>
    <message>
        <source>To
mm</source>
        <translation>到
mm</translation>
    </message>
</context>
<context>
    <name>LayerText</name>
    <message>
        <source>is a separator sheet, but the recipe has separator sheets switched off</source>
        <translation>为隔板，但配方中已关闭隔板</translation>
    </message>
    <message>
        <source>is a separator sheet, but the sheet has no height</source>
        <translation>为隔板，但隔板没有高度</translation>
    </message>
    <message>
        <source>has no pattern; this layer and those above it get no points</source>
        <translation>没有垛型；该层及以上各层不生成点</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which this recipe does not have</source>
        <translation>使用了本配方中不存在的垛型“%1”</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which holds no products</source>
        <translation>使用的垛型“%1”中没有产品</translation>
    </message>
    <message>
        <source>Layer %1 %2.</source>
        <translation>第 %1 层%2。</translation>
    </message>
    <message>
        <source>The recipe has no layers.</source>
        <translation>配方没有层。</translation>
    </message>
    <message>
        <source>Layer %1 lies on an empty layer; the stack ends at its first empty layer, so only empty layers may follow it.</source>
        <translation>第 %1 层位于空层之上；垛在第一个空层处结束，其后只能是空层。</translation>
    </message>
</context>
<context>
    <name>LayersFrame</name>
    <message>
        <source>Layers from the pallet up</source>
        <translation>自托盘向上的各层</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>层的问题</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>配方合计</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>层平面图</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>Height offset</source>
        <translation>高度偏移</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add a layer on top</source>
        <translation>在顶部添加一层</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Insert before the chosen layer</source>
        <translation>在所选层之前插入</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>No layer chosen</source>
        <translation>未选择层</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>平面图</translation>
    </message>
    <message>
        <source>Show the plan of the layer instead of the stack</source>
        <translation>显示该层平面图而非垛</translation>
    </message>
    <message>
        <source>Remove the chosen layers</source>
        <translation>删除所选层</translation>
    </message>
    <message>
        <source>Place the chosen layers earlier</source>
        <translation>将所选层提前</translation>
    </message>
    <message>
        <source>Place the chosen layers later</source>
        <translation>将所选层推后</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>多选</translation>
    </message>
    <message>
        <source>Choose several layers</source>
        <translation>选择多层</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>隔板</translation>
    </message>
    <message>
        <source>Lay a separator sheet onto each chosen layer</source>
        <translation>在每个所选层上放隔板</translation>
    </message>
    <message>
        <source>Repeat the chosen layers on top</source>
        <translation>在顶部重复所选层</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Lay layers in turn, or mirror the chosen layers</source>
        <translation>交替放置层，或镜像所选层</translation>
    </message>
    <message>
        <source>Pattern of %1 layers</source>
        <translation>%1 层的垛型</translation>
    </message>
    <message>
        <source>Pattern of layer %1</source>
        <translation>第 %1 层的垛型</translation>
    </message>
    <message>
        <source>A recipe holds at most %1 layers.</source>
        <translation>一个配方最多 %1 层。</translation>
    </message>
    <message>
        <source>There is a sheet already, or no box to lay it on.</source>
        <translation>已有隔板，或没有可放隔板的箱。</translation>
    </message>
    <message>
        <source>The chosen layers look the same then.</source>
        <translation>所选层不会改变。</translation>
    </message>
    <message>
        <source>Layers in turn...</source>
        <translation>交替层...</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>左右镜像</translation>
    </message>
    <message>
        <source>Mirror front to back</source>
        <translation>前后镜像</translation>
    </message>
    <message>
        <source>Turn by half</source>
        <translation>旋转 180 度</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Matrix (vertical)</source>
        <translation>矩阵（纵向）</translation>
    </message>
    <message>
        <source>Matrix (horizontal)</source>
        <translation>矩阵（横向）</translation>
    </message>
    <message>
        <source>Crisscross</source>
        <translation>交错</translation>
    </message>
    <message>
        <source>Back letterform</source>
        <translation>回字形</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>产品数量大于 200</translation>
    </message>
</context>
<context>
    <name>LongWorkDialog</name>
    <message>
        <source>What is being done</source>
        <translation>正在执行的操作</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>关闭消息</translation>
    </message>
</context>
<context>
    <name>MoveToDialog</name>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>关节</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Move on a straight line</source>
        <translation>沿直线移动</translation>
    </message>
    <message>
        <source>By joints</source>
        <translation>按关节</translation>
    </message>
    <message>
        <source>Move joint by joint</source>
        <translation>按关节移动</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>State of the move</source>
        <translation>移动状态</translation>
    </message>
    <message>
        <source>Share of the way</source>
        <translation>已走路程比例</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Hold to move</source>
        <translation>按住移动</translation>
    </message>
    <message>
        <source>Hold to move the robot to the point</source>
        <translation>按住使机器人移至该点</translation>
    </message>
    <message>
        <source>Move to the point: %1</source>
        <translation>移至点：%1</translation>
    </message>
    <message>
        <source>Move to the point</source>
        <translation>移至点</translation>
    </message>
    <message>
        <source>Target %1</source>
        <translation>目标 %1</translation>
    </message>
    <message>
        <source>Present %1</source>
        <translation>当前 %1</translation>
    </message>
    <message>
        <source>No controller. %1</source>
        <translation>没有控制器。%1</translation>
    </message>
    <message>
        <source>Nobody has taught this point.</source>
        <translation>该点未示教。</translation>
    </message>
    <message>
        <source>Hold the button to move. The way takes %1 s.</source>
        <translation>按住按钮移动。行程需 %1 s。</translation>
    </message>
    <message>
        <source>Hold the button to move.</source>
        <translation>按住按钮移动。</translation>
    </message>
    <message>
        <source>The controller refuses the move: %1.</source>
        <translation>控制器拒绝移动：%1。</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>正在等待控制器。</translation>
    </message>
    <message>
        <source>The robot moves. Let go to stop it.</source>
        <translation>机器人正在移动。松开即停止。</translation>
    </message>
    <message>
        <source>The robot is stopping.</source>
        <translation>机器人正在停止。</translation>
    </message>
    <message>
        <source>Stopped before the point.</source>
        <translation>在到达该点前停止。</translation>
    </message>
    <message>
        <source>Arrived.</source>
        <translation>已到达。</translation>
    </message>
    <message>
        <source>Tool in the pallet&apos;s frame</source>
        <translation>托盘坐标系中的工具</translation>
    </message>
    <message>
        <source>Flange in the pallet&apos;s frame</source>
        <translation>托盘坐标系中的法兰</translation>
    </message>
    <message>
        <source>Tool in the robot&apos;s base</source>
        <translation>机器人基座中的工具</translation>
    </message>
    <message>
        <source>Flange in the robot&apos;s base</source>
        <translation>机器人基座中的法兰</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Why the name is refused</source>
        <translation>名称被拒绝的原因</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>NewPatternDialog</name>
    <message>
        <source>New pattern</source>
        <translation>新建垛型</translation>
    </message>
</context>
<context>
    <name>NodeBinder</name>
    <message>
        <source>%1 to %2 can be entered. The value stays as it was.</source>
        <translation>可输入 %1 至 %2。数值保持不变。</translation>
    </message>
</context>
<context>
    <name>OrderTools</name>
    <message>
        <source>Begin at</source>
        <translation>起始于</translation>
    </message>
    <message>
        <source>Corner at which the order begins</source>
        <translation>顺序起始的角</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>按行</translation>
    </message>
    <message>
        <source>Number row by row from the corner</source>
        <translation>从角开始逐行编号</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>按列</translation>
    </message>
    <message>
        <source>Number column by column from the corner</source>
        <translation>从角开始逐列编号</translation>
    </message>
    <message>
        <source>Outward</source>
        <translation>向外</translation>
    </message>
    <message>
        <source>Number outward from the corner</source>
        <translation>从角向外编号</translation>
    </message>
    <message>
        <source>By tapping</source>
        <translation>点按</translation>
    </message>
    <message>
        <source>Number the products as they are tapped</source>
        <translation>按点按顺序编号</translation>
    </message>
    <message>
        <source>Place the product earlier</source>
        <translation>将产品提前放置</translation>
    </message>
    <message>
        <source>Place the product later</source>
        <translation>将产品推后放置</translation>
    </message>
    <message>
        <source>Propose sides</source>
        <translation>建议方向</translation>
    </message>
    <message>
        <source>Let products come from their open sides</source>
        <translation>让产品从空侧进入</translation>
    </message>
    <message>
        <source>Blocked ways</source>
        <translation>受阻路径</translation>
    </message>
    <message>
        <source>Show the ways of products that hit others</source>
        <translation>显示会碰撞的产品路径</translation>
    </message>
    <message>
        <source>Back to the product placed before</source>
        <translation>回到上一个放置的产品</translation>
    </message>
    <message>
        <source>Product that is being placed</source>
        <translation>正在放置的产品</translation>
    </message>
    <message>
        <source>On to the product placed next</source>
        <translation>转到下一个放置的产品</translation>
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
        <translation>请点按第 %1 个产品，共 %2 个</translation>
    </message>
    <message>
        <source>Walk through the placing</source>
        <translation>逐步查看放置</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1/%2：%3</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>提前</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>推后</translation>
    </message>
</context>
<context>
    <name>PalletFrame</name>
    <message>
        <source>Pallet</source>
        <translation>托盘</translation>
    </message>
    <message>
        <source>Standard size</source>
        <translation>标准尺寸</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>边距</translation>
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
        <translation>隔板</translation>
    </message>
    <message>
        <source>Sheet length</source>
        <translation>隔板长度</translation>
    </message>
    <message>
        <source>Sheet width</source>
        <translation>隔板宽度</translation>
    </message>
    <message>
        <source>Sheet height</source>
        <translation>隔板高度</translation>
    </message>
    <message>
        <source>Sheet weight</source>
        <translation>隔板重量</translation>
    </message>
    <message>
        <source>Place in the cell</source>
        <translation>在工作站中的位置</translation>
    </message>
    <message>
        <source>Pallet place</source>
        <translation>托盘位置</translation>
    </message>
    <message>
        <source>Post height</source>
        <translation>角柱高度</translation>
    </message>
    <message>
        <source>Shared tool</source>
        <translation>共用工具</translation>
    </message>
    <message>
        <source>Use the tool shared by all recipes</source>
        <translation>使用所有配方共用的工具</translation>
    </message>
    <message>
        <source>Corner posts</source>
        <translation>角柱</translation>
    </message>
    <message>
        <source>The pallet has corner posts</source>
        <translation>托盘带有角柱</translation>
    </message>
    <message>
        <source>Shared work object</source>
        <translation>共用工件</translation>
    </message>
    <message>
        <source>Use the work object shared by all recipes</source>
        <translation>使用所有配方共用的工件</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>自定义尺寸</translation>
    </message>
</context>
<context>
    <name>PalletPlaceFrame</name>
    <message>
        <source>Note</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Pallet frame</source>
        <translation>托盘坐标系</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>标定</translation>
    </message>
    <message>
        <source>Shift along X</source>
        <translation>沿 X 偏移</translation>
    </message>
    <message>
        <source>Shift along Y</source>
        <translation>沿 Y 偏移</translation>
    </message>
    <message>
        <source>Where the pallet lies</source>
        <translation>托盘所在位置</translation>
    </message>
    <message>
        <source>Shared pallet frames</source>
        <translation>共用托盘坐标系</translation>
    </message>
    <message>
        <source>Pallets lie from their origin</source>
        <translation>托盘从原点延伸</translation>
    </message>
    <message>
        <source>Length of the taught box</source>
        <translation>示教箱长度</translation>
    </message>
    <message>
        <source>Width of the taught box</source>
        <translation>示教箱宽度</translation>
    </message>
    <message>
        <source>Calibrate by one point</source>
        <translation>单点标定</translation>
    </message>
    <message>
        <source>Three points</source>
        <translation>三点</translation>
    </message>
    <message>
        <source>One point</source>
        <translation>单点</translation>
    </message>
    <message>
        <source>Against the robot&apos;s X</source>
        <translation>与机器人 X 相反</translation>
    </message>
    <message>
        <source>Along the robot&apos;s X</source>
        <translation>沿机器人 X</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>原点</translation>
    </message>
    <message>
        <source>Point on X</source>
        <translation>X 上的点</translation>
    </message>
    <message>
        <source>Point towards Y</source>
        <translation>Y 方向的点</translation>
    </message>
    <message>
        <source>Origin, left</source>
        <translation>原点，左</translation>
    </message>
    <message>
        <source>Origin, right</source>
        <translation>原点，右</translation>
    </message>
    <message>
        <source>Touch the pallet&apos;s origin with the tool: its axes run as the robot&apos;s.</source>
        <translation>用工具触碰托盘原点：其坐标轴与机器人一致。</translation>
    </message>
    <message>
        <source>Touch the points with the tool: the origin, one along the pallet&apos;s length, one across it.</source>
        <translation>用工具触碰各点：原点、沿托盘长度方向一点、横向一点。</translation>
    </message>
    <message>
        <source>Not calibrated: the positions count from the robot&apos;s foot.</source>
        <translation>未标定：位置从机器人底座算起。</translation>
    </message>
    <message>
        <source>Origin at X %1, Y %2, Z %3 mm, turned by %4°.</source>
        <translation>原点 X %1、Y %2、Z %3 mm，转角 %4°。</translation>
    </message>
    <message>
        <source>It comes from the recipe&apos;s tool record.</source>
        <translation>取自配方的工具记录。</translation>
    </message>
    <message>
        <source>The shared work objects are not in use: they have to be calibrated by one point.</source>
        <translation>共用工件未生效：必须用单点标定。</translation>
    </message>
    <message>
        <source>Choose how both pallets lie: they have to lie alike.</source>
        <translation>请选择两个托盘的摆放方式：二者必须一致。</translation>
    </message>
    <message>
        <source>Shared by all recipes on these work objects. Hold a box in the pallet&apos;s inner corner, from which it lies as chosen here, and teach it.</source>
        <translation>由使用这些工件的所有配方共用。将箱子置于托盘内侧角（托盘从该角按此处所选方向延伸），然后示教。</translation>
    </message>
</context>
<context>
    <name>Palx</name>
    <message>
        <source>W-Palletizing</source>
        <translation>W-码垛</translation>
    </message>
</context>
<context>
    <name>ParameterSettingsWizard</name>
    <message>
        <source>Product and pallet</source>
        <translation>产品和托盘</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>托盘</translation>
    </message>
</context>
<context>
    <name>PatternListModel</name>
    <message>
        <source>In %1 layers</source>
        <translation>用于 %1 层</translation>
    </message>
</context>
<context>
    <name>PatternNameDialog</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Letters, digits, &quot;_&quot; and &quot;-&quot;; at most 32.</source>
        <translation>字母、数字、“_”和“-”；最多 32 个。</translation>
    </message>
    <message>
        <source>Clone of the present pattern</source>
        <translation>克隆当前垛型</translation>
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
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Clone of pattern %1</source>
        <translation>克隆垛型 %1</translation>
    </message>
</context>
<context>
    <name>PatternTemplateDialog</name>
    <message>
        <source>Pattern Template</source>
        <translation>垛型模板</translation>
    </message>
    <message>
        <source>Tempalte</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Kind of template</source>
        <translation>模板种类</translation>
    </message>
    <message>
        <source>X Number:</source>
        <translation>X 数量：</translation>
    </message>
    <message>
        <source>Y Number:</source>
        <translation>Y 数量：</translation>
    </message>
    <message>
        <source>Y1 Number:</source>
        <translation>Y1 数量：</translation>
    </message>
    <message>
        <source>Y2 Number:</source>
        <translation>Y2 数量：</translation>
    </message>
    <message>
        <source>X Offset(mm):</source>
        <translation>X 偏移(mm)：</translation>
    </message>
    <message>
        <source>Y Offset(mm):</source>
        <translation>Y 偏移(mm)：</translation>
    </message>
    <message>
        <source>X Space(mm):</source>
        <translation>X 间距(mm)：</translation>
    </message>
    <message>
        <source>Y Space(mm):</source>
        <translation>Y 间距(mm)：</translation>
    </message>
    <message>
        <source>How the template lays products</source>
        <translation>模板的放置方式</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>叠放</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>交叉</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>夹放</translation>
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
        <translation>名称为空！</translation>
    </message>
    <message>
        <source>Pattern name length is greater than 32!</source>
        <translation>垛型名称长度超过 32！</translation>
    </message>
    <message>
        <source>Only letters, digits, &quot;_&quot; and &quot;-&quot; are allowed in a pattern&apos;s name.</source>
        <translation>垛型名称只能包含字母、数字、“_”和“-”。</translation>
    </message>
    <message>
        <source>Name is repeated!</source>
        <translation>名称重复！</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by layer %2.</source>
        <translation>垛型“%1”被第 %2 层使用。</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by the layers %2.</source>
        <translation>垛型“%1”被以下层使用:%2。</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by %2 layers: %3, ...</source>
        <translation>垛型“%1”被 %2 层使用:%3……</translation>
    </message>
</context>
<context>
    <name>PatternsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>垛型平面图</translation>
    </message>
    <message>
        <source>Products of the pattern</source>
        <translation>垛型中的产品</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>x (across)</source>
        <translation>x（横向）</translation>
    </message>
    <message>
        <source>y (along)</source>
        <translation>y（纵向）</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
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
        <translation>垛型 %1 的副本</translation>
    </message>
    <message>
        <source>New name for pattern %1</source>
        <translation>垛型 %1 的新名称</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>产品 %1</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>未选择产品</translation>
    </message>
    <message>
        <source>The recipe was closed.</source>
        <translation>配方已关闭。</translation>
    </message>
    <message>
        <source>Delete pattern</source>
        <translation>删除垛型</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products.</source>
        <translation>一个垛型最多包含 %1 个产品。</translation>
    </message>
    <message>
        <source>Use size</source>
        <translation>采用尺寸</translation>
    </message>
    <message>
        <source>Give every product the size of the recipe&apos;s product</source>
        <translation>将配方产品的尺寸赋给所有产品</translation>
    </message>
    <message>
        <source>Make, rename and delete patterns</source>
        <translation>新建、重命名和删除垛型</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Tools for editing the plan</source>
        <translation>平面图编辑工具</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>顺序</translation>
    </message>
    <message>
        <source>Order and sides of placing</source>
        <translation>放置顺序与方向</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Check of the pattern</source>
        <translation>垛型检查</translation>
    </message>
    <message>
        <source>What is chosen or wrong on the plan</source>
        <translation>平面图上的选择或问题</translation>
    </message>
    <message>
        <source>Show the whole plan</source>
        <translation>显示整个平面图</translation>
    </message>
    <message>
        <source>Figures of the pattern</source>
        <translation>垛型数据</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1（%2 层）</translation>
    </message>
    <message>
        <source>1 product</source>
        <translation>1 个产品</translation>
    </message>
    <message>
        <source>%1 products</source>
        <translation>%1 个产品</translation>
    </message>
    <message>
        <source>This recipe has no pattern yet.</source>
        <translation>该配方还没有垛型。</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>已选 %1 个产品</translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation>检查 %1</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>模板</translation>
    </message>
    <message>
        <source>Add products by a template</source>
        <translation>按模板添加产品</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Fill the pattern by an automatic layout</source>
        <translation>用自动布局填充垛型</translation>
    </message>
    <message>
        <source>Patterns of the recipe</source>
        <translation>配方的垛型</translation>
    </message>
    <message>
        <source>Delete the pattern %1?</source>
        <translation>删除垛型 %1?</translation>
    </message>
</context>
<context>
    <name>PlanarNestingWizard</name>
    <message>
        <source>Patterns</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>Products in a layer</source>
        <translation>一层中的产品</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>进料方向</translation>
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
        <translation>点的状态</translation>
    </message>
    <message>
        <source>Enter the values of the point by hand</source>
        <translation>手动输入点的数值</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Clear the point</source>
        <translation>清除该点</translation>
    </message>
    <message>
        <source>All zero</source>
        <translation>全为零</translation>
    </message>
    <message>
        <source>Not taught</source>
        <translation>未示教</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>已计算</translation>
    </message>
    <message>
        <source>Taught</source>
        <translation>已示教</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>示教</translation>
    </message>
    <message>
        <source>Teach the point where the robot stands</source>
        <translation>以机器人当前位置示教该点</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>移至</translation>
    </message>
    <message>
        <source>Move the robot to the point</source>
        <translation>将机器人移至该点</translation>
    </message>
    <message>
        <source>The controller is not connected: where the robot stands is not known.</source>
        <translation>控制器未连接：机器人位置未知。</translation>
    </message>
    <message>
        <source>The robot is moving. Teach the point when it stands.</source>
        <translation>机器人正在移动。请在其停止后示教。</translation>
    </message>
    <message>
        <source>The controller does not tell where the robot stands.</source>
        <translation>控制器未提供机器人位置。</translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>Enter</source>
        <translation>进入</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>准备</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>接近</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>放置</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>抓取</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>回退</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>产品</translation>
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
        <translation>放置点未示教。</translation>
    </message>
    <message>
        <source>The enter point of the place side is not taught.</source>
        <translation>放置侧的进入点未示教。</translation>
    </message>
    <message>
        <source>The pallet place is neither left nor right, so all place positions will be 0.</source>
        <translation>托盘位置既不是左也不是右，因此所有放置位置都将为 0。</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the left pallet is not taught.</source>
        <translation>左托盘共用工件的原点未示教。</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the right pallet is not taught.</source>
        <translation>右托盘共用工件的原点未示教。</translation>
    </message>
    <message>
        <source>The corner of the product on the conveyor is not taught.</source>
        <translation>输送线上产品的角点未示教。</translation>
    </message>
    <message>
        <source>The pick point is not taught.</source>
        <translation>抓取点未示教。</translation>
    </message>
    <message>
        <source>The enter point of the pick side is not taught.</source>
        <translation>抓取侧的进入点未示教。</translation>
    </message>
    <message>
        <source>The shared work objects are not both calibrated by one point, so the place positions lie around the robot&apos;s foot.</source>
        <translation>共用工件坐标系未都用单点标定，因此放置位置会落在机器人底座周围。</translation>
    </message>
    <message>
        <source>The pallet&apos;s place is not calibrated, so the place positions lie around the robot&apos;s foot.</source>
        <translation>托盘位置未标定，因此放置位置会落在机器人底座周围。</translation>
    </message>
    <message>
        <source>The shared tool is not measured, so the flange is taken for it.</source>
        <translation>共用工具未测量，因此以法兰代替。</translation>
    </message>
    <message>
        <source>The recipe&apos;s tool is not measured, so the flange is taken for it.</source>
        <translation>配方的工具未测量，因此以法兰代替。</translation>
    </message>
    <message>
        <source>The ready height of the place side, %1 mm, is less than the product&apos;s height, %2 mm: what comes straight from above could hit the products beside its place.</source>
        <translation>放置侧的准备高度 %1 mm 小于产品高度 %2 mm：从正上方放下的产品可能碰到旁边的产品。</translation>
    </message>
</context>
<context>
    <name>PointsFrame</name>
    <message>
        <source>Generate points</source>
        <translation>生成点</translation>
    </message>
    <message>
        <source>State of the points</source>
        <translation>点的状态</translation>
    </message>
    <message>
        <source>Layer to show</source>
        <translation>要显示的层</translation>
    </message>
    <message>
        <source>Kind of point to show</source>
        <translation>要显示的点类型</translation>
    </message>
    <message>
        <source>Number of points shown</source>
        <translation>显示的点数</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>复制表格</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>将表格复制到剪贴板</translation>
    </message>
    <message>
        <source>Generated points</source>
        <translation>已生成的点</translation>
    </message>
    <message>
        <source>All layers</source>
        <translation>所有层</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>抓取侧</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>第 %1 层</translation>
    </message>
    <message>
        <source>All points</source>
        <translation>所有点</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>点数：%1</translation>
    </message>
    <message>
        <source>No points have been generated yet.</source>
        <translation>尚未生成点。</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>配方或共用设置已更改：请重新生成点。</translation>
    </message>
    <message>
        <source>The points are up to date.</source>
        <translation>点为最新。</translation>
    </message>
    <message>
        <source>Points copied: %1</source>
        <translation>已复制点数：%1</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>移至</translation>
    </message>
    <message>
        <source>Move the robot to the chosen point</source>
        <translation>将机器人移至所选点</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Result of the check</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>What is wrong with the pattern</source>
        <translation>垛型的问题</translation>
    </message>
    <message>
        <source>Nothing is wrong with the pattern.</source>
        <translation>垛型没有问题。</translation>
    </message>
    <message>
        <source>One thing is wrong. Touch it to choose its products.</source>
        <translation>有一处问题。触摸它可选中相关产品。</translation>
    </message>
    <message>
        <source>%1 things are wrong. Touch one to choose its products.</source>
        <translation>有 %1 处问题。触摸其中一处可选中相关产品。</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Products %1 and %2 overlap by %3 mm.</source>
        <translation>产品 %1 与 %2 重叠 %3 mm。</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm over the pallet.</source>
        <translation>产品 %1 伸出托盘 %2 mm。</translation>
    </message>
    <message>
        <source>%1 of %2 products have another size than the recipe&apos;s product.</source>
        <translation>%2 个产品中有 %1 个的尺寸与配方的产品不同。</translation>
    </message>
    <message>
        <source>Product %1 was stored with a value that cannot be used.</source>
        <translation>产品 %1 存有无法使用的值。</translation>
    </message>
    <message>
        <source>Products %1 and %2 lie in the same place.</source>
        <translation>产品 %1 与 %2 位于同一位置。</translation>
    </message>
    <message>
        <source>Product %1 hits product %2 on its way in, by %3 mm.</source>
        <translation>产品 %1 在进入途中与产品 %2 碰撞 %3 mm。</translation>
    </message>
    <message>
        <source>Products %1 and %2 are %3 mm apart, less than %4 mm.</source>
        <translation>产品 %1 与 %2 相距 %3 mm，小于 %4 mm。</translation>
    </message>
    <message>
        <source>Product %1 has the unknown direction &quot;%2&quot;: it comes from above.</source>
        <translation>产品 %1 的方向“%2”未知：将从上方进入。</translation>
    </message>
    <message>
        <source>The numbers of %1 products do not follow the order of placing.</source>
        <translation>有 %1 个产品的编号与放置顺序不符。</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm into the margin.</source>
        <translation>产品 %1 伸入边距 %2 mm。</translation>
    </message>
    <message>
        <source>There are %1 products; the controller takes at most %2 in a pattern.</source>
        <translation>共有 %1 个产品；控制器每个垛型最多接受 %2 个。</translation>
    </message>
    <message>
        <source>Only the first %1 products are shown.</source>
        <translation>仅显示前 %1 个产品。</translation>
    </message>
</context>
<context>
    <name>ProductFrame</name>
    <message>
        <source>Size and weight</source>
        <translation>尺寸和重量</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>放置方式</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Orientation code</source>
        <translation>朝向代码</translation>
    </message>
    <message>
        <source>Along (dx)</source>
        <translation>纵向 (dx)</translation>
    </message>
    <message>
        <source>Across (dy)</source>
        <translation>横向 (dy)</translation>
    </message>
    <message>
        <source>Lift (dz)</source>
        <translation>抬升 (dz)</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>配方图片</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>配方合计</translation>
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
        <translation>任务</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
</context>
<context>
    <name>ProjectManager</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>返回上一页</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>工程管理</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>State of the project</source>
        <translation>工程状态</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>正在执行的操作</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>工程名称</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>克隆</translation>
    </message>
    <message>
        <source>Copy the chosen project&apos;s files</source>
        <translation>复制所选工程的文件</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
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
        <source>Tasks and their program files</source>
        <translation>任务及其程序文件</translation>
    </message>
    <message>
        <source>Shown program file</source>
        <translation>显示的程序文件</translation>
    </message>
    <message>
        <source>Program text</source>
        <translation>程序文本</translation>
    </message>
    <message>
        <source>Whose variables are shown</source>
        <translation>显示的变量所属</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add a project</source>
        <translation>添加工程</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit the project</source>
        <translation>编辑工程</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove the project</source>
        <translation>删除工程</translation>
    </message>
    <message>
        <source>Set Default</source>
        <translation>设为默认</translation>
    </message>
    <message>
        <source>Load the project when the controller starts</source>
        <translation>控制器启动时加载该工程</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Switch to the project</source>
        <translation>切换到该工程</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新建工程</translation>
    </message>
    <message>
        <source>Edit Project</source>
        <translation>编辑工程</translation>
    </message>
    <message>
        <source>Preparing data...</source>
        <translation>正在准备数据...</translation>
    </message>
    <message>
        <source>Connect the controller first</source>
        <translation>请先连接控制器</translation>
    </message>
    <message>
        <source>No project is current.</source>
        <translation>没有当前工程。</translation>
    </message>
    <message>
        <source>Variables of the current project: %1</source>
        <translation>当前工程的变量：%1</translation>
    </message>
    <message>
        <source>Current, loaded at start-up</source>
        <translation>当前，启动时加载</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Loaded at start-up</source>
        <translation>启动时加载</translation>
    </message>
    <message>
        <source>Not current</source>
        <translation>非当前</translation>
    </message>
    <message>
        <source>Touch a program file to look at it.</source>
        <translation>点按程序文件可查看。</translation>
    </message>
    <message>
        <source>: the file cannot be read</source>
        <translation>：无法读取文件</translation>
    </message>
    <message>
        <source>: empty</source>
        <translation>：空</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>导入工程</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>导出工程</translation>
    </message>
</context>
<context>
    <name>ProjectParamSetupPage</name>
    <message>
        <source>Scheme layout</source>
        <translation>方案布局</translation>
    </message>
    <message>
        <source>Single Line - Left</source>
        <translation>单线 - 左</translation>
    </message>
    <message>
        <source>Single Line - Right</source>
        <translation>单线 - 右</translation>
    </message>
    <message>
        <source>Single Line - Both</source>
        <translation>单线 - 两侧</translation>
    </message>
    <message>
        <source>Double Line - Both</source>
        <translation>双线 - 两侧</translation>
    </message>
    <message>
        <source>Palletizing type</source>
        <translation>码垛类型</translation>
    </message>
    <message>
        <source>Palletizing</source>
        <translation>码垛</translation>
    </message>
    <message>
        <source>Depalletizing</source>
        <translation>拆垛</translation>
    </message>
    <message>
        <source>Type of sucker</source>
        <translation>吸盘类型</translation>
    </message>
    <message>
        <source>Single Suction</source>
        <translation>单吸盘</translation>
    </message>
    <message>
        <source>Double Suction</source>
        <translation>双吸盘</translation>
    </message>
    <message>
        <source>Lift platform</source>
        <translation>升降柱</translation>
    </message>
    <message>
        <source>With Bollard</source>
        <translation>带升降柱</translation>
    </message>
    <message>
        <source>Without Bollard</source>
        <translation>无升降柱</translation>
    </message>
    <message>
        <source>Other accessories</source>
        <translation>其他附件</translation>
    </message>
    <message>
        <source>With Clapboard</source>
        <translation>带隔板</translation>
    </message>
    <message>
        <source>Without Clapboard</source>
        <translation>无隔板</translation>
    </message>
    <message>
        <source>Left Recipe</source>
        <translation>左侧配方</translation>
    </message>
    <message>
        <source>Right Recipe</source>
        <translation>右侧配方</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>The scheme layout and the bollard, which is the lift column, choose the robot programs. The other choices are kept with the project.</source>
        <translation>机器人程序由方案布局和升降柱决定。其他选择随项目保存。</translation>
    </message>
    <message>
        <source>There are no robot programs for this layout: they stay empty, and the robot does not move.</source>
        <translation>此方案布局没有机器人程序：程序为空，机器人不会动作。</translation>
    </message>
</context>
<context>
    <name>RecipeEditing</name>
    <message>
        <source>The margins left no room for a product and were set to 0.</source>
        <translation>边距没有为产品留出空间，已设为 0。</translation>
    </message>
</context>
<context>
    <name>RecipeFates</name>
    <message>
        <source>pick points</source>
        <translation>抓取点</translation>
    </message>
    <message>
        <source>corner posts</source>
        <translation>角柱</translation>
    </message>
    <message>
        <source>pallet side</source>
        <translation>托盘侧</translation>
    </message>
    <message>
        <source>choice of tool</source>
        <translation>工具选择</translation>
    </message>
    <message>
        <source>choice of work object</source>
        <translation>工件选择</translation>
    </message>
    <message>
        <source>automatic layout</source>
        <translation>自动排样</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>Is left out</source>
        <translation>不导入</translation>
    </message>
    <message>
        <source>Skipped: row %1 has the name</source>
        <translation>跳过：第 %1 行已用此名</translation>
    </message>
    <message>
        <source>Skipped: the name is taken</source>
        <translation>跳过：名称已存在</translation>
    </message>
    <message>
        <source>Skipped: row %1 replaces it</source>
        <translation>跳过：由第 %1 行替换</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>新建配方</translation>
    </message>
    <message>
        <source>Row %1 has the name: becomes &quot;%2&quot;</source>
        <translation>第 %1 行已用此名：改为“%2”</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>改名为“%1”</translation>
    </message>
    <message>
        <source>Replaces no. %1 and stands at no. %2</source>
        <translation>替换第 %1 个，位于第 %2 个</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>Usual values for: %1</source>
        <translation>采用默认值：%1</translation>
    </message>
</context>
<context>
    <name>RecipeFrame</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>还有 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecipeMatchModel</name>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>%1 places, %2 layers</source>
        <translation>%1 个位置，%2 层</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>一致</translation>
    </message>
    <message>
        <source>At place %1</source>
        <translation>在第 %1 位</translation>
    </message>
    <message>
        <source>Other points</source>
        <translation>点不同</translation>
    </message>
    <message>
        <source>Missing there</source>
        <translation>控制器中缺少</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>仅在控制器中</translation>
    </message>
</context>
<context>
    <name>RecipeText</name>
    <message>
        <source>The name is empty.</source>
        <translation>名称为空。</translation>
    </message>
    <message>
        <source>The name begins or ends with a blank.</source>
        <translation>名称以空格开头或结尾。</translation>
    </message>
    <message>
        <source>The name has %1 characters; at most %2 are allowed.</source>
        <translation>名称有 %1 个字符，最多允许 %2 个。</translation>
    </message>
    <message>
        <source>The name holds a line break or another control character.</source>
        <translation>名称包含换行符或其他控制字符。</translation>
    </message>
    <message>
        <source>There is a recipe &quot;%1&quot; already.</source>
        <translation>配方“%1”已存在。</translation>
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
        <translation>箱数：%1，层数：%2
产品：%3
托盘：%4</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2</source>
        <translation>箱数：%1，层数：%2</translation>
    </message>
    <message>
        <source>Separator sheets: %1</source>
        <translation>隔板：%1</translation>
    </message>
    <message>
        <source>Height: %1 mm (load %2 mm)</source>
        <translation>高度：%1 mm（货物 %2 mm）</translation>
    </message>
    <message>
        <source>Weight: %1 kg (load %2 kg)</source>
        <translation>重量：%1 kg（货物 %2 kg）</translation>
    </message>
</context>
<context>
    <name>RecipeWizard</name>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>撤销上次编辑</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>重做已撤销的编辑</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel and take the edits back</source>
        <translation>取消并撤回所做编辑</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>返回上一页</translation>
    </message>
    <message>
        <source>Take back all edits?</source>
        <translation>撤回所有编辑？</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1/%2：%3</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
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
        <translation>隔板</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1, %2 of them shown</source>
        <translation>%1，其中显示 %2</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>%1/%2 by %3 mm</source>
        <translation>%1/%2 重叠 %3 mm</translation>
    </message>
    <message>
        <source>Overlap: %1 and %2 more</source>
        <translation>重叠：%1，另有 %2 处</translation>
    </message>
    <message>
        <source>Overlap: %1</source>
        <translation>重叠：%1</translation>
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
        <translation>伸出托盘：%1</translation>
    </message>
    <message>
        <source>Products with missing or unreadable values: %1</source>
        <translation>数值缺失或无法读取的产品：%1</translation>
    </message>
    <message>
        <source>Products with impossible sizes or positions: %1</source>
        <translation>尺寸或位置不可能的产品：%1</translation>
    </message>
    <message>
        <source>Products with an unknown direction: %1</source>
        <translation>方向未知的产品：%1</translation>
    </message>
    <message>
        <source>Products whose number is not their place in the order: %1</source>
        <translation>编号与顺序不符的产品：%1</translation>
    </message>
    <message>
        <source>The product&apos;s size is not valid</source>
        <translation>产品尺寸无效</translation>
    </message>
    <message>
        <source>The pallet&apos;s size is not valid</source>
        <translation>托盘尺寸无效</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>托盘</translation>
    </message>
    <message>
        <source>Load of the layer</source>
        <translation>层货物尺寸</translation>
    </message>
    <message>
        <source>Height over the deck</source>
        <translation>距托盘面高度</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>%1 至 %2 mm</translation>
    </message>
    <message>
        <source>Layers of products</source>
        <translation>产品层数</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>隔板</translation>
    </message>
    <message>
        <source>Height with the pallet</source>
        <translation>含托盘高度</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Weight with the pallet</source>
        <translation>含托盘重量</translation>
    </message>
</context>
<context>
    <name>RunFrame</name>
    <message>
        <source>Why no side is shown</source>
        <translation>为何不显示任何侧</translation>
    </message>
    <message>
        <source>Make a project for these recipes</source>
        <translation>为这些配方创建工程</translation>
    </message>
    <message>
        <source>There is no connection to the controller.</source>
        <translation>未连接控制器。</translation>
    </message>
    <message>
        <source>There are no recipes yet. Make one on the page &quot;Recipes&quot;.</source>
        <translation>还没有配方。请在“配方”页创建。</translation>
    </message>
    <message>
        <source>No robot project is in use. Make one here, or choose one on the page &quot;Projects&quot;.</source>
        <translation>未使用任何机器人工程。请在此创建，或在“工程”页选择。</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>正在等待控制器。</translation>
    </message>
    <message>
        <source>The controller did not take it: %1</source>
        <translation>控制器未接受：%1</translation>
    </message>
    <message>
        <source>The controller holds the recipe &quot;%1&quot; otherwise. Send the recipes first.</source>
        <translation>控制器中的配方“%1”不同。请先发送配方。</translation>
    </message>
    <message>
        <source>Start the left side at</source>
        <translation>左侧开始于</translation>
    </message>
    <message>
        <source>Start the right side at</source>
        <translation>右侧开始于</translation>
    </message>
    <message>
        <source>Recipe &quot;%1&quot;</source>
        <translation>配方“%1”</translation>
    </message>
    <message>
        <source>The left side broke off</source>
        <translation>左侧中断</translation>
    </message>
    <message>
        <source>The right side broke off</source>
        <translation>右侧中断</translation>
    </message>
    <message>
        <source>Clear the gripper, look at the pallet, and confirm the box to go on with. It is proposed by the counters and by what lies there.</source>
        <translation>请清空抓手，查看托盘，并确认从哪一箱继续。建议值来自计数和托盘上的实际情况。</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the left side to 0? Layer and piece stay as they are.</source>
        <translation>将左侧的托盘数和节拍清零？层和件保持不变。</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the right side to 0? Layer and piece stay as they are.</source>
        <translation>将右侧的托盘数和节拍清零？层和件保持不变。</translation>
    </message>
    <message>
        <source>Reset counters</source>
        <translation>计数清零</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>从此处开始</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>RunSideCard</name>
    <message>
        <source>State of the side</source>
        <translation>该侧状态</translation>
    </message>
    <message>
        <source>Recipe of the side</source>
        <translation>该侧配方</translation>
    </message>
    <message>
        <source>What lies on the pallet</source>
        <translation>托盘上的货物</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>箱数</translation>
    </message>
    <message>
        <source>Boxes on the pallet</source>
        <translation>托盘上的箱数</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>件</translation>
    </message>
    <message>
        <source>Piece of the layer</source>
        <translation>层内件号</translation>
    </message>
    <message>
        <source>Pallets</source>
        <translation>托盘</translation>
    </message>
    <message>
        <source>Finished pallets</source>
        <translation>完成托盘</translation>
    </message>
    <message>
        <source>Cycle time</source>
        <translation>节拍</translation>
    </message>
    <message>
        <source>Per hour</source>
        <translation>每小时</translation>
    </message>
    <message>
        <source>Boxes per hour</source>
        <translation>每小时箱数</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Enable or disable the side</source>
        <translation>启用或停用该侧</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>开始于</translation>
    </message>
    <message>
        <source>Start at a layer and piece</source>
        <translation>从某层某件开始</translation>
    </message>
    <message>
        <source>Reset the counters</source>
        <translation>计数清零</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>无控制器</translation>
    </message>
    <message>
        <source>Not in this project</source>
        <translation>不在此工程中</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Broken off: confirm layer and piece</source>
        <translation>已中断：请确认层和件</translation>
    </message>
    <message>
        <source>Pallet full: exchange and confirm it</source>
        <translation>托盘已满：请更换并确认</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Enabled, no program runs</source>
        <translation>已启用，程序未运行</translation>
    </message>
    <message>
        <source>Robot is moved by hand</source>
        <translation>机器人手动移动中</translation>
    </message>
    <message>
        <source>Stacking</source>
        <translation>码垛中</translation>
    </message>
    <message>
        <source>Enabled, waits for its turn</source>
        <translation>已启用，等待轮到</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
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
        <translation>停用</translation>
    </message>
</context>
<context>
    <name>SeriesText</name>
    <message>
        <source>There is nothing to lay.</source>
        <translation>没有可放置的内容。</translation>
    </message>
    <message>
        <source>This recipe has no pattern &quot;%1&quot;.</source>
        <translation>该配方没有垛型“%1”。</translation>
    </message>
    <message>
        <source>That makes %1 layers; a recipe holds at most %2.</source>
        <translation>将有 %1 层；一个配方最多 %2 层。</translation>
    </message>
</context>
<context>
    <name>StackFrame</name>
    <message>
        <source>Layer of the plan</source>
        <translation>平面图的层</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>该层平面图</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>层的问题</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>配方合计</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>第 %1 层</translation>
    </message>
</context>
<context>
    <name>StackHomePage</name>
    <message>
        <source>Recipes</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search recipes</source>
        <translation>搜索配方</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>配方名称</translation>
    </message>
    <message>
        <source>Description of the recipe</source>
        <translation>配方说明</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>配方图片</translation>
    </message>
    <message>
        <source>Summary of the recipe</source>
        <translation>配方概要</translation>
    </message>
    <message>
        <source>Layers of the recipe</source>
        <translation>配方的层</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>There are no recipes yet. Touch &quot;New&quot; to make one.</source>
        <translation>还没有配方。点击“新建”即可创建。</translation>
    </message>
    <message>
        <source>No recipe is called or described so.</source>
        <translation>没有名称或说明与之相符的配方。</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>新建配方</translation>
    </message>
    <message>
        <source>Recipe %1</source>
        <translation>配方 %1</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>%1 的副本</translation>
    </message>
    <message>
        <source>New name for %1</source>
        <translation>%1 的新名称</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>删除配方</translation>
    </message>
    <message>
        <source>Delete the recipe &quot;%1&quot;?</source>
        <translation>删除配方“%1”？</translation>
    </message>
    <message>
        <source>The recipe &quot;%1&quot; was deleted.</source>
        <translation>配方“%1”已删除。</translation>
    </message>
    <message>
        <source>The recipe is back as &quot;%1&quot;; its name was taken.</source>
        <translation>配方已恢复为“%1”，因为原名称已被占用。</translation>
    </message>
    <message>
        <source>The recipe cannot be made: the list of recipes is missing.</source>
        <translation>无法创建配方：缺少配方列表。</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>Robot projects</source>
        <translation>机器人工程</translation>
    </message>
    <message>
        <source>Recipes on the controller</source>
        <translation>控制器中的配方</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>导入配方</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>导出配方</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>配方或共用设置已更改：请重新生成点。</translation>
    </message>
</context>
<context>
    <name>StackPanel</name>
    <message>
        <source>The stack from above a corner; drag to turn it</source>
        <translation>从角上方看的垛；拖动可旋转</translation>
    </message>
    <message>
        <source>Turn the stack anticlockwise</source>
        <translation>逆时针旋转垛</translation>
    </message>
    <message>
        <source>Turn the stack clockwise</source>
        <translation>顺时针旋转垛</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>What is laid</source>
        <translation>已放置内容</translation>
    </message>
    <message>
        <source>Take the last layer off</source>
        <translation>取下最后一层</translation>
    </message>
    <message>
        <source>Take the last box off</source>
        <translation>取下最后一箱</translation>
    </message>
    <message>
        <source>How much is laid</source>
        <translation>已放置数量</translation>
    </message>
    <message>
        <source>Lay the next box</source>
        <translation>放置下一箱</translation>
    </message>
    <message>
        <source>Lay the next layer</source>
        <translation>放置下一层</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>%1: layer %2, sheet</source>
        <translation>%1：第 %2 层，隔板</translation>
    </message>
    <message>
        <source>%1: layer %2, box %3</source>
        <translation>%1：第 %2 层，第 %3 箱</translation>
    </message>
</context>
<context>
    <name>StackPatternScene</name>
    <message>
        <source>Separator sheet, its size is not set</source>
        <translation>隔板，未设置尺寸</translation>
    </message>
    <message>
        <source>Separator sheet %1 x %2 x %3 mm</source>
        <translation>隔板 %1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>This recipe has no layers</source>
        <translation>此配方没有层</translation>
    </message>
    <message>
        <source>There is no layer %1; the recipe has %2</source>
        <translation>没有第 %1 层；配方共有 %2 层</translation>
    </message>
    <message>
        <source>The recipe has no pattern &quot;%1&quot;</source>
        <translation>配方中没有垛型“%1”</translation>
    </message>
    <message>
        <source>Empty layer: it is left out</source>
        <translation>空层：将被跳过</translation>
    </message>
    <message>
        <source>No pattern is chosen for this layer: the stack ends below it</source>
        <translation>该层未选择垛型：垛在其下方结束</translation>
    </message>
    <message>
        <source>Not placed: the stack ends at a layer below</source>
        <translation>不放置：垛在下面的层结束</translation>
    </message>
    <message>
        <source>The pattern &quot;%1&quot; is empty</source>
        <translation>垛型“%1”为空</translation>
    </message>
</context>
<context>
    <name>StackSetupPage</name>
    <message>
        <source>Recipes</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Back to the recipes</source>
        <translation>返回配方</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>配方</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>撤销上一次编辑</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>重做已撤销的编辑</translation>
    </message>
    <message>
        <source>No recipe is open. Choose one above or go to the recipes.</source>
        <translation>没有打开的配方。请在上方选择，或转到配方列表。</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>托盘</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>垛型</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Waypoints</source>
        <translation>路径点</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Wizard</source>
        <translation>向导</translation>
    </message>
    <message>
        <source>Go through a part of the recipe page by page</source>
        <translation>逐页设置配方的一部分</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>进料方向</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>标定</translation>
    </message>
    <message>
        <source>Product and pallet</source>
        <translation>产品和托盘</translation>
    </message>
    <message>
        <source>This recipe is being stacked. Changes take effect when you leave the page, on the pallet that was begun, too.</source>
        <translation>此配方正在码垛。离开此页时更改生效，也作用于已开始的托盘。</translation>
    </message>
</context>
<context>
    <name>StartDialog</name>
    <message>
        <source>What is asked</source>
        <translation>询问内容</translation>
    </message>
    <message>
        <source>What lies on the pallet then</source>
        <translation>此时托盘上的货物</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Layer down</source>
        <translation>下一层</translation>
    </message>
    <message>
        <source>Layer up</source>
        <translation>上一层</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>件</translation>
    </message>
    <message>
        <source>Piece down</source>
        <translation>件减</translation>
    </message>
    <message>
        <source>Piece up</source>
        <translation>件加</translation>
    </message>
    <message>
        <source>Products that lie there</source>
        <translation>已放置的产品</translation>
    </message>
    <message>
        <source>The gripper is empty</source>
        <translation>抓手为空</translation>
    </message>
    <message>
        <source>Why it cannot begin there</source>
        <translation>为何不能从此处开始</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>从此处开始</translation>
    </message>
    <message>
        <source>Take the product out of the gripper and confirm that it is empty.</source>
        <translation>请取下抓手上的产品并确认其为空。</translation>
    </message>
    <message>
        <source>%1 of %2 boxes lie on the pallet.</source>
        <translation>托盘上有 %1 / %2 箱。</translation>
    </message>
</context>
<context>
    <name>StatusText</name>
    <message>
        <source>Moved by x %1, y %2 mm</source>
        <translation>移动 x %1，y %2 mm</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>未选择产品</translation>
    </message>
    <message>
        <source>%1 products, %2 x %3 mm</source>
        <translation>%1 个产品，%2 x %3 mm</translation>
    </message>
    <message>
        <source>Product %1: x %2, y %3 mm, %4°</source>
        <translation>产品 %1：x %2，y %3 mm，%4°</translation>
    </message>
    <message>
        <source>(1 of %1) %2</source>
        <translation>（1/%1）%2</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>Invalid X number</source>
        <translation>X 数量无效</translation>
    </message>
    <message>
        <source>Invalid Y number</source>
        <translation>Y 数量无效</translation>
    </message>
    <message>
        <source>Invalid Y1 or Y2 number</source>
        <translation>Y1 或 Y2 数量无效</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>产品数量大于 200</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s x edge</source>
        <translation>产品超出托盘 x 边缘</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s y edge</source>
        <translation>产品超出托盘 y 边缘</translation>
    </message>
</context>
<context>
    <name>TitleText</name>
    <message>
        <source>%1 mm, 1 px = %2 mm</source>
        <translation>%1 mm，1 px = %2 mm</translation>
    </message>
    <message>
        <source>overlap</source>
        <translation>重叠</translation>
    </message>
    <message>
        <source>over the pallet</source>
        <translation>伸出托盘</translation>
    </message>
    <message>
        <source>label side</source>
        <translation>标签面</translation>
    </message>
    <message>
        <source>approach, to scale</source>
        <translation>接近方向，按比例</translation>
    </message>
    <message>
        <source>layer below</source>
        <translation>下层</translation>
    </message>
</context>
<context>
    <name>ToolFrame</name>
    <message>
        <source>Note</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Tool, seen from the flange</source>
        <translation>相对于法兰的工具</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>质量</translation>
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
        <translation>两次触碰</translation>
    </message>
    <message>
        <source>Touch a fixed tip with the tool and teach the first touch. Turn the hand about its own axis by 90° or more, touch the tip again and teach the second one.</source>
        <translation>用工具触碰固定尖点并示教第一次触碰。将手腕绕自身轴转动至少 90°，再次触碰尖点并示教第二次。</translation>
    </message>
    <message>
        <source>Measure X and Y</source>
        <translation>测量 X 和 Y</translation>
    </message>
    <message>
        <source>Touch 1</source>
        <translation>触碰 1</translation>
    </message>
    <message>
        <source>Touch 2</source>
        <translation>触碰 2</translation>
    </message>
    <message>
        <source>The shared tool &quot;%1&quot;, used by all recipes with &quot;Shared tool&quot;.</source>
        <translation>共用工具“%1”，用于所有选用“共用工具”的配方。</translation>
    </message>
    <message>
        <source>The tool of this recipe alone.</source>
        <translation>仅用于此配方的工具。</translation>
    </message>
    <message>
        <source>Teach both touches first.</source>
        <translation>请先示教两次触碰。</translation>
    </message>
</context>
<context>
    <name>ToolText</name>
    <message>
        <source>Turn the hand by at least %1 degrees about its own axis between the two touches.</source>
        <translation>两次触碰之间请将手腕绕自身轴转动至少 %1 度。</translation>
    </message>
    <message>
        <source>The two touches are %1 mm apart in the direction of the hand: the tip moved or was not met.</source>
        <translation>两次触碰沿手腕方向相差 %1 mm：尖点移动了或未触到。</translation>
    </message>
</context>
<context>
    <name>TransferText</name>
    <message>
        <source>Import success!</source>
        <translation>导入成功！</translation>
    </message>
    <message>
        <source>%1: the disk did not take everything. Do not pull it out; export again.</source>
        <translation>%1：磁盘未写完。请勿拔出，并重新导出。</translation>
    </message>
    <message>
        <source>Export success to %1!</source>
        <translation>已成功导出到 %1！</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>已撤销上次导入。</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>WaypointAdjustWizard</name>
    <message>
        <source>Waypoints</source>
        <translation>路径点</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>标定</translation>
    </message>
    <message>
        <source>Heights and taught points</source>
        <translation>高度与示教点</translation>
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
        <translation>放置侧</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>抓取侧</translation>
    </message>
    <message>
        <source>Offsets</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Heights over the place point</source>
        <translation>距放置点的高度</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>准备</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>接近</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>回退</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>Heights over the pick point</source>
        <translation>距抓取点的高度</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>左托盘</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>进入 X</translation>
    </message>
    <message>
        <source>Enter Y</source>
        <translation>进入 Y</translation>
    </message>
    <message>
        <source>Enter height</source>
        <translation>进入高度</translation>
    </message>
    <message>
        <source>Ready height</source>
        <translation>准备高度</translation>
    </message>
    <message>
        <source>Approach height</source>
        <translation>接近高度</translation>
    </message>
    <message>
        <source>Retract height</source>
        <translation>回退高度</translation>
    </message>
    <message>
        <source>Exit height</source>
        <translation>离开高度</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>右托盘</translation>
    </message>
    <message>
        <source>Place point</source>
        <translation>放置点</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>进入点</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>抓取点</translation>
    </message>
    <message>
        <source>The shared work object gives the place points; the heights come from the shared offsets.</source>
        <translation>放置点由共用工件给出；高度取自共用偏移。</translation>
    </message>
    <message>
        <source>The first product of the first layer is placed at the place point&apos;s height; positions come from the pattern.</source>
        <translation>第一层的第一个产品按放置点的高度放置；位置取自垛型。</translation>
    </message>
    <message>
        <source>The shared tool gives the pick points and the approach height.</source>
        <translation>抓取点和接近高度由共用工具给出。</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>机器人在抓取点抓取每个产品。</translation>
    </message>
    <message>
        <source>Shared by all recipes on this work object.</source>
        <translation>由使用此工件的所有配方共用。</translation>
    </message>
    <message>
        <source>Kept with this recipe for the robot program; the points follow the shared offsets of the work object calibrated by one point.</source>
        <translation>随此配方保存，供机器人程序使用；点遵循单点标定工件的共用偏移。</translation>
    </message>
</context>
<context>
    <name>XFileModel</name>
    <message>
        <source>Folder %1</source>
        <translation>文件夹 %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>palx</name>
    <message>
        <source>The way points have regenerated!</source>
        <translation>路径点已重新生成！</translation>
    </message>
    <message>
        <source>it holds something else</source>
        <translation>其内容不符</translation>
    </message>
    <message>
        <source>%1 cannot be read and was kept as %2: %3</source>
        <translation>%1 无法读取，已保存为 %2：%3</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>无法创建文件夹</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The panel keeps the data; make room or give access, then change them once more</source>
        <translation>%1 无法写入：%2。数据保留在面板中；请腾出空间或授予权限，然后再更改一次</translation>
    </message>
    <message>
        <source>Product para is invalid</source>
        <translation>产品参数无效</translation>
    </message>
    <message>
        <source>Product length is invalid and is setted to default</source>
        <translation>产品长度无效，已设为默认值</translation>
    </message>
    <message>
        <source>Product width is invalid and is setted to default</source>
        <translation>产品宽度无效，已设为默认值</translation>
    </message>
    <message>
        <source>Pallet para is invalid</source>
        <translation>托盘参数无效</translation>
    </message>
    <message>
        <source>Pallet length is invalid and is setted to default</source>
        <translation>托盘长度无效，已设为默认值</translation>
    </message>
    <message>
        <source>Pallet width is invalid and is setted to default</source>
        <translation>托盘宽度无效，已设为默认值</translation>
    </message>
    <message>
        <source>Pallet&apos;length is less than product&apos;length</source>
        <translation>托盘长度小于产品长度</translation>
    </message>
    <message>
        <source>Pallet&apos;width is less than product&apos;width</source>
        <translation>托盘宽度小于产品宽度</translation>
    </message>
    <message>
        <source>The project has no such variable: %1</source>
        <translation>工程中没有此变量：%1</translation>
    </message>
</context>
<context>
    <name>palx::ControllerRecipes</name>
    <message>
        <source>Its answer is no list of recipes.</source>
        <translation>其应答不是配方列表。</translation>
    </message>
    <message>
        <source>The controller does not tell which recipes it holds: %1</source>
        <translation>控制器未说明其持有的配方：%1</translation>
    </message>
</context>
<context>
    <name>palx::HeldMove</name>
    <message>
        <source>The move could not be sent to the controller.</source>
        <translation>无法将移动发送到控制器。</translation>
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
        <translation>该文件夹已不存在。</translation>
    </message>
    <message>
        <source>The disk is write-protected. Nothing can be saved on it.</source>
        <translation>磁盘写保护，无法保存。</translation>
    </message>
    <message>
        <source>This folder is write-protected.</source>
        <translation>该文件夹写保护。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>已有同名文件夹。</translation>
    </message>
    <message>
        <source>There is a file of that name.</source>
        <translation>已有同名文件。</translation>
    </message>
</context>
<context>
    <name>palx::MediumFolder</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>无法读取文件夹。</translation>
    </message>
    <message>
        <source>Only %1 entries of the folder are shown.</source>
        <translation>只显示文件夹中的 %1 项。</translation>
    </message>
</context>
<context>
    <name>palx::MediumNames</name>
    <message>
        <source>This disk cannot keep a name with %1.</source>
        <translation>此磁盘不支持含 %1 的名称。</translation>
    </message>
    <message>
        <source>This disk cannot keep a name that ends with a dot or a blank.</source>
        <translation>此磁盘不支持以点或空格结尾的名称。</translation>
    </message>
    <message>
        <source>A PC cannot open a file named %1.</source>
        <translation>电脑无法打开名为 %1 的文件。</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 characters.</source>
        <translation>名称过长：%1 / %2 个字符。</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 bytes.</source>
        <translation>名称过长：%1 / %2 字节。</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>文件需要名称。</translation>
    </message>
    <message>
        <source>A name does not begin with a dot: the file would be hidden.</source>
        <translation>名称不能以点开头：文件会被隐藏。</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>名称中含有不可见字符。</translation>
    </message>
</context>
<context>
    <name>palx::PatternEditing</name>
    <message>
        <source>Choose at least three products to space them evenly.</source>
        <translation>均匀分布至少需选择三个产品。</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products; there would be %2.</source>
        <translation>一个垛型最多 %1 个产品；这样会有 %2 个。</translation>
    </message>
</context>
<context>
    <name>palx::ProjectText</name>
    <message>
        <source>The robot is not known yet: connect the controller first</source>
        <translation>尚不知道机器人：请先连接控制器</translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation>无法创建路径：%1</translation>
    </message>
    <message>
        <source>Remove folder %1 failed</source>
        <translation>删除文件夹 %1 失败</translation>
    </message>
    <message>
        <source>Try to add invalid project name</source>
        <translation>工程名称无效</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>工程已存在</translation>
    </message>
    <message>
        <source>Are you sure to create and switch to new project: %1?</source>
        <translation>确定创建并切换到新工程：%1？</translation>
    </message>
    <message>
        <source>Failed to clone project from: %1</source>
        <translation>克隆工程失败：%1</translation>
    </message>
    <message>
        <source>Cannot rename to an existing project</source>
        <translation>不能重命名为已有工程</translation>
    </message>
    <message>
        <source>Are you sure to update and switch to project %1?</source>
        <translation>确定更新并切换到工程 %1？</translation>
    </message>
    <message>
        <source>Cannot remove empty project</source>
        <translation>不能删除空工程</translation>
    </message>
    <message>
        <source>Are you sure to delete project %1?</source>
        <translation>确定删除工程 %1？</translation>
    </message>
    <message>
        <source>Project %1 removed</source>
        <translation>工程 %1 已删除</translation>
    </message>
    <message>
        <source>Empty project</source>
        <translation>空工程</translation>
    </message>
    <message>
        <source>Are you sure to switch to project %1?</source>
        <translation>确定切换到工程 %1？</translation>
    </message>
    <message>
        <source>Reload project %1</source>
        <translation>重新加载工程 %1</translation>
    </message>
    <message>
        <source>The controller did not take the start-up project</source>
        <translation>控制器未接受启动工程</translation>
    </message>
    <message>
        <source>Auto load project is set to null!</source>
        <translation>自动加载工程已清空！</translation>
    </message>
    <message>
        <source>Set %1 to auto load project success!</source>
        <translation>已将 %1 设为自动加载工程！</translation>
    </message>
    <message>
        <source>File %1 already exists!</source>
        <translation>文件 %1 已存在！</translation>
    </message>
    <message>
        <source>Cannot create task folder: %1</source>
        <translation>无法创建任务文件夹：%1</translation>
    </message>
    <message>
        <source>Cannot read program template: %1</source>
        <translation>无法读取程序模板：%1</translation>
    </message>
    <message>
        <source>Cannot write to file: %1</source>
        <translation>无法写入文件：%1</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>工程管理</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Main Function</source>
        <translation>主函数</translation>
    </message>
    <message>
        <source>Back Home</source>
        <translation>返回原点</translation>
    </message>
    <message>
        <source>Init</source>
        <translation>初始化</translation>
    </message>
    <message>
        <source>Left Stack</source>
        <translation>左垛</translation>
    </message>
    <message>
        <source>Right Stack</source>
        <translation>右垛</translation>
    </message>
    <message>
        <source>Helper Function</source>
        <translation>辅助函数</translation>
    </message>
    <message>
        <source>Conveyor belt inspection</source>
        <translation>输送线检测</translation>
    </message>
    <message>
        <source>Palletizing status detection</source>
        <translation>码垛状态检测</translation>
    </message>
    <message>
        <source>Program - Estop - Collision</source>
        <translation>程序 - 急停 - 碰撞</translation>
    </message>
    <message>
        <source>Anomaly detection</source>
        <translation>异常检测</translation>
    </message>
    <message>
        <source>Lifting column status detection</source>
        <translation>升降柱状态检测</translation>
    </message>
    <message>
        <source>Enable left-side stacking</source>
        <translation>启用左侧码垛</translation>
    </message>
    <message>
        <source>Enable right-side stacking</source>
        <translation>启用右侧码垛</translation>
    </message>
    <message>
        <source>Left side recipe index</source>
        <translation>左侧配方序号</translation>
    </message>
    <message>
        <source>Left side pallet count</source>
        <translation>左侧托盘计数</translation>
    </message>
    <message>
        <source>Left side pallet total count</source>
        <translation>左侧托盘总计数</translation>
    </message>
    <message>
        <source>Left side current layer</source>
        <translation>左侧当前层</translation>
    </message>
    <message>
        <source>Left side current layer count</source>
        <translation>左侧当前层计数</translation>
    </message>
    <message>
        <source>Left side total pallets</source>
        <translation>左侧托盘总数</translation>
    </message>
    <message>
        <source>Left side total piled count</source>
        <translation>左侧码垛总数</translation>
    </message>
    <message>
        <source>Left side cycle time</source>
        <translation>左侧节拍时间</translation>
    </message>
    <message>
        <source>Left side box height</source>
        <translation>左侧箱高</translation>
    </message>
    <message>
        <source>Right side recipe index</source>
        <translation>右侧配方序号</translation>
    </message>
    <message>
        <source>Right side pallet count</source>
        <translation>右侧托盘计数</translation>
    </message>
    <message>
        <source>Right side pallet total count</source>
        <translation>右侧托盘总计数</translation>
    </message>
    <message>
        <source>Right side current layer</source>
        <translation>右侧当前层</translation>
    </message>
    <message>
        <source>Right side current layer count</source>
        <translation>右侧当前层计数</translation>
    </message>
    <message>
        <source>Right side total pallets</source>
        <translation>右侧托盘总数</translation>
    </message>
    <message>
        <source>Right side total piled count</source>
        <translation>右侧码垛总数</translation>
    </message>
    <message>
        <source>Right side cycle time</source>
        <translation>右侧节拍时间</translation>
    </message>
    <message>
        <source>Right side box height</source>
        <translation>右侧箱高</translation>
    </message>
    <message>
        <source>Left: 1, Right: 2</source>
        <translation>左：1，右：2</translation>
    </message>
    <message>
        <source>Left full flag</source>
        <translation>左满标志</translation>
    </message>
    <message>
        <source>Right full flag</source>
        <translation>右满标志</translation>
    </message>
    <message>
        <source>Lifting column state, 1 up, 0 down</source>
        <translation>升降柱状态，1 上，0 下</translation>
    </message>
    <message>
        <source>Using lifting column</source>
        <translation>正在使用升降柱</translation>
    </message>
    <message>
        <source>Stacking maximum height</source>
        <translation>最大码垛高度</translation>
    </message>
    <message>
        <source>Maximum height reachable by the robot in the stacking scene</source>
        <translation>码垛场景中机器人可达最大高度</translation>
    </message>
    <message>
        <source>Gripping materials</source>
        <translation>正在抓取物料</translation>
    </message>
    <message>
        <source>StandBy Point Margin</source>
        <translation>待机点余量</translation>
    </message>
    <message>
        <source>Lift height</source>
        <translation>升降高度</translation>
    </message>
    <message>
        <source>calculate time</source>
        <translation>计时</translation>
    </message>
    <message>
        <source>box height</source>
        <translation>箱高</translation>
    </message>
    <message>
        <source>current pos</source>
        <translation>当前位置</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; %2</source>
        <translation>条目“%1”%2</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>已加密</translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>是链接</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>既不是文件也不是文件夹</translation>
    </message>
    <message>
        <source>is called a file and a folder</source>
        <translation>既被称为文件又被称为文件夹</translation>
    </message>
    <message>
        <source>is a folder with a content of its own</source>
        <translation>是带有自身内容的文件夹</translation>
    </message>
    <message>
        <source>is packed in a way that is not known here</source>
        <translation>的压缩方式未知</translation>
    </message>
    <message>
        <source>it has %1 entries; no project has more than %2</source>
        <translation>它有 %1 个条目；工程不会超过 %2 个</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>its list of entries is damaged</source>
        <translation>其条目列表已损坏</translation>
    </message>
    <message>
        <source>has a name that is read in two ways</source>
        <translation>的名称有两种读法</translation>
    </message>
    <message>
        <source>makes it larger than %1 MB, which no project is</source>
        <translation>使其超过 %1 MB，工程不会这么大</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>正在检查 %1</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>it is no whole zip archive</source>
        <translation>它不是完整的 zip 压缩包</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>has an absolute name</source>
        <translation>使用绝对路径</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>指向文件夹之外</translation>
    </message>
    <message>
        <source>has a backslash in its name</source>
        <translation>的名称含有反斜杠</translation>
    </message>
    <message>
        <source>has a name that is no path</source>
        <translation>的名称不是路径</translation>
    </message>
    <message>
        <source>has a name that is no text in UTF-8</source>
        <translation>的名称不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>has a control character in its name</source>
        <translation>的名称含有控制字符</translation>
    </message>
    <message>
        <source>has too long a name</source>
        <translation>的名称过长</translation>
    </message>
    <message>
        <source>needs a folder where there is another entry</source>
        <translation>需要文件夹，但该处已有其他条目</translation>
    </message>
    <message>
        <source>is there twice</source>
        <translation>出现两次</translation>
    </message>
    <message>
        <source>makes the project too large for an archive</source>
        <translation>使工程过大，无法压缩</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>没有文件夹 %1</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>正在打包 %1</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>无法写入压缩包：%1</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>正在解压</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; was not unpacked as it is listed</source>
        <translation>条目“%1”的解压结果与列表不符</translation>
    </message>
    <message>
        <source>more was unpacked than it lists</source>
        <translation>解压内容多于列表</translation>
    </message>
    <message>
        <source>there is no room for %1 MB</source>
        <translation>没有 %1 MB 的空间</translation>
    </message>
    <message>
        <source>it cannot be unpacked to %1</source>
        <translation>无法解压到 %1</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>配方未被接受：%1</translation>
    </message>
    <message>
        <source>The templates cannot be put back</source>
        <translation>无法恢复模板</translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>正在写入磁盘</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>没有这个工程</translation>
    </message>
    <message>
        <source>Export %1 failed!</source>
        <translation>导出 %1 失败！</translation>
    </message>
    <message>
        <source>Export Project templates failed!</source>
        <translation>导出工程模板失败！</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>导出路径不能为空！</translation>
    </message>
    <message>
        <source>please select item!</source>
        <translation>请选择项目！</translation>
    </message>
    <message>
        <source>Export the project &quot;mod&quot; and the templates one after the other: both become &quot;mod.zip&quot;</source>
        <translation>请分别导出工程“mod”和模板：两者都会成为“mod.zip”</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>Export to %1 success!</source>
        <translation>已成功导出到 %1！</translation>
    </message>
    <message>
        <source>the permissions of its files cannot be set</source>
        <translation>无法设置其文件的权限</translation>
    </message>
    <message>
        <source>there is no room beside the robot&apos;s folder</source>
        <translation>机器人文件夹旁没有空间</translation>
    </message>
    <message>
        <source>Delete temp file failed!</source>
        <translation>删除临时文件失败！</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>无法创建 %1</translation>
    </message>
    <message>
        <source>%1 import success!</source>
        <translation>%1 导入成功！</translation>
    </message>
    <message>
        <source>Import %1 failed!</source>
        <translation>导入 %1 失败！</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a project</source>
        <translation>“%1”不能用作工程名</translation>
    </message>
    <message>
        <source>What was imported may be lost when the power fails: %1</source>
        <translation>断电时导入的内容可能丢失：%1</translation>
    </message>
    <message>
        <source>%1 holds no list of variables</source>
        <translation>%1 不含变量列表</translation>
    </message>
    <message>
        <source>&quot;var.xml&quot;: the value of %1 is none that a project can have</source>
        <translation>“var.xml”：%1 的值不是工程可用的值</translation>
    </message>
    <message>
        <source>Import project templates failed!</source>
        <translation>导入工程模板失败！</translation>
    </message>
    <message>
        <source>Reset project templates success!</source>
        <translation>工程模板重置成功！</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>无法替换 %1</translation>
    </message>
    <message>
        <source>Import project templates success!</source>
        <translation>工程模板导入成功！</translation>
    </message>
    <message>
        <source>Project templates import success!</source>
        <translation>工程模板导入完成！</translation>
    </message>
    <message>
        <source>the disk takes its archive and another of this export for one</source>
        <translation>磁盘无法区分它的压缩包与本次导出的另一个压缩包</translation>
    </message>
    <message>
        <source>templates reset</source>
        <translation>模板已重置</translation>
    </message>
    <message>
        <source>program templates</source>
        <translation>程序模板</translation>
    </message>
    <message>
        <source>The controller is away: the variables of %1 are looked at when it is back and the project is reloaded</source>
        <translation>控制器未连接：恢复连接并重新加载项目后才检查 %1 的变量</translation>
    </message>
    <message>
        <source>it holds no project</source>
        <translation>其中没有项目</translation>
    </message>
    <message>
        <source>it holds no program templates</source>
        <translation>其中没有程序模板</translation>
    </message>
</context>
<context>
    <name>palx::RunText</name>
    <message>
        <source>The recipe has no points yet. Generate them on the page &quot;Points&quot;.</source>
        <translation>配方还没有点。请在“点”页生成。</translation>
    </message>
    <message>
        <source>The side is in use. Disable it and let the robot end its pallet, or stop the program.</source>
        <translation>该侧正在使用。请停用并等机器人完成托盘，或停止程序。</translation>
    </message>
    <message>
        <source>There is no recipe for this side.</source>
        <translation>该侧没有配方。</translation>
    </message>
    <message>
        <source>The controller names a recipe that is not here.</source>
        <translation>控制器指定的配方在此不存在。</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed after the points were made. Generate them again on the page &quot;Points&quot;.</source>
        <translation>生成点之后配方或共用设置已更改。请在“点”页重新生成。</translation>
    </message>
    <message>
        <source>left pallet</source>
        <translation>左侧托盘</translation>
    </message>
    <message>
        <source>right pallet</source>
        <translation>右侧托盘</translation>
    </message>
    <message>
        <source>Stop the program first!</source>
        <translation>请先停止程序！</translation>
    </message>
    <message>
        <source>There is no recipe for the %1!</source>
        <translation>%1没有配方！</translation>
    </message>
    <message>
        <source>Clear the gripper first!</source>
        <translation>请先清空抓手！</translation>
    </message>
    <message>
        <source>Products of the recipe &quot;%1&quot; lie on the %2!</source>
        <translation>%2上有配方“%1”的产品！</translation>
    </message>
    <message>
        <source>The %1 is full; replace it first!</source>
        <translation>%1已满；请先更换！</translation>
    </message>
    <message>
        <source>The recipe has layers 1 to %1!</source>
        <translation>配方有第 1 至 %1 层！</translation>
    </message>
    <message>
        <source>Layer %1 has pieces 1 to %2!</source>
        <translation>第 %1 层有第 1 至 %2 件！</translation>
    </message>
    <message>
        <source>Confirm layer and piece of the %1 first!</source>
        <translation>请先确认%1的层和件！</translation>
    </message>
    <message>
        <source>The lift column was stopped; go on with the start button of the cell!</source>
        <translation>升降柱已停止；请用单元的启动按钮继续！</translation>
    </message>
    <message>
        <source>The lift column has no power; press the stop and then the start button of the cell!</source>
        <translation>升降柱没有动力；请先按单元的停止按钮，再按启动按钮！</translation>
    </message>
    <message>
        <source>The pallet is not as counted; stop the program and confirm the piece!</source>
        <translation>托盘与计数不符；请停止程序并确认件号！</translation>
    </message>
    <message>
        <source>The product was lost; stop the program and confirm the piece!</source>
        <translation>产品已丢失；请停止程序并确认件号！</translation>
    </message>
    <message>
        <source>Recipes would get other places, and the programs that run would take other ones. Stop them first!</source>
        <translation>配方的位置会改变，正在运行的程序会取到别的配方。请先停止程序！</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;. Disable the side and let its pallet end, or stop the program!</source>
        <translation>%1正在使用配方“%2”。请停用该侧并等托盘完成，或停止程序！</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;, which stands behind this one: another would take its place. Disable the side and let its pallet end, or stop the program!</source>
        <translation>%1正在使用排在此配方之后的“%2”：别的配方会占用其位置。请停用该侧并等托盘完成，或停止程序！</translation>
    </message>
    <message>
        <source>The products on the %1 are not of the recipe&apos;s size. Take them off, or change the recipe back!</source>
        <translation>%1上的产品尺寸与配方不符。请取下产品或改回配方！</translation>
    </message>
    <message>
        <source>The recipe lays no products. Put some into the patterns of its layers.</source>
        <translation>配方没有放置产品。请在其各层的垛型中添加产品。</translation>
    </message>
</context>
<context>
    <name>xFileDialog</name>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>Used space</source>
        <translation>已用空间</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上一级</translation>
    </message>
    <message>
        <source>One folder up</source>
        <translation>上一级文件夹</translation>
    </message>
    <message>
        <source>Shown folder</source>
        <translation>当前文件夹</translation>
    </message>
    <message>
        <source>Kind of the files</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Files and folders</source>
        <translation>文件和文件夹</translation>
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
        <source>Plug in a USB disk.</source>
        <translation>请插入 U 盘。</translation>
    </message>
    <message>
        <source>What is chosen, or why nothing can be</source>
        <translation>所选内容，或不能选择的原因</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Use what is chosen</source>
        <translation>使用所选项</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>使用此文件夹</translation>
    </message>
    <message>
        <source>The disk %1 was pulled out.</source>
        <translation>磁盘 %1 已拔出。</translation>
    </message>
    <message>
        <source>%1 free of %2</source>
        <translation>可用 %1，共 %2</translation>
    </message>
    <message>
        <source>Its files are shown as soon as it is ready.</source>
        <translation>准备好后即显示其文件。</translation>
    </message>
    <message>
        <source>The disk %1 is plugged in, but cannot be read. Format it on a PC (FAT32).</source>
        <translation>磁盘 %1 已插入但无法读取。请在电脑上格式化（FAT32）。</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>无法创建文件夹。</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>将替换 %1</translation>
    </message>
    <message>
        <source>Touch a file.</source>
        <translation>请触摸一个文件。</translation>
    </message>
    <message>
        <source>There is no such file in this folder.</source>
        <translation>此文件夹中没有这个文件。</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>替换该文件？</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 已存在。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>It is safe to pull out the disk %1 now.</source>
        <translation>现在可以安全拔出磁盘 %1。</translation>
    </message>
    <message>
        <source>Do not pull out the disk %1 yet: it has not taken everything.</source>
        <translation>请勿拔出磁盘 %1：尚未写完。</translation>
    </message>
    <message>
        <source>%1 is on no disk that is plugged in</source>
        <translation>%1 不在任何已插入的磁盘上</translation>
    </message>
</context>
</TS>
