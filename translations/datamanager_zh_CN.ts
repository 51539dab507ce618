<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>BasicCoordinateSystemID</source>
        <translation>基础坐标系编号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Coordinate</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元数</translation>
    </message>
    <message>
        <source>Import material fail! materail library type : %1 is not exist!</source>
        <translation>导入材料失败！材料库类型 %1 不存在！</translation>
    </message>
    <message>
        <source>Material: Free Space</source>
        <translation>材料：自由空间</translation>
    </message>
    <message>
        <source>Material: %1</source>
        <translation>材料：%1</translation>
    </message>
    <message>
        <source>Delete software material failed! material ID is not exists! id:%1.</source>
        <translation>删除软件材料失败！材料编号 %1 不存在。</translation>
    </message>
    <message>
        <source>Import software material fail! materail id : %1 is not exist!</source>
        <translation>导入软件材料失败！材料编号 %1 不存在！</translation>
    </message>
    <message>
        <source>Delete project material failed! material ID is not exists! id:%1</source>
        <translation>删除工程材料失败！材料编号 %1 不存在</translation>
    </message>
    <message>
        <source>Import project material fail! materail id : %1 is not exist!</source>
        <translation>导入工程材料失败！材料编号 %1 不存在！</translation>
    </message>
</context>
</TS>
