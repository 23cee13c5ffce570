<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: de verlichting van het scherm kan niet worden geschakeld: %2</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>versie %1, en %2 is de nieuwste die hier bekend is</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>een ander scherm bewaart de geschiedenis; dit scherm toont die en voegt niets toe</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>de map kan niet worden gemaakt; de geschiedenis wordt niet bewaard</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>de geschiedenis is van een nieuwere versie van dit programma (%1); die blijft zoals ze is, en er wordt niets bewaard</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>de geschiedenis kan niet worden bewaard: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>de geschiedenis is beschadigd (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>de geschiedenis is beschadigd (%1) en kan niet opzij worden gezet; er wordt niets bewaard</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>de geschiedenis is beschadigd (%1); ze is opzij gezet als %2, en een nieuwe is begonnen</translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message>
        <source>the clock of the meter is %1 minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>de klok van de meter loopt %1 minuten voor op die van het scherm; de staven staan op de tijd van de meter</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>de computer is niet gevonden</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>de broker heeft die beëindigd</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>de broker antwoordt niet</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>geen versleuteling: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>de broker wil een gebruiker en een wachtwoord, en er is geen bestand met inloggegevens</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>de broker weigert de gebruiker en het wachtwoord van de inloggegevens</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>de broker weigert: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>de verbinding is verbroken: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>er komt geen verbinding tot stand: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>geen van de onderwerpen van %1 wordt gepubliceerd; het eerste is %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>een bericht is onleesbaar: %1</translation>
    </message>
    <message>
        <source>%1 messages cannot be read, the last one: %2</source>
        <translation>%1 berichten zijn onleesbaar, het laatste: %2</translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>een meterstand is niet lager dan 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>er staat geen getal</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>dat is geen eenheid van wat er wordt gemeten</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 meldde %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>dat tijdstip moet nog komen</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>er staat geen tijdstip met het verschil met UTC</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan niet worden geopend: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan niet worden gelezen: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan niet worden geopend: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan niet worden gelezen: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan niet worden geopend: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan niet worden gelezen: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>het is afgebroken</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>het eindigt niet binnen %1 bytes</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>het begin ontbreekt</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>telegram %1 telt niet mee: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>meer worden er niet genoemd, tot er een goed telegram komt</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>er staat geen telegram in</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>er komt niets door de verbinding; ze wordt opnieuw gemaakt</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>de verbinding is verbroken: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>er komt geen verbinding tot stand: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 is onleesbaar</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>de controlesom is %1 en moet %2 zijn</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>het heeft geen controlesom</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>er is geen stand in die hier bekend is</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>het is geen telegram</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>er staan geen prijzen in</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: de kop %2 heeft niet de kolommen &quot;time&quot; en &quot;eur_per_kwh&quot;</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>de rij heeft niet de %1 velden van de kop</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 is geen prijs van een kWh in euro</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 spreekt een eerdere prijs van dit uur tegen; weggelaten</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>het uur vanaf %1 valt deels in een ander uur met een prijs; weggelaten</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1: de meter gaat verder bij %2 %3, wat niet volgt op de vorige stand: het is een andere, of hij is teruggezet</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>er is geen bestand met die naam</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>is een map</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan niet worden geopend: %1</translation>
    </message>
    <message>
        <source>%1 more broken rows, left out</source>
        <translation>meer kapotte rijen, weggelaten: %1</translation>
    </message>
    <message>
        <source>%1 more rows at times that the clock skips, left out</source>
        <translation>meer rijen op tijdstippen die de klok overslaat, weggelaten: %1</translation>
    </message>
    <message>
        <source>%1 more values that contradict earlier ones, left out</source>
        <translation>meer waarden die eerdere tegenspreken, weggelaten: %1</translation>
    </message>
    <message>
        <source>%1 more readings that do not fit in</source>
        <translation>meer standen die niet passen: %1</translation>
    </message>
    <message>
        <source>%1 more problems</source>
        <translation>meer problemen: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>er is geen andere kolom dan &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>onbekende kolom %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>kolom %1 komt twee keer voor</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>geen bekend soort bestand heeft de kop %1; docs/readings.md vertelt welke er zijn</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>stroom</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>teruglevering</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>zonnestroom</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>water</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>warmte</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>warmtepomp</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>elektrische auto</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (laag tarief)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (normaal tarief)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>het lezen is gestopt: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>er staan geen meterstanden in</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>het bestand is leeg</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan niet worden gelezen: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>dit systeem kent de tijdzone %1 niet; de klok is UTC</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>de regel is te lang</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>een aanhalingsteken sluit niet waar het veld eindigt</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>het aantal velden is %1, niet %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>geen tijdstip: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>geen lengte van een periode: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>onbekende tijdzone %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>geen getal: %1 in kolom &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>een tijdstip dat de klok in %1 overslaat; rij weggelaten</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>weggelaten: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 is al bekend %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>door één telwerk</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>per tarief</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; rij weggelaten</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>spreekt een eerdere waarde voor deze tijd tegen; weggelaten</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>is van een deel van een periode die al bekend is; weggelaten</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>is minder dan daarvoor, en de volgende niet; weggelaten</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>is meer dan wat volgt; weggelaten</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>volgt niet op de vorige stand: een andere meter, of teruggezet</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>volgt niet op de vorige stand; weggelaten tot er meer bekend is</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>is meer dan een huishouden kan verbruiken; weggelaten</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>is van de tijdzone %1; de meterstanden staan op de klok van %2</translation>
    </message>
</context>
</TS>
