<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>BasicCoordinateSystemID</source>
        <translation>BasicCoordinateSystemID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Coordinate</source>
        <translation>Coordinate</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>Quaternion</translation>
    </message>
    <message>
        <source>Import material fail! materail library type : %1 is not exist!</source>
        <translation>Import material fail! materail library type : %1 is not exist!</translation>
    </message>
    <message>
        <source>Material: Free Space</source>
        <translation>Material: Free Space</translation>
    </message>
    <message>
        <source>Material: %1</source>
        <translation>Material: %1</translation>
    </message>
    <message>
        <source>Delete software material failed! material ID is not exists! id:%1.</source>
        <translation>Delete software material failed! material ID is not exists! id:%1.</translation>
    </message>
    <message>
        <source>Import software material fail! materail id : %1 is not exist!</source>
        <translation>Import software material fail! materail id : %1 is not exist!</translation>
    </message>
    <message>
        <source>Delete project material failed! material ID is not exists! id:%1</source>
        <translation>Delete project material failed! material ID is not exists! id:%1</translation>
    </message>
    <message>
        <source>Import project material fail! materail id : %1 is not exist!</source>
        <translation>Import project material fail! materail id : %1 is not exist!</translation>
    </message>
</context>
</TS>
