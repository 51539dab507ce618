<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
</context>
</TS>
