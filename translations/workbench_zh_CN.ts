<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Workbench::AngleFields</name>
    <message>
        <source>degrees</source>
        <translation>度</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>弧度</translation>
    </message>
    <message>
        <source>Right-handed, about the fixed axes of the basic system (extrinsic): first about x, then about y, then about z.</source>
        <translation>右手系，绕基准坐标系的固定轴（外旋）：先绕 x 轴，再绕 y 轴，最后绕 z 轴。</translation>
    </message>
    <message>
        <source>Rotation about x, y, z, &amp;in</source>
        <translation>绕 x、y、z 旋转，单位(&amp;I)</translation>
    </message>
    <message>
        <source>Rotation about x</source>
        <translation>绕 x 旋转</translation>
    </message>
    <message>
        <source>Rotation about y</source>
        <translation>绕 y 旋转</translation>
    </message>
    <message>
        <source>Rotation about z</source>
        <translation>绕 z 旋转</translation>
    </message>
</context>
<context>
    <name>Workbench::CheckProfile</name>
    <message>
        <source>%1 (built in)</source>
        <translation>%1（内置）</translation>
    </message>
    <message>
        <source>The profile %1 cannot be used: %2</source>
        <translation>无法使用配置 %1：%2</translation>
    </message>
</context>
<context>
    <name>Workbench::CheckTable</name>
    <message>
        <source>at least %1</source>
        <translation>不小于 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>不大于 %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Profile...</source>
        <translation>配置...</translation>
    </message>
    <message>
        <source>Checks against the thresholds of a file, as &apos;meshquality check --profile&apos; does</source>
        <translation>按文件中的阈值检查，与“meshquality check --profile”相同</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>Checks against the thresholds that are built into the programs</source>
        <translation>按程序内置的阈值检查</translation>
    </message>
    <message>
        <source>Select outside</source>
        <translation>选中超限单元</translation>
    </message>
    <message>
        <source>Selects the elements outside of the marked thresholds, or of all when none is marked</source>
        <translation>选中超出所标记阈值的单元；未标记时为超出任一阈值的单元</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>指标</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>超限</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>配置：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::CommandLine</name>
    <message>
        <source>Materials, coordinate systems and meshes of a simulation on the desktop.

  workbench [OPTION...] [FILE]
      Opens a project (.wbproj), a mesh (.msh, version 2 in ASCII) or a geometry (.geo, .step, .brep, .iges).
  workbench --help
  workbench --version

  --language L  the language of the window, this time: English or Chinese

Options of every Qt program, such as -platform, are taken as well. The mesher is the program gmsh, or the one
that the environment variable WORKBENCH_GMSH names.

Exit codes: 0 ok, 2 wrong call, 3 FILE cannot be read
</source>
        <translation>在桌面上准备仿真的材料、坐标系和网格。

  workbench [OPTION...] [FILE]
      打开工程（.wbproj）、网格（.msh，第 2 版 ASCII）或几何（.geo、.step、.brep、.iges）。
  workbench --help
  workbench --version

  --language L  本次窗口的语言：English 或 Chinese

也接受所有 Qt 程序的选项，例如 -platform。网格划分程序为 gmsh，
或环境变量 WORKBENCH_GMSH 指定的程序。

退出码：0 正常，2 调用有误，3 FILE 无法读取
</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有这个文件</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
    <message>
        <source>you may not read it</source>
        <translation>没有读取权限</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>未知选项“%1”</translation>
    </message>
    <message>
        <source>more than one file</source>
        <translation>给出了多个文件</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateDialog</name>
    <message>
        <source>New coordinate system</source>
        <translation>新建坐标系</translation>
    </message>
    <message>
        <source>Coordinate system %1</source>
        <translation>坐标系 %1</translation>
    </message>
    <message>
        <source>%1 (itself)</source>
        <translation>%1（自身）</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1（缺失）</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Relative to</source>
        <translation>相对于(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Coordinates given as</source>
        <translation>坐标类型(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Origin x, y, z, in units of the model</source>
        <translation>原点 x、y、z，以模型单位计(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Keep the place: convert the values when another system is chosen</source>
        <translation>保持位置：选择其他坐标系时换算数值(&amp;K)</translation>
    </message>
    <message>
        <source>Origin x</source>
        <translation>原点 x</translation>
    </message>
    <message>
        <source>Origin y</source>
        <translation>原点 y</translation>
    </message>
    <message>
        <source>Origin z</source>
        <translation>原点 z</translation>
    </message>
    <message>
        <source>The project&apos;s file of coordinate systems is damaged, and no copy of it can be kept beside it: is there space, and permission?</source>
        <translation>工程的坐标系文件已损坏，且无法在其旁保留副本：是否有空间和权限？</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateDock</name>
    <message>
        <source>its basic system %1 is missing; placed as if global</source>
        <translation>缺少其基准坐标系 %1；按全局坐标系放置</translation>
    </message>
    <message>
        <source>its basic system %1 leads back to it; placed as if global</source>
        <translation>其基准坐标系 %1 又回到它自身；按全局坐标系放置</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>New below...</source>
        <translation>在其下新建...</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>修改...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>删除...</translation>
    </message>
    <message>
        <source>Make current</source>
        <translation>设为当前</translation>
    </message>
    <message>
        <source>Show axes</source>
        <translation>显示坐标轴</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateName</name>
    <message>
        <source>Cartesian</source>
        <translation>直角坐标</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>柱坐标</translation>
    </message>
    <message>
        <source>Spherical</source>
        <translation>球坐标</translation>
    </message>
    <message>
        <source>A coordinate system needs a name.</source>
        <translation>坐标系需要名称。</translation>
    </message>
    <message>
        <source>Coordinate system %1 is already called &apos;%2&apos;.</source>
        <translation>坐标系 %1 已经叫作“%2”。</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateSystems</name>
    <message>
        <source>There is no coordinate system %1.</source>
        <translation>没有坐标系 %1。</translation>
    </message>
    <message>
        <source>A coordinate system cannot be relative to itself.</source>
        <translation>坐标系不能相对于自身。</translation>
    </message>
    <message>
        <source>%1 is itself relative to this system, directly or through others: that would be a loop.</source>
        <translation>%1 本身直接或间接相对于此坐标系：会形成循环。</translation>
    </message>
    <message>
        <source>The library builds a system anew only where its identifier is above 0.</source>
        <translation>只有标识大于 0 的坐标系才能重建。</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateValues</name>
    <message>
        <source>In the basic system</source>
        <translation>在基准坐标系中</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>Origin x</source>
        <translation>原点 x</translation>
    </message>
    <message>
        <source>Origin y</source>
        <translation>原点 y</translation>
    </message>
    <message>
        <source>Origin z</source>
        <translation>原点 z</translation>
    </message>
    <message>
        <source>Rotation x [deg]</source>
        <translation>旋转 x [度]</translation>
    </message>
    <message>
        <source>Rotation y [deg]</source>
        <translation>旋转 y [度]</translation>
    </message>
    <message>
        <source>Rotation z [deg]</source>
        <translation>旋转 z [度]</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
</context>
<context>
    <name>Workbench::DeleteQuestion</name>
    <message>
        <source>%1: projects keep the copies that they have of it.</source>
        <translation>%1：各项目保留已有的副本。</translation>
    </message>
    <message>
        <source>%1: no volume uses it.</source>
        <translation>%1：没有体使用它。</translation>
    </message>
    <message>
        <source>%1 is used by: %2. They become free space.</source>
        <translation>%1 正被以下体使用：%2。它们将变为自由空间。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>Delete these materials?</source>
        <translation>删除这些材料？</translation>
    </message>
</context>
<context>
    <name>Workbench::GeometryManager</name>
    <message>
        <source>surface group %1</source>
        <translation>面组 %1</translation>
    </message>
    <message>
        <source>face %1</source>
        <translation>面 %1</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>体 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::HistogramView</name>
    <message>
        <source>no finite value</source>
        <translation>没有有限值</translation>
    </message>
    <message>
        <source>up to %1 elements</source>
        <translation>最多 %1 个单元</translation>
    </message>
    <message>
        <source>%1 to %2: %3 elements</source>
        <translation>%1 至 %2：%3 个单元</translation>
    </message>
    <message>
        <source>A click selects them, dragging those of several bars; hold Ctrl to add.
By keys: arrows mark a bar, with Shift several; Space or Enter selects.</source>
        <translation>单击选中这些单元，拖动选中多个柱；按住 Ctrl 追加。
键盘：方向键标记一个柱，加 Shift 标记多个；空格或回车选中。</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
</context>
<context>
    <name>Workbench::ImportDialog</name>
    <message>
        <source>new</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>refused: reserved name</source>
        <translation>拒绝：保留名称</translation>
    </message>
    <message>
        <source>Copy from: %1, to: %2</source>
        <translation>复制自：%1，到：%2</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>此处</translation>
    </message>
    <message>
        <source>There</source>
        <translation>彼处</translation>
    </message>
    <message>
        <source>%1 new, %2 same, %3 changed, %4 refused. Checked materials are copied; a changed one replaces the material of its name.</source>
        <translation>%1 个新增，%2 个相同，%3 个已更改，%4 个拒绝。勾选的材料将被复制；已更改的材料替换同名材料。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>refused: material %1 there is called &apos;%2&apos;, too</source>
        <translation>拒绝：那里的材料 %1 也叫“%2”</translation>
    </message>
</context>
<context>
    <name>Workbench::ImportRefusal</name>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; would both replace &apos;%3&apos;: only one can.</source>
        <translation>“%1”和“%2”都会替换“%3”：只能有一个。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be copied: &apos;%2&apos; there would be called &apos;%3&apos;, too.</source>
        <translation>无法复制“%1”：那里的“%2”也会叫“%3”。</translation>
    </message>
</context>
<context>
    <name>Workbench::KeptSettings</name>
    <message>
        <source>Layout, language, favourites and recent projects are forgotten when the program ends: %1 cannot be written.</source>
        <translation>窗口布局、语言、收藏和最近的工程在程序结束后不会保留：无法写入 %1。</translation>
    </message>
</context>
<context>
    <name>Workbench::KernelChoice</name>
    <message>
        <source>The mesh that is shown (%1)</source>
        <translation>所显示的网格（%1）</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>The mesh whose figures are shown</source>
        <translation>显示其数据的网格</translation>
    </message>
</context>
<context>
    <name>Workbench::LibraryPane</name>
    <message>
        <source>Search names and properties</source>
        <translation>搜索名称和属性</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>新建...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>编辑...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>删除...</translation>
    </message>
    <message>
        <source>Copy to the project...</source>
        <translation>复制到项目...</translation>
    </message>
    <message>
        <source>Copy to the software library...</source>
        <translation>复制到软件材料库...</translation>
    </message>
    <message>
        <source>Compares the selected materials, or all when none is selected, before it copies.</source>
        <translation>复制之前先比较所选材料；未选择时比较全部材料。</translation>
    </message>
    <message>
        <source>Search in: %1</source>
        <translation>搜索：%1</translation>
    </message>
    <message>
        <source>Only favourites</source>
        <translation>仅收藏</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Marks the selected materials with a star, or takes the stars away</source>
        <translation>为所选材料加上或去掉星标</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>前处理工作台</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New project</source>
        <translation>新建工程(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>最近的工程</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo selection</source>
        <translation>撤销选择(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo selection</source>
        <translation>重做选择(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear selection</source>
        <translation>清除选择(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>Select (hold Ctrl for several)</source>
        <translation>选择（按住 Ctrl 可多选）</translation>
    </message>
    <message>
        <source>Rotate (hold Alt)</source>
        <translation>旋转（按住 Alt）</translation>
    </message>
    <message>
        <source>Translate (hold Shift)</source>
        <translation>平移（按住 Shift）</translation>
    </message>
    <message>
        <source>Draw a measuring line</source>
        <translation>画测量线</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>体</translation>
    </message>
    <message>
        <source>Faces</source>
        <translation>面</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>Element groups</source>
        <translation>单元组</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>适应窗口(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Isometric</source>
        <translation>等轴测(&amp;I)</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>前视(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>后视(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左视(&amp;L)</translation>
    </message>
    <message>
        <source>Ri&amp;ght</source>
        <translation>右视(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>俯视(&amp;T)</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>仰视(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Edges</source>
        <translation>显示边(&amp;E)</translation>
    </message>
    <message>
        <source>Tra&amp;nsparent</source>
        <translation>透明(&amp;N)</translation>
    </message>
    <message>
        <source>Save &amp;picture…</source>
        <translation>保存图片(&amp;P)…</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>&amp;Mesh</source>
        <translation>网格(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Mesh the geometry…</source>
        <translation>为几何生成网格(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Prepares geometry, materials and meshes for simulation.
Version %1</source>
        <translation>为数值仿真准备几何、材料和网格。
版本 %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Projects (*.%1)</source>
        <translation>工程 (*.%1)</translation>
    </message>
    <message>
        <source>All that can be opened (*.%1 *.msh *.geo *.step *.stp *.brep *.iges *.igs)</source>
        <translation>所有可打开的文件 (*.%1 *.msh *.geo *.step *.stp *.brep *.iges *.igs)</translation>
    </message>
    <message>
        <source>Meshes (*.msh)</source>
        <translation>网格 (*.msh)</translation>
    </message>
    <message>
        <source>Geometry (*.geo *.step *.stp *.brep *.iges *.igs)</source>
        <translation>几何 (*.geo *.step *.stp *.brep *.iges *.igs)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>保存工程</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>Save the changes to “%1” first?</source>
        <translation>是否先保存对“%1”的更改？</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>保存视图图片</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg)</source>
        <translation>图片 (*.png *.jpg)</translation>
    </message>
    <message>
        <source>Coordinate axes</source>
        <translation>坐标轴</translation>
    </message>
    <message>
        <source>&amp;Name the selection…</source>
        <translation>命名选择(&amp;N)…</translation>
    </message>
    <message>
        <source>Name the selection</source>
        <translation>命名选择</translation>
    </message>
    <message>
        <source>Name of the set or group:</source>
        <translation>集合或组的名称：</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
    <message>
        <source>Saving “%1”</source>
        <translation>正在保存“%1”</translation>
    </message>
    <message>
        <source>Meshing is under way</source>
        <translation>正在划分网格</translation>
    </message>
    <message>
        <source>The geometry is being meshed. This stops it.</source>
        <translation>几何正在划分网格，此操作将中止它。</translation>
    </message>
    <message>
        <source>One file is opened at a time: of %1 only %2.</source>
        <translation>一次只能打开一个文件：%1 个中只打开 %2。</translation>
    </message>
    <message>
        <source>Go on?</source>
        <translation>是否继续？</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialDialog</name>
    <message>
        <source>New material - %1</source>
        <translation>新建材料 - %1</translation>
    </message>
    <message>
        <source>Material %1 - %2</source>
        <translation>材料 %1 - %2</translation>
    </message>
    <message>
        <source>Property %1</source>
        <translation>属性 %1</translation>
    </message>
    <message>
        <source>&amp;English name</source>
        <translation>英文名称(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Chinese name</source>
        <translation>中文名称(&amp;C)</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>%1, component %2: %3</source>
        <translation>%1，分量 %2：%3</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialDock</name>
    <message>
        <source>Materials</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Assign to the volumes</source>
        <translation>赋给所选体</translation>
    </message>
    <message>
        <source>Make free space</source>
        <translation>设为自由空间</translation>
    </message>
    <message>
        <source>Select volumes to give them a material.</source>
        <translation>选择体以赋予材料。</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>已选：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialLibraries</name>
    <message>
        <source>The change is not in the library&apos;s file yet. %1</source>
        <translation>更改尚未写入材料库文件。%1</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialName</name>
    <message>
        <source>A material needs an English and a Chinese name.</source>
        <translation>材料需要英文名称和中文名称。</translation>
    </message>
    <message>
        <source>Material %1 of the same library is already called &apos;%2&apos;.</source>
        <translation>同一材料库中的材料 %1 已经叫作“%2”。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is reserved: it names the default material, which fills every volume without a material.</source>
        <translation>“%1”是保留名称：它表示默认材料，填充所有未赋材料的体。</translation>
    </message>
    <message>
        <source>Project library</source>
        <translation>项目材料库</translation>
    </message>
    <message>
        <source>Software library</source>
        <translation>软件材料库</translation>
    </message>
    <message>
        <source>free space</source>
        <translation>自由空间</translation>
    </message>
    <message>
        <source>material %1, which is missing</source>
        <translation>材料 %1，已缺失</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialNumber</name>
    <message>
        <source>A new material would get number %1, which volume &apos;%2&apos; has from a material that is missing. Give the volumes with this number another material, or make them free space, first.</source>
        <translation>新材料会得到编号 %1，而体“%2”仍引用该编号的缺失材料。请先为使用此编号的体指定其他材料，或设为自由空间。</translation>
    </message>
    <message>
        <source>A new material would get number %1 and replace &apos;%2&apos;: the numbers of this library have gaps. To make room, copy &apos;%2&apos; to the other library and delete it here; afterwards copy it back and assign it again.</source>
        <translation>新材料会得到编号 %1 并替换“%2”：此材料库的编号不连续。要腾出位置，请将“%2”复制到另一材料库并在此删除；之后再复制回来并重新赋予。</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialTable</name>
    <message>
        <source>ID</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>English name</source>
        <translation>英文名称</translation>
    </message>
    <message>
        <source>Chinese name</source>
        <translation>中文名称</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>this project</source>
        <translation>本工程</translation>
    </message>
    <message>
        <source>software library, %1 (%2), edited</source>
        <translation>软件库，%1 (%2)，已编辑</translation>
    </message>
    <message>
        <source>software library, %1 (%2)</source>
        <translation>软件库，%1 (%2)</translation>
    </message>
    <message>
        <source>a favourite</source>
        <translation>已收藏</translation>
    </message>
    <message>
        <source>no favourite</source>
        <translation>未收藏</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>来源</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshLoader</name>
    <message>
        <source>it cannot be copied to %1</source>
        <translation>无法复制到 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshManager</name>
    <message>
        <source>volume %1</source>
        <translation>体 %1</translation>
    </message>
    <message>
        <source>The mesh %1 cannot be opened: %2</source>
        <translation>无法打开网格 %1：%2</translation>
    </message>
</context>
<context>
    <name>Workbench::MesherProcess</name>
    <message>
        <source>The mesher is still at work. Wait until it is done, or cancel it.</source>
        <translation>网格生成器仍在运行。请等待其完成，或将其取消。</translation>
    </message>
    <message>
        <source>The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment variable WORKBENCH_GMSH name the program.</source>
        <translation>未找到网格生成器 gmsh。请安装（Debian：apt install gmsh），或用环境变量 WORKBENCH_GMSH 指定该程序。</translation>
    </message>
    <message>
        <source>The mesher could not be started: %1</source>
        <translation>无法启动网格生成器：%1</translation>
    </message>
    <message>
        <source>The mesher crashed on %1. The mesh that was open stays.</source>
        <translation>网格生成器处理 %1 时崩溃。已打开的网格保持不变。</translation>
    </message>
    <message>
        <source>The mesher could not mesh %1 (exit code %2): %3</source>
        <translation>网格生成器无法为 %1 生成网格（退出码 %2）：%3</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>未给出原因</translation>
    </message>
    <message>
        <source>The mesh of %1 could not be moved to %2.</source>
        <translation>无法将 %1 的网格移动到 %2。</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshingDialog</name>
    <message>
        <source>Mesh the geometry</source>
        <translation>为几何生成网格</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>生成网格</translation>
    </message>
    <message>
        <source>as the geometry says</source>
        <translation>按几何文件的设置</translation>
    </message>
    <message>
        <source>In the unit of the geometry, with a point as decimal separator, for example 2.5e-3</source>
        <translation>以几何的长度单位计，小数点用“.”，例如 2.5e-3</translation>
    </message>
    <message>
        <source>Geometry:</source>
        <translation>几何：</translation>
    </message>
    <message>
        <source>Largest element size:</source>
        <translation>最大单元尺寸：</translation>
    </message>
    <message>
        <source>A size is a positive number with a point, such as 0.01.</source>
        <translation>尺寸应为正数，小数点用“.”，例如 0.01。</translation>
    </message>
</context>
<context>
    <name>Workbench::MessagePanel</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Mesher output</source>
        <translation>网格生成器输出</translation>
    </message>
</context>
<context>
    <name>Workbench::NamedSelections</name>
    <message>
        <source>A name must not be empty.</source>
        <translation>名称不能为空。</translation>
    </message>
    <message>
        <source>The name “%1” is taken.</source>
        <translation>名称“%1”已被占用。</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>组 %1</translation>
    </message>
    <message>
        <source>set %1</source>
        <translation>集合 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::NumberField</name>
    <message>
        <source>A number is missing.</source>
        <translation>缺少数字。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has a comma. Write the decimal mark as a point, and thousands without a mark.</source>
        <translation>“%1”含有逗号。小数点请写作句点，千位不要分隔。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a decimal number such as 0.5 or 1e-12.</source>
        <translation>“%1”不是十进制数，例如 0.5 或 1e-12。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a finite number.</source>
        <translation>“%1”不是有限数。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too large: the largest number is about 1.8e308.</source>
        <translation>“%1”太大：最大的数约为 1.8e308。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; would become 0: the smallest number above it is about 5e-324.</source>
        <translation>“%1”会变成 0：大于 0 的最小数约为 5e-324。</translation>
    </message>
</context>
<context>
    <name>Workbench::Project</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>The project %1 cannot be saved: %2</source>
        <translation>无法保存工程 %1：%2</translation>
    </message>
    <message>
        <source>its working files could not be written</source>
        <translation>无法写入其工作文件</translation>
    </message>
    <message>
        <source>The geometry %1 cannot be opened: %2</source>
        <translation>无法打开几何 %1：%2</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>No working directory can be made in %1: %2</source>
        <translation>无法在 %1 中创建工作目录：%2</translation>
    </message>
    <message>
        <source>is there space, and permission?</source>
        <translation>请检查磁盘空间和权限</translation>
    </message>
    <message>
        <source>no working directory can be made</source>
        <translation>无法创建工作目录</translation>
    </message>
    <message>
        <source>The project %1 cannot be opened: %2</source>
        <translation>无法打开工程 %1：%2</translation>
    </message>
    <message>
        <source>The materials of the project %1 cannot be read: %2</source>
        <translation>无法读取工程 %1 的材料：%2</translation>
    </message>
    <message>
        <source>they were saved with another key, or are damaged. The file is kept in the project</source>
        <translation>材料是用另一密钥保存的，或已损坏。该文件保留在工程中</translation>
    </message>
    <message>
        <source>another one is being opened</source>
        <translation>正在打开另一个工程</translation>
    </message>
    <message>
        <source>No working directory can be made in %1. The project&apos;s working files lie in %2, where other programs may remove them.</source>
        <translation>无法在 %1 中创建工作目录。项目的工作文件位于 %2，其他程序可能会将其删除。</translation>
    </message>
    <message>
        <source>The coordinate systems of the project %1 cannot be read: %2</source>
        <translation>无法读取工程 %1 的坐标系：%2</translation>
    </message>
    <message>
        <source>their file is damaged. It is kept in the project</source>
        <translation>其文件已损坏。该文件保留在工程中</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectArchive</name>
    <message>
        <source>the working files could not be read</source>
        <translation>无法读取工作文件</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>it is no project file, or it is damaged</source>
        <translation>不是工程文件，或文件已损坏</translation>
    </message>
    <message>
        <source>there is not enough space for its content</source>
        <translation>空间不足，无法存放其内容</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>its content could not be written: %1</source>
        <translation>无法写入其内容：%1</translation>
    </message>
    <message>
        <source>the file could not be written: %1</source>
        <translation>无法写入文件：%1</translation>
    </message>
    <message>
        <source>you may not read it</source>
        <translation>没有读取权限</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectFiles</name>
    <message>
        <source>it is an archive, but no project</source>
        <translation>是压缩包，但不是工程</translation>
    </message>
    <message>
        <source>it was saved by a newer version of the program</source>
        <translation>由更新版本的程序保存</translation>
    </message>
    <message>
        <source>its description of geometry or mesh is damaged</source>
        <translation>其几何或网格的描述已损坏</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>文件已损坏</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectTree</name>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>%1 triangles</source>
        <translation>%1 个三角形</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>体</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 个单元</translation>
    </message>
    <message>
        <source>Meshes</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>used by %1</source>
        <translation>用于 %1</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局</translation>
    </message>
    <message>
        <source>current</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Show only this</source>
        <translation>仅显示此项</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重命名…</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>新名称：</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>集合</translation>
    </message>
    <message>
        <source>%1 members</source>
        <translation>%1 个成员</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>未读取</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>Workbench::PropertyEditor</name>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>unit X; source of the values; conditions</source>
        <translation>unit X; 数值来源; 条件</translation>
    </message>
    <message>
        <source>set; in the default library: differs between directions</source>
        <translation>置位；在默认材料库中表示各方向不同</translation>
    </message>
    <message>
        <source>not known: begin the remark with &apos;unit X&apos;</source>
        <translation>未知：请以“unit X”开始备注</translation>
    </message>
    <message>
        <source>The material &amp;has this property</source>
        <translation>材料具有此属性(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quantity</source>
        <translation>物理量(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>类别(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>标签(&amp;L)</translation>
    </message>
    <message>
        <source>Co&amp;mponents</source>
        <translation>分量(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Remark</source>
        <translation>备注(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Flag</source>
        <translation>标志(&amp;F)</translation>
    </message>
    <message>
        <source>Component %1</source>
        <translation>分量 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::PropertyKind</name>
    <message>
        <source>relative permittivity</source>
        <translation>相对介电常数</translation>
    </message>
    <message>
        <source>relative permeability</source>
        <translation>相对磁导率</translation>
    </message>
    <message>
        <source>electric conductivity</source>
        <translation>电导率</translation>
    </message>
    <message>
        <source>thermal conductivity</source>
        <translation>热导率</translation>
    </message>
    <message>
        <source>mass density</source>
        <translation>质量密度</translation>
    </message>
</context>
<context>
    <name>Workbench::PropertyTable</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>from (x, y, z)</source>
        <translation>起点 (x, y, z)</translation>
    </message>
    <message>
        <source>to (x, y, z)</source>
        <translation>终点 (x, y, z)</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>体</translation>
    </message>
    <message>
        <source>number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>physical group</source>
        <translation>物理组</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>面</translation>
    </message>
    <message>
        <source>face</source>
        <translation>面</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>position (x, y, z)</source>
        <translation>位置 (x, y, z)</translation>
    </message>
    <message>
        <source>elements</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>element</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>centre (x, y, z)</source>
        <translation>中心 (x, y, z)</translation>
    </message>
    <message>
        <source>group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>mesh</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>geometry</source>
        <translation>几何</translation>
    </message>
    <message>
        <source>selected items</source>
        <translation>已选项目</translation>
    </message>
</context>
<context>
    <name>Workbench::QualityDock</name>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Colour by face</source>
        <translation>按面着色</translation>
    </message>
    <message>
        <source>By what the mesh is coloured</source>
        <translation>网格的着色依据</translation>
    </message>
    <message>
        <source>Worst elements</source>
        <translation>最差单元</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>No mesh</source>
        <translation>没有网格</translation>
    </message>
    <message>
        <source>%1 of %2 elements</source>
        <translation>%1，共 %2 个单元</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Not finite</source>
        <translation>非有限值</translation>
    </message>
    <message>
        <source>Inverted / flat</source>
        <translation>反转 / 扁平</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>指标</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Check: %1</source>
        <translation>检查：%1</translation>
    </message>
</context>
<context>
    <name>Workbench::RegionTable</name>
    <message>
        <source>Region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>单元数</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Not finite</source>
        <translation>非有限值</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>扁平</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>区域</translation>
    </message>
</context>
<context>
    <name>Workbench::RemovalQuestion</name>
    <message>
        <source>No other system is relative to it.</source>
        <translation>没有其他坐标系相对于它。</translation>
    </message>
    <message>
        <source>These are relative to it and go with it: %1.</source>
        <translation>以下坐标系相对于它，将一并删除：%1。</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>坐标系</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>删除 %1？</translation>
    </message>
</context>
<context>
    <name>Workbench::ScoreChart</name>
    <message>
        <source>Last scores</source>
        <translation>最近的评分</translation>
    </message>
</context>
<context>
    <name>Workbench::ScoreHistory</name>
    <message>
        <source>The mesh has no score: it could not be copied to %1, where the predictor reads.</source>
        <translation>网格没有评分：无法将其复制到评分程序读取的位置 %1。</translation>
    </message>
    <message>
        <source>The last score is not that of this mesh: it could not be copied to %1, where the predictor reads, or another program has written there.</source>
        <translation>最后的评分不属于此网格：无法将其复制到评分程序读取的位置 %1，或另一个程序写入了该位置。</translation>
    </message>
    <message>
        <source>The mesh has no score: the quality model %1 cannot be used: %2</source>
        <translation>网格没有评分：质量模型 %1 无法使用：%2</translation>
    </message>
</context>
<context>
    <name>Workbench::ScoreText</name>
    <message>
        <source>The score means nothing, because the mean of a metric is no finite number.</source>
        <translation>评分没有意义，因为某项指标的平均值不是有限数。</translation>
    </message>
    <message>
        <source>There is no score: the model gives no number for this mesh.</source>
        <translation>没有评分：模型没有为此网格给出数值。</translation>
    </message>
    <message>
        <source>A mesh is scored when it is opened.</source>
        <translation>打开网格时会对其评分。</translation>
    </message>
    <message>
        <source>It is practically the mesh that was scored last, so the history has no new entry.</source>
        <translation>它与上次评分的网格几乎相同，因此历史中没有新记录。</translation>
    </message>
    <message>
        <source>Mean %1 %2 lies outside of the range that the model was trained on, %3 to %4.</source>
        <translation>平均值 %1 %2 超出模型的训练范围 %3 至 %4。</translation>
    </message>
    <message>
        <source>Score %1 (0 worst, 1 best)</source>
        <translation>评分 %1（0 最差，1 最好）</translation>
    </message>
    <message>
        <source>Of the mesh that was read last, %1:</source>
        <translation>最后读取的网格 %1：</translation>
    </message>
</context>
<context>
    <name>Workbench::SelectionUndo</name>
    <message>
        <source>selection</source>
        <translation>选择</translation>
    </message>
</context>
<context>
    <name>Workbench::TaskBar</name>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
    <message>
        <source>Meshing %1</source>
        <translation>正在为 %1 生成网格</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>正在保存 %1</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
</context>
<context>
    <name>Workbench::TransferDialog</name>
    <message>
        <source>Please wait</source>
        <translation>请稍候</translation>
    </message>
</context>
<context>
    <name>Workbench::View3D</name>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>无法将图片保存为 %1。</translation>
    </message>
</context>
<context>
    <name>Workbench::WorstList</name>
    <message>
        <source>Number:</source>
        <translation>数量：</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选中</translation>
    </message>
    <message>
        <source>Selects the elements of the marked rows, or all of the list when none is marked</source>
        <translation>选中标记行的单元；没有标记行时选中列表中的全部单元</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>A double click or Enter looks at the element</source>
        <translation>双击或按 Enter 查看该单元</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Writes the list with all metrics as CSV, as &apos;meshquality report&apos; does</source>
        <translation>将列表及全部指标写成 CSV，与“meshquality report”相同</translation>
    </message>
    <message>
        <source>Worst elements</source>
        <translation>最差单元</translation>
    </message>
    <message>
        <source>The list could not be written to %1.</source>
        <translation>无法将列表写入 %1。</translation>
    </message>
</context>
</TS>
