<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>ExternalSolverOption</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ExtrudInputDlg</name>
    <message>
        <source>拉伸参数输入</source>
        <translation>Extrude Parameter Input</translation>
    </message>
</context>
<context>
    <name>MatrixArrayDlg</name>
    <message>
        <source>矩形阵列参数输入</source>
        <translation>Matrix Array Input</translation>
    </message>
</context>
<context>
    <name>SubShapeMeshParameterDlg</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
</TS>
