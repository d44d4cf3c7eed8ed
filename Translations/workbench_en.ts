<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Zorvane::Workbench::DesignReader</name>
    <message numerus="yes">
        <source>has %n more problem(s)</source>
        <translation>
            <numerusform>has %n more problem</numerusform>
            <numerusform>has %n more problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FileExchange</name>
    <message numerus="yes">
        <source>%n files imported</source>
        <translation>
            <numerusform>%n file imported</numerusform>
            <numerusform>%n files imported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files copied to %1</source>
        <translation>
            <numerusform>%n file copied to %1</numerusform>
            <numerusform>%n files copied to %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::FilePreview</name>
    <message numerus="yes">
        <source>first %n rows</source>
        <translation>
            <numerusform>first %n row</numerusform>
            <numerusform>first %n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>first %n columns</source>
        <translation>
            <numerusform>first %n column</numerusform>
            <numerusform>first %n columns</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n columns</source>
        <translation>
            <numerusform>%n column</numerusform>
            <numerusform>%n columns</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>first %n lines</source>
        <translation>
            <numerusform>first %n line</numerusform>
            <numerusform>first %n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MainWindow</name>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n designs · %1</source>
        <translation>
            <numerusform>%n design · %1</numerusform>
            <numerusform>%n designs · %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::MeshView</name>
    <message numerus="yes">
        <source>%1, %2, %n triangles. %3</source>
        <translation>
            <numerusform>%1, %2, %n triangle. %3</numerusform>
            <numerusform>%1, %2, %n triangles. %3</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Zorvane::Workbench::StressWindow</name>
    <message numerus="yes">
        <source>%n refreshes, on average %1 ms</source>
        <translation>
            <numerusform>%n refresh, on average %1 ms</numerusform>
            <numerusform>%n refreshes, on average %1 ms</numerusform>
        </translation>
    </message>
</context>
</TS>
