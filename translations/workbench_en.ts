<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Workbench::GeometryManager</name>
    <message>
        <source>surface group %1</source>
        <translation>surface group %1</translation>
    </message>
    <message>
        <source>face %1</source>
        <translation>face %1</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshManager</name>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>The mesh %1 cannot be opened: %2</source>
        <translation>The mesh %1 cannot be opened: %2</translation>
    </message>
</context>
<context>
    <name>Workbench::MesherProcess</name>
    <message>
        <source>The mesher is still at work. Wait until it is done, or cancel it.</source>
        <translation>The mesher is still at work. Wait until it is done, or cancel it.</translation>
    </message>
    <message>
        <source>The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment variable WORKBENCH_GMSH name the program.</source>
        <translation>The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment variable WORKBENCH_GMSH name the program.</translation>
    </message>
    <message>
        <source>The mesher could not be started: %1</source>
        <translation>The mesher could not be started: %1</translation>
    </message>
    <message>
        <source>The mesher crashed on %1. The mesh that was open stays.</source>
        <translation>The mesher crashed on %1. The mesh that was open stays.</translation>
    </message>
    <message>
        <source>The mesher could not mesh %1 (exit code %2): %3</source>
        <translation>The mesher could not mesh %1 (exit code %2): %3</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>it gave no reason</translation>
    </message>
</context>
</TS>
