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
</TS>
