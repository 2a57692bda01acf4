<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>MRVAutoReplaceEditor</name>
    <message numerus="yes">
        <source>%n entries have the match “%1”, and only one can apply; add its replacement</source>
        <translation>
            <numerusform>%n entry has the match “%1”, and only one can apply; add its replacement</numerusform>
            <numerusform>%n entries have the match “%1”, and only one can apply; add its replacement</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MRVAutoReplaceList</name>
    <message numerus="yes">
        <source>it is damaged or truncated; entries that could be read: %n</source>
        <translation>
            <numerusform>it is damaged or cut short; %n entry could be read</numerusform>
            <numerusform>it is damaged or cut short; %n entries could be read</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MRVCheckForUpdatesDialog</name>
    <message numerus="yes">
        <source>%n seconds left</source>
        <translation>
            <numerusform>%n second left</numerusform>
            <numerusform>%n seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes left</source>
        <translation>
            <numerusform>%n minute left</numerusform>
            <numerusform>%n minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours left</source>
        <translation>
            <numerusform>%n hour left</numerusform>
            <numerusform>%n hours left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MRVShortcutScheme</name>
    <message numerus="yes">
        <source>it is damaged or truncated; shortcuts that could be read: %n</source>
        <translation>
            <numerusform>it is damaged or cut short; %n shortcut could be read</numerusform>
            <numerusform>it is damaged or cut short; %n shortcuts could be read</numerusform>
        </translation>
    </message>
</context>
</TS>
