<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="nl_NL">
<context>
    <name>AnalysisPage</name>
    <message>
        <source>Analyse</source>
        <translation>Análisis</translation>
    </message>
    <message>
        <source>ddd d MMMM yyyy</source>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>net per uur</source>
        <translation>red por hora</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>No hay datos de este día</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Arrastre arriba a la izquierda para ver todo el día</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Toque una línea o arrastre para ampliar</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: no se puede cambiar la iluminación: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Aún no se ha recibido ningún contador</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Aparatos</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Ningún contador mide aparatos sueltos.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMM yyyy, HH:mm</source>
        <translation>ddd, d MMM yyyy, H:mm</translation>
    </message>
    <message>
        <source>stand van %1</source>
        <translation>lectura del %1</translation>
    </message>
    <message>
        <source>d-M-yyyy</source>
        <translation>d/M/yyyy</translation>
    </message>
    <message>
        <source>simulatie, %1</source>
        <translation>simulación, %1</translation>
    </message>
    <message>
        <source>d MMM, HH:mm</source>
        <translation>d MMM, H:mm</translation>
    </message>
    <message>
        <source>HH:mm</source>
        <translation>H:mm</translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy, HH:mm</source>
        <translation>dddd, d &apos;de&apos; MMMM &apos;de&apos; yyyy, H:mm</translation>
    </message>
    <message>
        <source>ddd d MMM, HH:mm</source>
        <translation>ddd, d MMM, H:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>a la red</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>de la red</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: los ajustes no se han guardado</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>El contador vuelve a responder.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>El contador no responde.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Sin avisos</translation>
    </message>
    <message>
        <source>Meldingen</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Melding</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Overzicht</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Aparatos</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Análisis</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Meses</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Pagina&apos;s</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>pagina&apos;s</source>
        <translation>páginas</translation>
    </message>
    <message>
        <source>meldingen</source>
        <translation>avisos</translation>
    </message>
</context>
<context>
    <name>Energy</name>
    <message>
        <source>Normaal tarief</source>
        <translation>Tarifa punta</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>De la red</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Tarifa valle</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>De ello, tarifa valle</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>tarifa valle</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Producción</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Excedentes</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Calor</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Agua</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 de %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Fuera de día</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Vacaciones</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>En casa</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>perfil</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>objetivo anual, de la red</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>De la red al año, en kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Un número de 1 a %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>presupuesto de la red, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>hasta ahora %1&#xa0;€</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>hasta ahora %1 euros</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>de la red, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>ayer</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>tiene la versión %1 y la más nueva conocida aquí es la %2</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>otra pantalla guarda el historial; esta lo muestra y no añade nada</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>no se puede crear la carpeta; no se guarda el historial</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>el historial es de una versión más nueva de este programa (%1); no se toca y no se guarda nada</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>no se puede guardar el historial: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>el historial está dañado (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>el historial está dañado (%1) y no se puede apartar; no se guarda nada</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>el historial está dañado (%1); se aparta como %2 y empieza uno nuevo</translation>
    </message>
</context>
<context>
    <name>MessageList</name>
    <message>
        <source>d MMM HH:mm</source>
        <translation>d MMM H:mm</translation>
    </message>
    <message numerus="yes">
        <source>%n keer, van %1 tot %2</source>
        <translation>
            <numerusform>%n vez, del %1 al %2</numerusform>
            <numerusform>%n veces, del %1 al %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>el reloj del contador va %n minuto adelantado al de la pantalla; las barras siguen el reloj del contador</numerusform>
            <numerusform>el reloj del contador va %n minutos adelantado al de la pantalla; las barras siguen el reloj del contador</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>falta la fuente %1 (fonts-%2): puede que los textos no quepan</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Meses</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>de la red</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>vertido</translation>
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
        <translation>calor</translation>
    </message>
    <message>
        <source>water</source>
        <translation>agua</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>fijo</translation>
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
        <translation>mes</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>no se encuentra el equipo</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>el broker la ha cerrado</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>el broker no responde</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>sin cifrado: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>el broker pide usuario y contraseña, y no hay archivo de credenciales</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>el broker rechaza el usuario y la contraseña</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>el broker lo rechaza: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>se ha perdido la conexión: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>no se puede conectar: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>no se publica ningún tema de %1; el primero es %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>un mensaje es ilegible: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n mensaje es ilegible, el último: %1</numerusform>
            <numerusform>%n mensajes son ilegibles, el último: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>una lectura no es menor que 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>no hay ningún número</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>no es una unidad de lo que se mide</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 comunicó %2: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>ese momento aún está por llegar</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>no hay una hora con su diferencia con UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Análisis</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>total %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 esta semana</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, semana del %2</translation>
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
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>está cortado</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>no termina en %1 bytes</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>falta el principio</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>el telegrama %1 se descarta: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>no se nombran más hasta que llegue uno bueno</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>no contiene ningún telegrama</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>no llega nada por la conexión; se rehace</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>se ha perdido la conexión: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>no se puede conectar: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 es ilegible</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>la suma de control es %1 y debería ser %2</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>no tiene suma de control</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>no contiene ninguna lectura conocida aquí</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>no es un telegrama</translation>
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
        <translation>producción</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>de la red</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>a la red</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>no contiene precios</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: a la cabecera %2 le faltan las columnas «time» y «eur_per_kwh»</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>la fila no tiene los %1 campos de la cabecera</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 no es un precio del kWh en euros</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 contradice un precio anterior de esta hora; omitido</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>la hora desde %1 coincide en parte con otra que tiene precio; omitida</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>de la red</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>excedentes</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>producción</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>agua</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>calor</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>bomba de calor</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>coche</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1: el contador sigue en %2 %3, que no continúa la lectura anterior: es otro o se ha reiniciado</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>no hay más columna que «%1»</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>columna desconocida %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>la columna %1 está repetida</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>ningún tipo de archivo conocido tiene la cabecera %1; docs/readings.md dice cuáles hay</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>electricidad</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>excedentes</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>producción solar</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gas</translation>
    </message>
    <message>
        <source>water</source>
        <translation>agua</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>calor</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>bomba de calor</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>coche eléctrico</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (tarifa valle)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (tarifa punta)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>la lectura se detuvo: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>no contiene lecturas</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>este sistema no conoce la zona horaria %1; se usa UTC</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la línea es demasiado larga</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>unas comillas no se cierran al final del campo</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>el número de campos es %1, no %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>fecha no válida: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>duración no válida: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>zona horaria desconocida %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>número no válido: %1 en la columna «%2»</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>una hora que el reloj de %1 se salta; fila omitida</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>omitido: %1; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 ya se conoce %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>por un solo registro</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>por tarifa</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>; fila omitida</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>contradice un valor anterior de ese momento; omitido</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>es de una parte de un periodo ya conocido; omitido</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>es menor que antes, y el siguiente no; omitido</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>es mayor que lo que sigue; omitido</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>no continúa la lectura anterior: otro contador o reiniciado</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>no continúa la lectura anterior; omitido hasta saber más</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>es más de lo que puede gastar un hogar; omitido</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>es de la zona horaria %1; sus lecturas siguen el reloj de %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>%n fila rota más, omitida</numerusform>
            <numerusform>%n filas rotas más, omitidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>%n fila más a una hora que el reloj se salta, omitida</numerusform>
            <numerusform>%n filas más a horas que el reloj se salta, omitidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>%n valor más que contradice a otro anterior, omitido</numerusform>
            <numerusform>%n valores más que contradicen a otros anteriores, omitidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>%n lectura más que no encaja</numerusform>
            <numerusform>%n lecturas más que no encajan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>%n problema más</numerusform>
            <numerusform>%n problemas más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>nunca</translation>
    </message>
    <message numerus="yes">
        <source>%n minuten</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Enkel tarief</source>
        <translation>Tarifa única</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Día y noche</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Esta pantalla lee los contadores de la casa y guarda lo que lee solo en su propia memoria. No envía nada fuera ni necesita ninguna cuenta.&lt;/p&gt;&lt;p&gt;El nombre de la casa, el precio, la tarifa y el objetivo están en un archivo de esta pantalla. &lt;b&gt;Borrar todo&lt;/b&gt;, en la página de ajustes, elimina todo lo que se ha introducido aquí.&lt;/p&gt;&lt;p&gt;Lo que contaron los contadores está en un segundo archivo, para que los gráficos sigan ahí después de apagarla: las lecturas de cada hora para siempre, las de cada cinco minutos durante cien días. Borrar todo no las toca. El archivo se llama history.sqlite y está en la carpeta zemkit, entre los datos del usuario de la pantalla.&lt;/p&gt;&lt;p&gt;Quien venda o regale la pantalla borra primero todos los ajustes, la apaga y elimina después ese archivo. Quien llega empieza con una pantalla vacía, que sigue los contadores desde ese momento.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>nombre de la casa</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>precio del kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>tarifa</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>teclado</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>pantalla apagada tras</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>pantalla apagada de noche</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>explicación</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>¿Qué se guarda aquí?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Nombre de la casa</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>Los precios están en el contrato</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Precio del kWh en euros</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Un precio de 0 a %1 euros</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tarifa</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Pantalla apagada tras</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>desde las %1 h</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Pantalla apagada de noche</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>hasta las %1 h</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>¿Borrar todo?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Se perderán todos los ajustes.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>según contrato</translation>
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
        <translation>%1 – %2 h</translation>
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
        <translation>%1, %2 – %3 h</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>semana del %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>ddd d MMMM</source>
        <translation>ddd, d &apos;de&apos; MMMM</translation>
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
        <translation>d &apos;de&apos; MMMM</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Standen lezen …</source>
        <translation>Leyendo las lecturas …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>La casa despierta …</translation>
    </message>
</context>
</TS>
