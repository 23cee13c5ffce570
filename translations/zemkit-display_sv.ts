<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Analys</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd d MMMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>nät per timme</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Det finns inga data från den dagen</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Dra uppåt åt vänster för hela dagen</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Tryck på en linje, eller dra för att zooma</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: belysningen går inte att styra: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Diagram</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Ingen mätare har hörts ännu</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Apparater</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Ingen mätare mäter enskilda apparater.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>i dag</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM yyyy, HH:mm</source>
        <translation>ddd d MMM yyyy HH:mm</translation>
    </message>
    <message>
        <source>stand van %1</source>
        <translation>avläst %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>yyyy-MM-dd</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>simulering, %1</translation>
    </message>
    <message>
        <source>d MMM, HH:mm</source>
        <translation>d MMM HH:mm</translation>
    </message>
    <message>
        <source>HH:mm</source>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy, HH:mm</source>
        <translation>dddd d MMMM yyyy HH:mm</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <translation>ddd d MMM HH:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>till nätet</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>från nätet</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: inställningarna sparades inte</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>Mätaren svarar igen.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>Mätaren är tyst.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Inga meddelanden</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Meddelanden</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Översikt</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Diagram</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Apparater</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analys</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Månader</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Sidor</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>sidor</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>meddelanden</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Normaltariff</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>Från nätet</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Lågtariff</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>Varav lågtariff</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>lågtariff</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Inmatning</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Värme</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Vatten</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 av %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Borta på dagen</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Semester</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>Hemma</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>årsmål, från nätet</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>Från nätet per år, i kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Ett tal från 1 till %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>budget från nätet, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>hittills %1&#xa0;€</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>hittills %1 euro</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>från nätet, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>i går</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>den har version %1, och %2 är den nyaste som är känd här</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>en annan skärm för historiken; den här visar den och lägger inte till något</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>mappen kan inte skapas; historiken sparas inte</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>historiken skrevs av en nyare version av programmet (%1); den lämnas orörd, och inget sparas</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>historiken kan inte sparas: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>historiken är skadad (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>historiken är skadad (%1) och kan inte läggas undan; inget sparas</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>historiken är skadad (%1); den läggs undan som %2, och en ny börjar</translation>
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
            <numerusform>%n gång, från %1 till %2</numerusform>
            <numerusform>%n gånger, från %1 till %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>mätarens klocka går %n minut före skärmens; staplarna står efter mätarens klocka</numerusform>
            <numerusform>mätarens klocka går %n minuter före skärmens; staplarna står efter mätarens klocka</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>typsnittet %1 saknas (fonts-%2): texter får kanske inte plats</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Månader</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>från nätet</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>inmatat</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>sol</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>värme</translation>
    </message>
    <message>
        <source>water</source>
        <translation>vatten</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>fast</translation>
    </message>
    <message>
        <source>totaal</source>
        <translation>totalt</translation>
    </message>
    <message>
        <source>MMM yyyy</source>
        <translation>MMM yyyy</translation>
    </message>
    <message>
        <source>maand</source>
        <translation>månad</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>datorn hittas inte</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>brokern avslutade den</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>brokern svarar inte</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>ingen kryptering: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>brokern vill ha användare och lösenord, och det finns ingen fil med uppgifter</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>brokern avvisar användaren och lösenordet</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>brokern avvisar: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>förbindelsen bröts: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>ingen förbindelse: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>inget av ämnena i %1 publiceras; det första är %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>ett meddelande kan inte läsas: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n meddelande kan inte läsas, det sista: %1</numerusform>
            <numerusform>%n meddelanden kan inte läsas, det sista: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>en mätarställning är inte under 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>där står inget tal</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>det är ingen enhet för det som mäts</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 meddelade %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>den tiden ligger i framtiden</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>där står ingen tid med avvikelse från UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Översikt</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analys</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>totalt %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 denna vecka</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, veckan från %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (ofullständig)</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan inte öppnas: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan inte läsas: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan inte öppnas: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan inte läsas: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan inte öppnas: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan inte läsas: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>det är avbrutet</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>det slutar inte inom %1 byte</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>början saknas</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>telegram %1 räknas inte: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>fler nämns inte förrän ett bra kommer</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>det finns inget telegram i den</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>inget kommer genom förbindelsen; den görs om</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>förbindelsen bröts: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>ingen förbindelse: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kan inte läsas</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>kontrollsumman är %1 och ska vara %2</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>det har ingen kontrollsumma</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>det innehåller ingen ställning som är känd här</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>det är inget telegram</translation>
    </message>
</context>
<context>
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>förbrukning</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>produktion</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>från nätet</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>till nätet</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>det finns inga priser i den</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: rubriken %2 saknar kolumnerna ”time” och ”eur_per_kwh”</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>raden har inte rubrikens %1 fält</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 är inget pris per kWh i euro</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 motsäger ett tidigare pris för timmen; utelämnat</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>timmen från %1 ligger delvis i en annan som har pris; utelämnad</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>från nätet</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>inmatning</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>produktion</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>vatten</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>värme</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>värmepump</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>bil</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1: mätaren fortsätter på %2 %3, vilket inte följer på förra ställningen: det är en annan, eller så har den nollställts</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>filen finns inte</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>är en mapp</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kan inte öppnas: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>det finns ingen annan kolumn än ”%1”</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>okänd kolumn %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>kolumnen %1 finns två gånger</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>ingen känd sorts fil har rubriken %1; docs/readings.md berättar vilka som finns</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>el</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>inmatning</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>solel</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>vatten</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>värme</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>värmepump</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>elbil</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (lågtariff)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (normaltariff)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>läsningen avbröts: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>det finns inga mätarställningar i den</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>filen är tom</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kan inte läsas: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>systemet känner inte tidszonen %1; UTC används</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>raden är för lång</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>ett citattecken stängs inte där fältet slutar</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>antalet fält är %1, inte %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>ogiltig tid: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>ogiltig längd på en period: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>okänd tidszon %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>ogiltigt tal: %1 i kolumnen ”%2”</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>en tid som klockan i %1 hoppar över; raden utelämnad</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>utelämnat: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 är redan känt %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>från ett räkneverk</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>per tariff</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; raden utelämnad</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>motsäger ett tidigare värde för den tiden; utelämnat</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>gäller en del av en redan känd period; utelämnat</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>är mindre än förut, och nästa är det inte; utelämnat</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>är större än det som följer; utelämnat</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>följer inte på förra ställningen: en annan mätare eller nollställd</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>följer inte på förra ställningen; utelämnat tills mer är känt</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>är mer än ett hushåll kan förbruka; utelämnat</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>är från tidszonen %1; ställningarna visas efter klockan i %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>%n trasig rad till, utelämnad</numerusform>
            <numerusform>%n trasiga rader till, utelämnade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>%n rad till vid en tid som klockan hoppar över, utelämnad</numerusform>
            <numerusform>%n rader till vid tider som klockan hoppar över, utelämnade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>%n värde till som motsäger ett tidigare, utelämnat</numerusform>
            <numerusform>%n värden till som motsäger tidigare, utelämnade</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>%n ställning till som inte stämmer</numerusform>
            <numerusform>%n ställningar till som inte stämmer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>%n problem till</numerusform>
            <numerusform>%n problem till</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>aldrig</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n minut</numerusform>
            <numerusform>%n minuter</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Enkeltariff</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Dag och natt</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Skärmen läser mätarna i huset och sparar det den läser bara i sitt eget minne. Den skickar inget utåt och behöver inget konto.&lt;/p&gt;&lt;p&gt;Husets namn, priset, tariffen och målet finns i en fil på skärmen. &lt;b&gt;Radera allt&lt;/b&gt; på sidan med inställningar tar bort allt som har matats in här.&lt;/p&gt;&lt;p&gt;Det som mätarna har räknat finns i en andra fil, så att diagrammen finns kvar efter en avstängning: varje timmes ställningar för alltid, de för var femte minut i hundra dagar. Radera allt låter dem vara. Filen heter history.sqlite och ligger i mappen zemkit bland data för skärmens användare.&lt;/p&gt;&lt;p&gt;Den som säljer eller ger bort skärmen raderar först alla inställningar, stänger av den och tar sedan bort filen. Nästa boende börjar med en tom skärm, som följer mätarna från den stunden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>husets namn</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>pris per kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>tariff</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>tangentbord</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>skärmen släcks efter</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>skärmen släckt om natten</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>förklaring</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>Vad sparas här?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Radera allt</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Husets namn</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>Priserna står i avtalet</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Pris per kWh i euro</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Ett pris från 0 till %1 euro</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tariff</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Tangentbord</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Skärmen släcks efter</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>från kl. %1</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Skärmen släckt om natten</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>till kl. %1</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Radera allt?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Alla inställningar försvinner.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>enligt avtal</translation>
    </message>
    <message>
        <source>€ %1</source>
        <translation>%1&#xa0;€</translation>
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
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2 – %3 uur</source>
        <translation>%1, kl. %2 – %3</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>veckan från %1</translation>
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
        <translation>till</translation>
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
        <translation>Läser mätarställningar …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>Huset vaknar till liv …</translation>
    </message>
</context>
</TS>
