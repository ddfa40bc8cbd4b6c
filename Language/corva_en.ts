<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>%n message is chosen.</numerusform>
            <numerusform>%n messages are chosen.</numerusform>
        </translation>
    </message>
</context>
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
    <name>corva::Class0Dialog</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1, %n unread</numerusform>
            <numerusform>%1, %n unread</numerusform>
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
<context>
    <name>corva::MessageActions</name>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>De&amp;lete %n message</numerusform>
            <numerusform>De&amp;lete %n messages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>%n message was deleted.</numerusform>
            <numerusform>%n messages were deleted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>Delete %n message for good?</numerusform>
            <numerusform>Delete %n messages for good?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>Delete %n &amp;message</numerusform>
            <numerusform>Delete %n &amp;messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>%n message is unread.</numerusform>
            <numerusform>%n messages are unread.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>%n message was written to %1.</numerusform>
            <numerusform>%n messages were written to %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>%n message was added.</numerusform>
            <numerusform>%n messages were added.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>%n was here already.</numerusform>
            <numerusform>%n were here already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>%n could not be read.</numerusform>
            <numerusform>%n could not be read.</numerusform>
        </translation>
    </message>
</context>
</TS>
