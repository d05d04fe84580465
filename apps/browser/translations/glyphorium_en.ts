<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>browser::AddDialog</name>
    <message numerus="yes">
        <source>%Ln characters: %1</source>
        <translation>
            <numerusform>%Ln character: %1</numerusform>
            <numerusform>%Ln characters: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>browser::MainWindow</name>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln character</numerusform>
            <numerusform>%Ln characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing matches exactly. %Ln similar characters:</source>
        <translation>
            <numerusform>Nothing matches exactly. %Ln similar character:</numerusform>
            <numerusform>Nothing matches exactly. %Ln similar characters:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more in all characters</source>
        <translation>
            <numerusform>%Ln more in all characters</numerusform>
            <numerusform>%Ln more in all characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>browser::ScopeModel</name>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln character</numerusform>
            <numerusform>%Ln characters</numerusform>
        </translation>
    </message>
</context>
</TS>
