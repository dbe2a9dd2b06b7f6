<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>About %Ln second left</numerusform>
            <numerusform>About %Ln seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>About %Ln minute left</numerusform>
            <numerusform>About %Ln minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>About %Ln hour left</numerusform>
            <numerusform>About %Ln hours left</numerusform>
        </translation>
    </message>
</context>
</TS>
