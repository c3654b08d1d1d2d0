<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>vidora</name>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: alarm %n minute ahead of each broadcast</numerusform>
            <numerusform>%1: alarm %n minutes ahead of each broadcast</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: alarm %n minute ahead of each replay</numerusform>
            <numerusform>%1: alarm %n minutes ahead of each replay</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: alarm %n minute ahead of each premiere</numerusform>
            <numerusform>%1: alarm %n minutes ahead of each premiere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>It is too late for an alarm %n minute ahead.</numerusform>
            <numerusform>It is too late for an alarm %n minutes ahead.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Alarm %n minute ahead: %1</numerusform>
            <numerusform>Alarm %n minutes ahead: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>%n channel is chosen.</numerusform>
            <numerusform>%n channels are chosen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Skipped: %n channel without an id.</numerusform>
            <numerusform>Skipped: %n channels without an id.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Skipped: %n channel whose id was there already.</numerusform>
            <numerusform>Skipped: %n channels whose id was there already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Skipped: %n programme without a start and an end with an offset.</numerusform>
            <numerusform>Skipped: %n programmes without a start and an end with an offset.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Skipped: %n programme of channels that the guide does not list.</numerusform>
            <numerusform>Skipped: %n programmes of channels that the guide does not list.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n of the channels chosen before is in it; &quot;vidora update&quot; reads its shows.</numerusform>
            <numerusform>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</numerusform>
        </translation>
    </message>
</context>
</TS>
