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
</TS>
