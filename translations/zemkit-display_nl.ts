<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd d MMMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>net per uur</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Van deze dag is niets bekend</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Sleep naar linksboven voor de hele dag</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Tik op een lijn, of sleep om in te zoomen</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: de verlichting van het scherm kan niet worden geschakeld: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Grafieken</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Er is nog geen meter gehoord</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Geen meter telt losse apparaten.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>vandaag</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM yyyy, HH:mm</source>
        <translation>ddd d MMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>stand van %1</source>
        <translation>stand van %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>d-M-yyyy</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>simulatie, %1</translation>
    </message>
    <message>
        <source>d MMM, HH:mm</source>
        <translation>d MMM, HH:mm</translation>
    </message>
    <message>
        <source>HH:mm</source>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy, HH:mm</source>
        <translation>dddd d MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <translation>ddd d MMM, HH:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>naar het net</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>van het net</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: instellingen zijn niet bewaard</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>De meter is er weer.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>De meter zwijgt.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Geen meldingen</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Grafieken</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Maanden</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Doelen</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Pagina&apos;s</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>pagina&apos;s</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>meldingen</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Normaal tarief</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>Van het net</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Laag tarief</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>Waarvan laag tarief</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>laag tarief</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Opwekking</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Teruglevering</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Warmte</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Water</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 van %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Overdag weg</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Vakantie</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>Thuis</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Doelen</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>profiel</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>doel van een jaar, van het net</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>Van het net in een jaar, in kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Een getal van 1 tot %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>budget van het net, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>tot nu toe € %1</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>tot nu toe %1 euro</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>van het net, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>gisteren</translation>
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
    <name>MessageList</name>
    <message>
        <source>d MMM HH:mm</source>
        <translation>d MMM HH:mm</translation>
    </message>
    <message numerus="yes">
        <source>%n keer, van %1 tot %2</source>
        <translation>
            <numerusform>%n keer, van %1 tot %2</numerusform>
            <numerusform>%n keer, van %1 tot %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>de klok van de meter loopt %n minuut voor op die van het scherm; de staven staan op de tijd van de meter</numerusform>
            <numerusform>de klok van de meter loopt %n minuten voor op die van het scherm; de staven staan op de tijd van de meter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Maanden</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>van het net</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>terug</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>zon</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>warmte</translation>
    </message>
    <message>
        <source>water</source>
        <translation>water</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>vast</translation>
    </message>
    <message>
        <source>totaal</source>
        <translation>totaal</translation>
    </message>
    <message>
        <source>MMM yyyy</source>
        <translation>MMM yyyy</translation>
    </message>
    <message>
        <source>maand</source>
        <translation>maand</translation>
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
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n bericht is onleesbaar, het laatste: %1</numerusform>
            <numerusform>%n berichten zijn onleesbaar, het laatste: %1</numerusform>
        </translation>
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
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Doelen</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>totaal %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 deze week</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, week van %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (onvolledig)</translation>
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
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>verbruik</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>opwekking</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>van het net</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>naar het net</translation>
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
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>van het net</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>teruglevering</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>opwekking</translation>
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
        <source>warmte</source>
        <translation>warmte</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>warmtepomp</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>auto</translation>
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
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>nog %n kapotte rij, weggelaten</numerusform>
            <numerusform>nog %n kapotte rijen, weggelaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>nog %n rij op een tijdstip dat de klok overslaat, weggelaten</numerusform>
            <numerusform>nog %n rijen op tijdstippen die de klok overslaat, weggelaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>nog %n waarde die een eerdere tegenspreekt, weggelaten</numerusform>
            <numerusform>nog %n waarden die eerdere tegenspreken, weggelaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>nog %n stand die niet past</numerusform>
            <numerusform>nog %n standen die niet passen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>nog %n probleem</numerusform>
            <numerusform>nog %n problemen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>nooit</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n minuut</numerusform>
            <numerusform>%n minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Enkel tarief</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Dag en nacht</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>naam van het huis</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>prijs van een kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>tarief</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>toetsenbord</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>scherm uit na</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>scherm &apos;s nachts uit</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>uitleg</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>Wat bewaart dit scherm?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Alles wissen</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Naam van het huis</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>De prijzen staan in het contract</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Prijs van een kWh in euro</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Een prijs van 0 tot %1 euro</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tarief</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Toetsenbord</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Scherm uit na</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>vanaf %1 uur</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Scherm &apos;s nachts uit</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>tot %1 uur</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Alles wissen?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Alle instellingen gaan weg.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>volgens contract</translation>
    </message>
    <message>
        <source>€ %1</source>
        <translation>€ %1</translation>
    </message>
    <message>
        <source>H:mm</source>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>%1 – %2 uur</source>
        <translation>%1 – %2 uur</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>ddd d MMM yyyy</source>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2 – %3 uur</source>
        <translation>%1, %2 – %3 uur</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>week van %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMMM</source>
        <translation>ddd d MMMM</translation>
    </message>
    <message>
        <source>t/m</source>
        <translation>t/m</translation>
    </message>
    <message>
        <source>ddd d</source>
        <translation>ddd d</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>ddd d MMM</translation>
    </message>
    <message>
        <source>d</source>
        <translation>d</translation>
    </message>
    <message>
        <source>d MMM</source>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <translation>d MMMM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Standen lezen …</source>
        <translation>Standen lezen …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>Het huis komt tot leven …</translation>
    </message>
</context>
</TS>
