<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Analiza</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd, d MMMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>sieć na godzinę</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Brak danych z tego dnia</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Przeciągnij w lewo do góry, by wrócić do całego dnia</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Dotknij linii lub przeciągnij, by powiększyć</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: nie można przełączyć podświetlenia: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Wykresy</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Nie odebrano jeszcze żadnego licznika</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Żaden licznik nie mierzy pojedynczych urządzeń.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>dziś</translation>
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
        <translation>stan z %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>d.MM.yyyy</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>symulacja, %1</translation>
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
        <translation>dddd, d MMMM yyyy, HH:mm</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <translation>ddd, d MMM, HH:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>do sieci</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>z sieci</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: ustawienia nie zostały zapisane</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>Licznik znów odpowiada.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>Licznik milczy.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Brak komunikatów</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Komunikaty</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Komunikat</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Wykresy</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analiza</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Miesiące</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Cele</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>strony</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>komunikaty</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Droga strefa</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>Z sieci</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Tania strefa</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>W tym tania strefa</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>tania strefa</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Produkcja</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Oddawanie</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Ciepło</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Woda</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 z %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Poza domem</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Urlop</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>W domu</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Cele</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>cel roczny, z sieci</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>Z sieci na rok, w kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Liczba od 1 do %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>budżet z sieci, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>dotychczas %1&#xa0;€</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>dotychczas %1 euro</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>z sieci, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>wczoraj</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>ma wersję %1, a najnowsza znana tutaj to %2</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>historię prowadzi inny ekran; ten ją pokazuje i nic nie dodaje</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>nie można utworzyć folderu; historia nie jest zapisywana</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>historię zapisała nowsza wersja programu (%1); pozostaje bez zmian i nic nie jest zapisywane</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>nie można zapisywać historii: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>historia jest uszkodzona (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>historia jest uszkodzona (%1) i nie można jej odłożyć; nic nie jest zapisywane</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>historia jest uszkodzona (%1); odłożono ją jako %2 i zaczęto nową</translation>
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
            <numerusform>%n raz, od %1 do %2</numerusform>
            <numerusform>%n razy, od %1 do %2</numerusform>
            <numerusform>%n razy, od %1 do %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>zegar licznika spieszy się o %n minutę względem zegara ekranu; słupki stoją według zegara licznika</numerusform>
            <numerusform>zegar licznika spieszy się o %n minuty względem zegara ekranu; słupki stoją według zegara licznika</numerusform>
            <numerusform>zegar licznika spieszy się o %n minut względem zegara ekranu; słupki stoją według zegara licznika</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>brak kroju pisma %1 (fonts-%2): teksty mogą się nie zmieścić</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Miesiące</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>z sieci</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>oddane</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>słońce</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>ciepło</translation>
    </message>
    <message>
        <source>water</source>
        <translation>woda</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>stałe</translation>
    </message>
    <message>
        <source>totaal</source>
        <translation>razem</translation>
    </message>
    <message>
        <source>MMM yyyy</source>
        <translation>MMM yyyy</translation>
    </message>
    <message>
        <source>maand</source>
        <translation>miesiąc</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>nie znaleziono komputera</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>zakończył je broker</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>broker nie odpowiada</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>brak szyfrowania: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>broker wymaga użytkownika i hasła, a nie ma pliku z danymi logowania</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>broker odrzuca użytkownika i hasło</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>broker odmawia: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>utracono połączenie: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>nie można się połączyć: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>żaden z tematów %1 nie jest publikowany; pierwszy to %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>wiadomość jest nieczytelna: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n wiadomość jest nieczytelna, ostatnia: %1</numerusform>
            <numerusform>%n wiadomości są nieczytelne, ostatnia: %1</numerusform>
            <numerusform>%n wiadomości jest nieczytelnych, ostatnia: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>stan licznika nie jest mniejszy od 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>nie ma liczby</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>to nie jest jednostka tego, co się mierzy</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 podał %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>ten czas dopiero nadejdzie</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>nie ma czasu z przesunięciem od UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analiza</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Cele</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>łącznie %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 w tym tygodniu</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, tydzień od %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (niepełne)</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>jest urwany</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>nie kończy się w ciągu %1 bajtów</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>brakuje początku</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>telegram %1 odrzucono: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>dalsze nie są wymieniane, aż nadejdzie dobry</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>nie ma w nim telegramu</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>połączeniem nic nie przychodzi; jest nawiązywane na nowo</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>utracono połączenie: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>nie można się połączyć: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 jest nieczytelne</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>suma kontrolna to %1, a powinna być %2</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>nie ma sumy kontrolnej</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>nie zawiera znanego tu stanu</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>to nie jest telegram</translation>
    </message>
</context>
<context>
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>zużycie</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>produkcja</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>z sieci</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>do sieci</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>nie ma w nim cen</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: w nagłówku %2 brak kolumn „time” i „eur_per_kwh”</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>wiersz nie ma %1 pól nagłówka</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 nie jest ceną kWh w euro</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 przeczy wcześniejszej cenie tej godziny; pominięto</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>godzina od %1 nachodzi na inną, która ma cenę; pominięto</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>z sieci</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>oddawanie</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>produkcja</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>water</source>
        <translation>woda</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>ciepło</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>pompa ciepła</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>samochód</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1: licznik zaczyna od %2 %3, co nie wynika z poprzedniego stanu: to inny licznik albo go wyzerowano</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>to folder</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>jest tylko kolumna „%1”</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>nieznana kolumna %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>kolumna %1 powtarza się</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>żaden znany rodzaj pliku nie ma nagłówka %1; docs/readings.md opisuje istniejące</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>prąd</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>oddawanie</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>produkcja słoneczna</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>water</source>
        <translation>woda</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>ciepło</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>pompa ciepła</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>samochód elektryczny</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (tania strefa)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (droga strefa)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>odczyt przerwano: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>nie ma w nim stanów licznika</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>plik jest pusty</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>nie można odczytać: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>ten system nie zna strefy czasowej %1; obowiązuje UTC</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>wiersz jest za długi</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>cudzysłów nie zamyka się na końcu pola</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>liczba pól to %1, a nie %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>błędna data: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>błędna długość okresu: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>nieznana strefa czasowa %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>błędna liczba: %1 w kolumnie „%2”</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>czas, który zegar w %1 przeskakuje; wiersz pominięto</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>pominięto: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 jest już znane %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>z jednego liczydła</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>według taryf</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; wiersz pominięto</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>przeczy wcześniejszej wartości dla tego czasu; pominięto</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>dotyczy części znanego już okresu; pominięto</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>jest mniejsze niż przedtem, a następne nie; pominięto</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>jest większe niż następne; pominięto</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>nie wynika z poprzedniego stanu: inny licznik lub wyzerowanie</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>nie wynika z poprzedniego stanu; pominięto do czasu wyjaśnienia</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>to więcej, niż może zużyć gospodarstwo domowe; pominięto</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>jest ze strefy czasowej %1; stany pokazano według zegara w %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>jeszcze %n uszkodzony wiersz, pominięto</numerusform>
            <numerusform>jeszcze %n uszkodzone wiersze, pominięto</numerusform>
            <numerusform>jeszcze %n uszkodzonych wierszy, pominięto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>jeszcze %n wiersz o czasie, który zegar przeskakuje, pominięto</numerusform>
            <numerusform>jeszcze %n wiersze o czasie, który zegar przeskakuje, pominięto</numerusform>
            <numerusform>jeszcze %n wierszy o czasie, który zegar przeskakuje, pominięto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>jeszcze %n wartość sprzeczna z wcześniejszą, pominięto</numerusform>
            <numerusform>jeszcze %n wartości sprzeczne z wcześniejszymi, pominięto</numerusform>
            <numerusform>jeszcze %n wartości sprzecznych z wcześniejszymi, pominięto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>jeszcze %n stan, który nie pasuje</numerusform>
            <numerusform>jeszcze %n stany, które nie pasują</numerusform>
            <numerusform>jeszcze %n stanów, które nie pasują</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>jeszcze %n problem</numerusform>
            <numerusform>jeszcze %n problemy</numerusform>
            <numerusform>jeszcze %n problemów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>nigdy</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n minucie</numerusform>
            <numerusform>%n minutach</numerusform>
            <numerusform>%n minutach</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Jedna strefa</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Dzień i noc</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ten ekran odczytuje liczniki w domu i zapisuje odczyty tylko we własnej pamięci. Niczego nie wysyła na zewnątrz i nie wymaga konta.&lt;/p&gt;&lt;p&gt;Nazwa domu, cena, taryfa i cel są w pliku na tym ekranie. &lt;b&gt;Usuń wszystko&lt;/b&gt; na stronie ustawień usuwa wszystko, co tu wpisano.&lt;/p&gt;&lt;p&gt;To, co naliczyły liczniki, jest w drugim pliku, aby wykresy były po wyłączeniu: stany z każdej godziny na zawsze, z każdych pięciu minut przez sto dni. Usuń wszystko ich nie rusza. Plik nazywa się history.sqlite i leży w folderze zemkit wśród danych użytkownika ekranu.&lt;/p&gt;&lt;p&gt;Kto sprzedaje lub oddaje ekran, najpierw usuwa wszystkie ustawienia, wyłącza go, a potem kasuje ten plik. Nowy mieszkaniec zaczyna z pustym ekranem, który od tej chwili śledzi liczniki.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>nazwa domu</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>cena za kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>taryfa</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>klawiatura</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>ekran gaśnie po</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>ekran zgaszony w nocy</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>wyjaśnienie</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>Co jest zapisywane?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Usuń wszystko</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Nazwa domu</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>Ceny są w umowie</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Cena za kWh w euro</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Cena od 0 do %1 euro</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Taryfa</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Klawiatura</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Ekran gaśnie po</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>od godz. %1</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Ekran zgaszony w nocy</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>do godz. %1</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Usunąć wszystko?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Wszystkie ustawienia przepadną.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>według umowy</translation>
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
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>%1, %2 – %3 uur</source>
        <translation>%1, godz. %2 – %3</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>tydzień od %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMMM</source>
        <translation>ddd, d MMMM</translation>
    </message>
    <message>
        <source>t/m</source>
        <translation>do</translation>
    </message>
    <message>
        <source>ddd d</source>
        <translation>ddd, d</translation>
    </message>
    <message>
        <source>ddd d MMM</source>
        <translation>ddd, d MMM</translation>
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
        <translation>Odczytywanie stanów …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>Dom budzi się do życia …</translation>
    </message>
</context>
</TS>
