<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
</context>
</TS>
