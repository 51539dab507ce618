<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <source>a mesh is being read; wait, or cancel it</source>
        <translation>正在读取网格；请等待，或将其取消</translation>
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
</context>
<context>
    <name>Workbench::ProjectArchive</name>
    <message>
        <source>the working files could not be read</source>
        <translation>无法读取工作文件</translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation>无法写入文件</translation>
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
</context>
<context>
    <name>Workbench::View3D</name>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>无法将图片保存为 %1。</translation>
    </message>
</context>
</TS>
