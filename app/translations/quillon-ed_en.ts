<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en">
<context>
    <name>quillon_ed::CataloguePanel</name>
    <message numerus="yes">
        <source>%n module type(s)</source>
        <translation>
            <numerusform>%n module type</numerusform>
            <numerusform>%n module types</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleForm</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::ModuleTypeCard</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::ParameterText</name>
    <message numerus="yes">
        <source>Longer than %n byte(s)</source>
        <translation>
            <numerusform>Longer than %n byte</numerusform>
            <numerusform>Longer than %n bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>At least %n character(s)</source>
        <translation>
            <numerusform>At least %n character</numerusform>
            <numerusform>At least %n characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>At most %n character</numerusform>
            <numerusform>At most %n characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::StatusLine</name>
    <message numerus="yes">
        <source>%n place(s) selected</source>
        <translation>
            <numerusform>%n place selected</numerusform>
            <numerusform>%n places selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::DetailsWindow</name>
    <message numerus="yes">
        <source>%n report(s):</source>
        <translation>
            <numerusform>%n report:</numerusform>
            <numerusform>%n reports:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon_ed::RackBadges</name>
    <message numerus="yes">
        <source>%n module(s) of rack %1 not in order</source>
        <translation>
            <numerusform>%n module of rack %1 not in order</numerusform>
            <numerusform>%n modules of rack %1 not in order</numerusform>
        </translation>
    </message>
</context>
</TS>
