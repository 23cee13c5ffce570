<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Analisi</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd d MMMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>rete per ora</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Nessun dato per questo giorno</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Trascina in alto a sinistra per il giorno intero</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Tocca una linea o trascina per ingrandire</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: la retroilluminazione non si comanda: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Grafici</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Nessun contatore ricevuto finora</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Apparecchi</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Nessun contatore misura i singoli apparecchi.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>oggi</translation>
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
        <translation>lettura del %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>d/M/yyyy</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>simulazione, %1</translation>
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
        <translation>verso la rete</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>dalla rete</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: impostazioni non salvate</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>Il contatore risponde di nuovo.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>Il contatore non risponde.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Nessun avviso</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Avvisi</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Grafici</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Apparecchi</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analisi</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Mesi</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Obiettivi</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>pagine</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>avvisi</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Tariffa piena</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>Dalla rete</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Tariffa ridotta</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>Di cui tariffa ridotta</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>tariffa ridotta</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Produzione</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Immissione</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Calore</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Acqua</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 su %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Fuori di giorno</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Vacanza</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>A casa</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Obiettivi</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>profilo</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>obiettivo annuale, dalla rete</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>Dalla rete all’anno, in kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Un numero da 1 a %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>budget dalla rete, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>finora %1&#xa0;€</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>finora %1 euro</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>dalla rete, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>ieri</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>ha la versione %1, e la più recente nota qui è la %2</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>un altro schermo tiene lo storico; questo lo mostra e non aggiunge nulla</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>la cartella non si può creare; lo storico non viene conservato</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>lo storico è di una versione più recente di questo programma (%1); non viene toccato e non si conserva nulla</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>lo storico non si può conservare: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>lo storico è danneggiato (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>lo storico è danneggiato (%1) e non si può mettere da parte; non si conserva nulla</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>lo storico è danneggiato (%1); viene messo da parte come %2 e ne inizia uno nuovo</translation>
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
            <numerusform>%n volta, dal %1 al %2</numerusform>
            <numerusform>%n volte, dal %1 al %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>l’orologio del contatore è avanti di %n minuto su quello dello schermo; le barre seguono l’orologio del contatore</numerusform>
            <numerusform>l’orologio del contatore è avanti di %n minuti su quello dello schermo; le barre seguono l’orologio del contatore</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>manca il carattere %1 (fonts-%2): i testi potrebbero non starci</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Mesi</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>dalla rete</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>immesso</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>solare</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>calore</translation>
    </message>
    <message>
        <source>water</source>
        <translation>acqua</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>fisso</translation>
    </message>
    <message>
        <source>totaal</source>
        <translation>totale</translation>
    </message>
    <message>
        <source>MMM yyyy</source>
        <translation>MMM yyyy</translation>
    </message>
    <message>
        <source>maand</source>
        <translation>mese</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>il computer non si trova</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>il broker l’ha chiusa</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>il broker non risponde</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>nessuna cifratura: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>il broker vuole utente e password, e non c’è un file di credenziali</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>il broker rifiuta utente e password delle credenziali</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>il broker rifiuta: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>la connessione è caduta: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>la connessione non riesce: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>nessun argomento di %1 viene pubblicato; il primo è %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>un messaggio è illeggibile: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n messaggio è illeggibile, l’ultimo: %1</numerusform>
            <numerusform>%n messaggi sono illeggibili, l’ultimo: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>una lettura non è sotto 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>non c’è un numero</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>non è un’unità di ciò che si misura</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 ha inviato %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>quel momento deve ancora venire</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>non c’è un’ora con lo scarto da UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analisi</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Obiettivi</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>totale %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 questa settimana</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, settimana del %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (incompleto)</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>non si può aprire: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>non si può aprire: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>non si può aprire: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>è troncato</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>non finisce entro %1 byte</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>manca l’inizio</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>il telegramma %1 è scartato: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>gli altri non si nominano finché non ne arriva uno buono</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>non contiene alcun telegramma</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>dalla connessione non arriva nulla; viene rifatta</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>la connessione è caduta: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>la connessione non riesce: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 è illeggibile</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>la somma di controllo è %1 e dovrebbe essere %2</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>non ha una somma di controllo</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>non contiene letture note qui</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>non è un telegramma</translation>
    </message>
</context>
<context>
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>consumo</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>produzione</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>dalla rete</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>verso la rete</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>non contiene prezzi</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: all’intestazione %2 mancano le colonne «time» ed «eur_per_kwh»</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>la riga non ha i %1 campi dell’intestazione</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 non è un prezzo del kWh in euro</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 contraddice un prezzo precedente di quest’ora; saltato</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>l’ora da %1 cade in parte in un’altra con un prezzo; saltata</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>dalla rete</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>immissione</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>produzione</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>acqua</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>calore</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>pompa di calore</translation>
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
        <translation>%1: il contatore riprende da %2 %3, che non segue la lettura precedente: è un altro, o è stato azzerato</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>non si può aprire: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>non c’è altra colonna che «%1»</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>colonna sconosciuta %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>la colonna %1 compare due volte</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>nessun tipo di file noto ha l’intestazione %1; docs/readings.md dice quali ci sono</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>elettricità</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>immissione</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>produzione solare</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>acqua</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>calore</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>pompa di calore</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>auto elettrica</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (tariffa ridotta)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (tariffa piena)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>la lettura si è fermata: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>non contiene letture</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>non si può leggere: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>questo sistema non conosce il fuso orario %1; si usa UTC</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la riga è troppo lunga</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>le virgolette non si chiudono alla fine del campo</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>il numero di campi è %1, non %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>data non valida: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>durata non valida: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>fuso orario sconosciuto %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>numero non valido: %1 nella colonna «%2»</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>un’ora che l’orologio di %1 salta; riga saltata</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>saltato: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 è già noto %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>da un solo registro</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>per tariffa</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; riga saltata</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>contraddice un valore precedente per quel momento; saltato</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>riguarda parte di un periodo già noto; saltato</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>è minore di prima, e il successivo no; saltato</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>è maggiore di ciò che segue; saltato</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>non segue la lettura precedente: altro contatore o azzerato</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>non segue la lettura precedente; saltato finché non se ne sa di più</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>è più di quanto una casa possa consumare; saltato</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>è del fuso orario %1; le letture seguono l’ora di %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>ancora %n riga guasta, saltata</numerusform>
            <numerusform>ancora %n righe guaste, saltate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>ancora %n riga a un’ora che l’orologio salta, saltata</numerusform>
            <numerusform>ancora %n righe a ore che l’orologio salta, saltate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>ancora %n valore che ne contraddice uno precedente, saltato</numerusform>
            <numerusform>ancora %n valori che ne contraddicono di precedenti, saltati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>ancora %n lettura che non quadra</numerusform>
            <numerusform>ancora %n letture che non quadrano</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>ancora %n problema</numerusform>
            <numerusform>ancora %n problemi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>mai</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minuti</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Tariffa unica</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Giorno e notte</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Questo schermo legge i contatori di casa e conserva ciò che legge solo nella propria memoria. Non invia nulla all’esterno e non richiede un account.&lt;/p&gt;&lt;p&gt;Il nome della casa, il prezzo, la tariffa e l’obiettivo sono in un file di questo schermo. &lt;b&gt;Cancella tutto&lt;/b&gt;, nella pagina delle impostazioni, elimina tutto ciò che è stato inserito qui.&lt;/p&gt;&lt;p&gt;Ciò che i contatori hanno contato è in un secondo file, perché i grafici ci siano ancora dopo lo spegnimento: le letture di ogni ora per sempre, quelle di ogni cinque minuti per cento giorni. Cancella tutto non le tocca. Il file si chiama history.sqlite e si trova nella cartella zemkit, tra i dati dell’utente dello schermo.&lt;/p&gt;&lt;p&gt;Chi vende o regala lo schermo cancella prima tutte le impostazioni, lo spegne e poi elimina quel file. Chi arriva comincia con uno schermo vuoto, che segue i contatori da quel momento.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>nome della casa</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>prezzo del kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>tariffa</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>tastiera</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>schermo spento dopo</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>schermo spento di notte</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>spiegazione</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>Che cosa conserva?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Nome della casa</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>I prezzi sono nel contratto</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Prezzo del kWh in euro</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Un prezzo da 0 a %1 euro</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tariffa</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Tastiera</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Schermo spento dopo</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>dalle ore %1</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Schermo spento di notte</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>fino alle ore %1</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Cancellare tutto?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Le impostazioni andranno perse.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>da contratto</translation>
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
        <translation>%1, ore %2 – %3</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>settimana del %1</translation>
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
        <translation>al</translation>
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
        <translation>Lettura dei dati …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>La casa si anima …</translation>
    </message>
</context>
</TS>
