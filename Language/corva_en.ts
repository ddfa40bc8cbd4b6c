<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>corva::CheckPIN</name>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>%n attempt left</numerusform>
            <numerusform>%n attempts left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::HistoryTab</name>
    <message numerus="yes">
        <source>&amp;Delete %n entries</source>
        <translation>
            <numerusform>&amp;Delete %n entry</numerusform>
            <numerusform>&amp;Delete %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>%n entry was deleted.</numerusform>
            <numerusform>%n entries were deleted.</numerusform>
        </translation>
    </message>
</context>
</TS>
