<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Analysis</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd d MMMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>grid per hour</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Nothing is known of this day</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Drag to the top left for the whole day</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Tap a line, or drag to zoom in</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: the backlight cannot be switched: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Charts</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>No meter has been heard yet</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>No meter counts single devices.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>today</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM yyyy, HH:mm</source>
        <translation>ddd, d MMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>stand van %1</source>
        <translation>as of %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>simulation, %1</translation>
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
        <translation>ddd, d MMM, HH:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>to the grid</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>from the grid</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: settings were not saved</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>The meter is back.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>The meter is silent.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>No messages</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Charts</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analysis</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Months</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Goals</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>pages</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>messages</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Normal tariff</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>From the grid</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Low tariff</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>Of which low tariff</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>low tariff</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Production</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Heat</translation>
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
        <translation>%1 of %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Out by day</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Holiday</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>At home</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Goals</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>profile</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>goal of a year, from the grid</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>From the grid in a year, in kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>A number from 1 to %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>budget from the grid, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>so far €%1</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>so far %1 euros</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>from the grid, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>yesterday</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>it has version %1, and %2 is the newest known here</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>another display keeps the history; this one shows it and adds nothing</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>the directory cannot be made; the history is not kept</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>the history cannot be kept: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>the history is damaged (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>the history is damaged (%1) and cannot be set aside; nothing is kept</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>the history is damaged (%1); it is set aside as %2, and a new one is begun</translation>
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
            <numerusform>%n time, from %1 to %2</numerusform>
            <numerusform>%n times, from %1 to %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>the clock of the meter is %n minute ahead of that of the display; bars stand where the meter&apos;s clock has them</numerusform>
            <numerusform>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>the font %1 is missing (fonts-%2): texts may not fit</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Months</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>from the grid</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>export</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>solar</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>heat</translation>
    </message>
    <message>
        <source>water</source>
        <translation>water</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>fixed</translation>
    </message>
    <message>
        <source>totaal</source>
        <translation>total</translation>
    </message>
    <message>
        <source>MMM yyyy</source>
        <translation>MMM yyyy</translation>
    </message>
    <message>
        <source>maand</source>
        <translation>month</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>the host is not found</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>the broker ended it</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>the broker does not answer</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>no encryption: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>the broker wants a user and a password, and there is no file with credentials</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>the broker refuses the user and password of the credentials</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>the broker refuses: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>the connection was lost: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>cannot be connected to: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>none of the topics of the mapping %1 is published; the first one is %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>a message cannot be read: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n message cannot be read, the last one: %1</numerusform>
            <numerusform>%n messages cannot be read, the last one: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>a counter is not below 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>there is no number</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>that is no unit of what is mapped</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 told %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>that time is still to come</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>there is no time with its offset from UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analysis</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Goals</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>total %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 this week</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, week of %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (incomplete)</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>cannot be opened: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>cannot be read: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>cannot be opened: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>cannot be read: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>cannot be opened: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>cannot be read: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>it is cut short</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>it does not end within %1 bytes</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>its beginning is missing</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>telegram %1 is dropped: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>no more are named until a good one comes</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>there is no telegram in it</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>nothing comes through the connection; it is made anew</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>the connection was lost: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>cannot be connected to: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 cannot be read</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>its checksum is %1 and should be %2</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>it has no checksum</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>it holds no reading that is known here</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>it is no telegram</translation>
    </message>
</context>
<context>
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>use</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>production</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>from the grid</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>to the grid</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>there are no prices in it</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>it has not the %1 fields of the header</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 is no price of a kWh in euro</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 contradicts an earlier price of this hour; left out</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>the hour from %1 has a part in another that has a price; left out</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>from the grid</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>export</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>production</translation>
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
        <translation>heat</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>heat pump</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>car</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no such file</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>is a directory</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>cannot be opened: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>there is no column but &quot;%1&quot;</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>unknown column %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>column %1 comes twice</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>no known kind of file has the header %1; docs/readings.md tells of those that there are</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>electricity import</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>electricity export</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>solar production</translation>
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
        <translation>heating</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>heat pump</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>electric car</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (low tariff)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (normal tariff)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>reading stopped: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>there are no readings in it</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>cannot be read: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>this system does not know the time zone %1; UTC is used</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>the line is too long</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>a quote is not closed where its field ends</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>the number of fields is %1, not %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>bad time stamp %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>bad length %1 of an interval</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>unknown time zone %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>bad number %1 in column &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>a time that the clock in %1 skips; row left out</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>left out: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 is known already %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>by one register</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>by tariff</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; row left out</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>contradicts an earlier value for this time; left out</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>is for a part of an interval known already; left out</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>is less than before, and the next is not; left out</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>is more than what follows; left out</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>does not follow from before: another meter or a reset</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>does not follow from before; left out until more is known</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>is more than a household can use; left out</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>is of the time zone %1; its readings are shown by the clock in %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>%n more broken row, left out</numerusform>
            <numerusform>%n more broken rows, left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>%n more row at a time that the clock skips, left out</numerusform>
            <numerusform>%n more rows at times that the clock skips, left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>%n more value that contradicts an earlier one, left out</numerusform>
            <numerusform>%n more values that contradict earlier ones, left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>%n more reading that does not fit in</numerusform>
            <numerusform>%n more readings that do not fit in</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>%n more problem</numerusform>
            <numerusform>%n more problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>never</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Single tariff</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Day and night</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;This display reads the meters of the house, and keeps what it reads in its own memory alone. It sends nothing out and needs no account.&lt;/p&gt;&lt;p&gt;The name of the house, the price, the tariff and the goal are in a file on this display. &lt;b&gt;Clear all&lt;/b&gt; on the page of settings removes everything that was entered here.&lt;/p&gt;&lt;p&gt;What the meters counted is in a second file, so that the charts are still there after a switch-off: the readings of each hour for good, those of every five minutes for a hundred days. Clear all leaves them alone. The file is called history.sqlite and lies in the folder zemkit among the data of the user of this display.&lt;/p&gt;&lt;p&gt;Who sells the display or gives it away first clears all settings, switches it off and then deletes that file. A new resident starts with an empty display, which follows the meters from that moment on.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>name of the house</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>price of a kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>tariff</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>keyboard</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>screen off after</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>screen off at night</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>explanation</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>What is kept here?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Clear all</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Name of the house</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>The prices are in the contract</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Price of a kWh in euros</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>A price from 0 to %1 euros</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tariff</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Screen off after</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>from %1:00</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Screen off at night</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>until %1:00</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Clear all?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>All settings will be lost.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>by contract</translation>
    </message>
    <message>
        <source>€ %1</source>
        <translation>€%1</translation>
    </message>
    <message>
        <source>H:mm</source>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>%1 – %2 uur</source>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>ddd d MMM yyyy</source>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2 – %3 uur</source>
        <translation>%1, %2:00 – %3:00</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>week of %1</translation>
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
        <translation>to</translation>
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
        <translation>Reading the meters …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>The house comes to life …</translation>
    </message>
</context>
</TS>
