<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FindBar</name>
    <message numerus="yes">
        <source>%n find(s)</source>
        <translation>
            <numerusform>%n find</numerusform>
            <numerusform>%n finds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n replaced</source>
        <translation>
            <numerusform>%n replaced</numerusform>
            <numerusform>%n replaced</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReplacePreview</name>
    <message numerus="yes">
        <source>Replace %n</source>
        <translation>
            <numerusform>Replace %n</numerusform>
            <numerusform>Replace %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WriterWindow</name>
    <message numerus="yes">
        <source>%Ln word(s)</source>
        <translation>
            <numerusform>%Ln word</numerusform>
            <numerusform>%Ln words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln character(s)</source>
        <translation>
            <numerusform>%Ln character</numerusform>
            <numerusform>%Ln characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected word(s)</source>
        <translation>
            <numerusform>%Ln selected word</numerusform>
            <numerusform>%Ln selected words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln page(s)</source>
        <translation>
            <numerusform>%Ln page</numerusform>
            <numerusform>%Ln pages</numerusform>
        </translation>
    </message>
</context>
</TS>
