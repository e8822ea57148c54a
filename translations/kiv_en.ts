<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message numerus="yes">
        <source>Due within %n days</source>
        <translation>
            <numerusform>Due within %n day</numerusform>
            <numerusform>Due within %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days late</source>
        <translation>
            <numerusform>%n day late</numerusform>
            <numerusform>%n days late</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n days</source>
        <translation>
            <numerusform>in %n day</numerusform>
            <numerusform>in %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Posted %n transactions.</source>
        <translation>
            <numerusform>Posted %n transaction.</numerusform>
            <numerusform>Posted %n transactions.</numerusform>
        </translation>
    </message>
</context>
</TS>
