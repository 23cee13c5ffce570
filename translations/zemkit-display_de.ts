<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd, d. MMMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>Netz je Stunde</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Für diesen Tag gibt es keine Daten</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Für den ganzen Tag nach links oben ziehen</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Linie antippen oder zum Vergrößern ziehen</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: die Beleuchtung lässt sich nicht schalten: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Es wurde noch kein Zähler empfangen</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Kein Zähler misst einzelne Geräte.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM yyyy, HH:mm</source>
        <translation>ddd, d. MMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>stand van %1</source>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>d.M.yyyy</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>Simulation, %1</translation>
    </message>
    <message>
        <source>d MMM, HH:mm</source>
        <translation>d. MMM, HH:mm</translation>
    </message>
    <message>
        <source>HH:mm</source>
        <translation>HH:mm</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy, HH:mm</source>
        <translation>dddd, d. MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <translation>ddd, d. MMM, HH:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>ins Netz</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>aus dem Netz</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: Einstellungen wurden nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>Der Zähler ist wieder da.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>Der Zähler schweigt.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Keine Meldungen</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Hochtarif</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>Aus dem Netz</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Niedertarif</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>Davon Niedertarif</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>Niedertarif</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Erzeugung</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Einspeisung</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Wärme</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 von %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Tagsüber weg</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>Zu Hause</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>Jahresziel, aus dem Netz</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>Aus dem Netz im Jahr, in kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Eine Zahl von 1 bis %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>Budget aus dem Netz, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>bisher %1&#xa0;€</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>bisher %1 Euro</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>aus dem Netz, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>gestern</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>sie hat Version %1, und %2 ist die neueste, die hier bekannt ist</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>ein anderes Display führt den Verlauf; dieses zeigt ihn und fügt nichts hinzu</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>der Ordner lässt sich nicht anlegen; der Verlauf wird nicht gespeichert</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>eine neuere Version dieses Programms hat den Verlauf geschrieben (%1); er bleibt unberührt, und nichts wird gespeichert</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>der Verlauf lässt sich nicht speichern: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>der Verlauf ist beschädigt (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>der Verlauf ist beschädigt (%1) und lässt sich nicht beiseitelegen; nichts wird gespeichert</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>der Verlauf ist beschädigt (%1); er liegt nun als %2 beiseite, und ein neuer beginnt</translation>
    </message>
</context>
<context>
    <name>MessageList</name>
    <message>
        <source>d MMM HH:mm</source>
        <translation>d. MMM HH:mm</translation>
    </message>
    <message numerus="yes">
        <source>%n keer, van %1 tot %2</source>
        <translation>
            <numerusform>%n-mal, von %1 bis %2</numerusform>
            <numerusform>%n-mal, von %1 bis %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>die Uhr des Zählers geht %n Minute gegenüber der des Displays vor; Balken stehen, wo die Uhr des Zählers sie hat</numerusform>
            <numerusform>die Uhr des Zählers geht %n Minuten gegenüber der des Displays vor; Balken stehen, wo die Uhr des Zählers sie hat</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>die Schrift %1 fehlt (fonts-%2): Texte passen vielleicht nicht</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Monate</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>Bezug</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>ins Netz</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>Solar</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>Wärme</translation>
    </message>
    <message>
        <source>water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>totaal</source>
        <translation>gesamt</translation>
    </message>
    <message>
        <source>MMM yyyy</source>
        <translation>MMM yyyy</translation>
    </message>
    <message>
        <source>maand</source>
        <translation>Monat</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>der Rechner wurde nicht gefunden</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>der Broker hat sie beendet</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>der Broker antwortet nicht</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>keine Verschlüsselung: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>der Broker verlangt Benutzer und Passwort, und es gibt keine Datei mit Zugangsdaten</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>der Broker weist Benutzer und Passwort der Zugangsdaten ab</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>der Broker lehnt ab: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>die Verbindung ist abgebrochen: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>es kommt keine Verbindung zustande: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>keines der Themen von %1 wird veröffentlicht; das erste ist %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>eine Nachricht ist unlesbar: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n Nachricht ist unlesbar, die letzte: %1</numerusform>
            <numerusform>%n Nachrichten sind unlesbar, die letzte: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>ein Zählerstand ist nicht unter 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>dort steht keine Zahl</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>das ist keine Einheit dessen, was gemessen wird</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 meldete %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>dieser Zeitpunkt liegt in der Zukunft</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>dort steht keine Zeit mit ihrem Abstand zu UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>%1 gesamt</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 diese Woche</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, Woche vom %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (unvollständig)</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>es ist abgebrochen</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>es endet nicht innerhalb von %1 Bytes</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>der Anfang fehlt</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>Telegramm %1 zählt nicht: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>weitere werden erst nach einem guten wieder genannt</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>darin ist kein Telegramm</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>durch die Verbindung kommt nichts; sie wird neu aufgebaut</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>die Verbindung ist abgebrochen: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>es kommt keine Verbindung zustande: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 ist unlesbar</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>die Prüfsumme ist %1 und müsste %2 sein</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>es hat keine Prüfsumme</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>es enthält keinen hier bekannten Zählerstand</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>es ist kein Telegramm</translation>
    </message>
</context>
<context>
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>Erzeugung</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>aus dem Netz</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>ins Netz</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>darin sind keine Preise</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: dem Kopf %2 fehlen die Spalten „time“ und „eur_per_kwh“</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>die Zeile hat nicht die %1 Felder des Kopfes</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 ist kein Preis einer kWh in Euro</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 widerspricht einem früheren Preis dieser Stunde; ausgelassen</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>die Stunde ab %1 liegt teils in einer anderen mit Preis; ausgelassen</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>aus dem Netz</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>Einspeisung</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>Erzeugung</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>Wärme</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>Wärmepumpe</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>Auto</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1: der Zähler geht bei %2 %3 weiter, was nicht zum vorigen Stand passt: es ist ein anderer, oder er wurde zurückgesetzt</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>es gibt keine Spalte außer „%1“</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>unbekannte Spalte %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>Spalte %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>keine bekannte Art von Datei hat den Kopf %1; welche es gibt, steht in docs/readings.md</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>Strombezug</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>Einspeisung</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>Solarstrom</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>Wärme</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>Wärmepumpe</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>Elektroauto</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (Niedertarif)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (Hochtarif)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>das Lesen brach ab: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>darin sind keine Zählerstände</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>dieses System kennt die Zeitzone %1 nicht; es gilt UTC</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>die Zeile ist zu lang</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>ein Anführungszeichen schließt nicht am Ende des Feldes</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>die Zahl der Felder ist %1, nicht %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>kein Zeitpunkt: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>keine Dauer eines Zeitraums: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>unbekannte Zeitzone %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>keine Zahl: %1 in Spalte „%2“</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>eine Zeit, die die Uhr in %1 überspringt; Zeile ausgelassen</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>ausgelassen: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 ist schon bekannt %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>aus einem Zählwerk</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>nach Tarif</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; Zeile ausgelassen</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>widerspricht einem früheren Wert für diese Zeit; ausgelassen</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>gilt für einen Teil eines schon bekannten Zeitraums; ausgelassen</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>ist kleiner als zuvor, der nächste nicht; ausgelassen</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>ist größer als das Folgende; ausgelassen</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>passt nicht zum vorigen Stand: ein anderer Zähler oder zurückgesetzt</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>passt nicht zum vorigen Stand; ausgelassen, bis mehr bekannt ist</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>ist mehr, als ein Haushalt verbrauchen kann; ausgelassen</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>ist aus der Zeitzone %1; die Zählerstände stehen auf der Uhr von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>noch %n fehlerhafte Zeile, ausgelassen</numerusform>
            <numerusform>noch %n fehlerhafte Zeilen, ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>noch %n Zeile zu einer Zeit, die die Uhr überspringt, ausgelassen</numerusform>
            <numerusform>noch %n Zeilen zu Zeiten, die die Uhr überspringt, ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>noch %n Wert, der einem früheren widerspricht, ausgelassen</numerusform>
            <numerusform>noch %n Werte, die früheren widersprechen, ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>noch %n Zählerstand, der nicht passt</numerusform>
            <numerusform>noch %n Zählerstände, die nicht passen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>noch %n Problem</numerusform>
            <numerusform>noch %n Probleme</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>nie</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Einheitstarif</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Tag und Nacht</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Dieses Display liest die Zähler im Haus und speichert, was es liest, nur in seinem eigenen Speicher. Es sendet nichts nach außen und braucht kein Konto.&lt;/p&gt;&lt;p&gt;Der Name des Hauses, der Preis, der Tarif und das Ziel stehen in einer Datei auf diesem Display. Mit &lt;b&gt;Alles löschen&lt;/b&gt; auf der Seite der Einstellungen verschwindet alles, was hier eingegeben wurde.&lt;/p&gt;&lt;p&gt;Was die Zähler gezählt haben, steht in einer zweiten Datei, damit die Diagramme nach dem Ausschalten noch da sind: die Stände jeder Stunde für immer, die von je fünf Minuten hundert Tage lang. Alles löschen lässt sie stehen. Die Datei heißt history.sqlite und liegt im Ordner zemkit bei den Daten des Benutzers dieses Displays.&lt;/p&gt;&lt;p&gt;Wer das Display verkauft oder weggibt, löscht zuerst alle Einstellungen, schaltet es aus und löscht dann diese Datei. Neue Bewohner beginnen mit einem leeren Display, das den Zählern von da an folgt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>Name des Hauses</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>Preis einer kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>Bildschirm aus nach</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>Bildschirm nachts aus</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>Was wird gespeichert?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Name des Hauses</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>Die Preise stehen im Vertrag</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Preis einer kWh in Euro</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Ein Preis von 0 bis %1 Euro</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Bildschirm aus nach</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>ab %1 Uhr</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Bildschirm nachts aus</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>bis %1 Uhr</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Alles löschen?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Alle Einstellungen gehen verloren.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>laut Vertrag</translation>
    </message>
    <message>
        <source>€ %1</source>
        <translation>%1&#xa0;€</translation>
    </message>
    <message>
        <source>H:mm</source>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>%1 – %2 uur</source>
        <translation>%1 – %2 Uhr</translation>
    </message>
</context>
<context>
    <name>ViewTexts</name>
    <message>
        <source>ddd d MMM yyyy</source>
        <translation>ddd, d. MMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2 – %3 uur</source>
        <translation>%1, %2 – %3 Uhr</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>Woche vom %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMMM</source>
        <translation>ddd, d. MMMM</translation>
    </message>
    <message>
        <source>t/m</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>ddd d</source>
        <translation>ddd, d.</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>ddd, d. MMM</translation>
    </message>
    <message>
        <source>d</source>
        <translation>d.</translation>
    </message>
    <message>
        <source>d MMM</source>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <translation>d. MMMM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Standen lezen …</source>
        <translation>Zählerstände werden gelesen …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>Das Haus erwacht …</translation>
    </message>
</context>
</TS>
