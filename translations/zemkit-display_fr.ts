<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="nl_NL">
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
        <translation>réseau/heure</translation>
    </message>
    <message>
        <source>Van deze dag is niets bekend</source>
        <translation>Aucune donnée pour ce jour</translation>
    </message>
    <message>
        <source>Sleep naar linksboven voor de hele dag</source>
        <translation>Glissez en haut à gauche pour le jour entier</translation>
    </message>
    <message>
        <source>Tik op een lijn, of sleep om in te zoomen</source>
        <translation>Touchez une courbe, ou glissez pour agrandir</translation>
    </message>
</context>
<context>
    <name>Backlight</name>
    <message>
        <source>%1: the backlight cannot be switched: %2</source>
        <translation>%1: le rétroéclairage ne se commande pas&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ChartsPage</name>
    <message>
        <source>Grafieken</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Er is nog geen meter gehoord</source>
        <translation>Aucun compteur n’a encore été reçu</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Apparaten</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Geen meter telt losse apparaten.</source>
        <translation>Aucun compteur ne mesure les appareils un à un.</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>vandaag</source>
        <translation>aujourd’hui</translation>
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
        <translation>relevé du %1</translation>
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
        <translation>ddd d MMM, HH:mm</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>vers le réseau</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>du réseau</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>%1: instellingen zijn niet bewaard</source>
        <translation>%1: réglages non enregistrés</translation>
    </message>
</context>
<context>
    <name>DisplayWindow</name>
    <message>
        <source>De meter is er weer.</source>
        <translation>Le compteur répond de nouveau.</translation>
    </message>
    <message>
        <source>De meter zwijgt.</source>
        <translation>Le compteur ne répond plus.</translation>
    </message>
    <message>
        <source>Geen meldingen</source>
        <translation>Aucun message</translation>
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
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Grafieken</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Apparaten</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Maanden</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Réglages</translation>
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
        <translation>Heures pleines</translation>
    </message>
    <message>
        <source>Van het net</source>
        <translation>Du réseau</translation>
    </message>
    <message>
        <source>Laag tarief</source>
        <translation>Heures creuses</translation>
    </message>
    <message>
        <source>Waarvan laag tarief</source>
        <translation>Dont heures creuses</translation>
    </message>
    <message>
        <source>laag tarief</source>
        <translation>heures creuses</translation>
    </message>
    <message>
        <source>Opwekking</source>
        <translation>Production</translation>
    </message>
    <message>
        <source>Teruglevering</source>
        <translation>Injection</translation>
    </message>
    <message>
        <source>Gas</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>Warmte</source>
        <translation>Chaleur</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
</context>
<context>
    <name>GoalsPage</name>
    <message>
        <source>%1 van %2 kWh</source>
        <translation>%1 sur %2 kWh</translation>
    </message>
    <message>
        <source>Overdag weg</source>
        <translation>Absent le jour</translation>
    </message>
    <message>
        <source>Vakantie</source>
        <translation>Vacances</translation>
    </message>
    <message>
        <source>Thuis</source>
        <translation>À la maison</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>profiel</source>
        <translation>profil</translation>
    </message>
    <message>
        <source>doel van een jaar, van het net</source>
        <translation>objectif annuel, du réseau</translation>
    </message>
    <message>
        <source>Van het net in een jaar, in kWh</source>
        <translation>Du réseau par an, en kWh</translation>
    </message>
    <message>
        <source>Een getal van 1 tot %L1 kWh</source>
        <translation>Un nombre de 1 à %L1 kWh</translation>
    </message>
    <message>
        <source>%L1 kWh</source>
        <translation>%L1 kWh</translation>
    </message>
    <message>
        <source>budget van het net, %1</source>
        <translation>budget du réseau, %1</translation>
    </message>
    <message>
        <source>tot nu toe € %1</source>
        <translation>jusqu’ici %1&#xa0;€</translation>
    </message>
    <message>
        <source>tot nu toe %1 euro</source>
        <translation>jusqu’ici %1 euros</translation>
    </message>
    <message>
        <source>van het net, %1</source>
        <translation>du réseau, %1</translation>
    </message>
    <message>
        <source>gisteren</source>
        <translation>hier</translation>
    </message>
</context>
<context>
    <name>HistoryFile</name>
    <message>
        <source>it has version %1, and %2 is the newest known here</source>
        <translation>il a la version %1, et %2 est la plus récente connue ici</translation>
    </message>
</context>
<context>
    <name>HistoryKeeper</name>
    <message>
        <source>another display keeps the history; this one shows it and adds nothing</source>
        <translation>un autre écran tient l’historique&#xa0;; celui-ci le montre sans rien ajouter</translation>
    </message>
    <message>
        <source>the directory cannot be made; the history is not kept</source>
        <translation>le dossier ne peut pas être créé&#xa0;; l’historique n’est pas conservé</translation>
    </message>
    <message>
        <source>the history was written by a newer version of this program (%1); it is left alone, and nothing is kept</source>
        <translation>l’historique vient d’une version plus récente de ce programme (%1)&#xa0;; il reste intact, et rien n’est conservé</translation>
    </message>
    <message>
        <source>the history cannot be kept: %1</source>
        <translation>l’historique ne peut pas être conservé&#xa0;: %1</translation>
    </message>
    <message>
        <source>the history is damaged (%1)</source>
        <translation>l’historique est endommagé (%1)</translation>
    </message>
    <message>
        <source>the history is damaged (%1) and cannot be set aside; nothing is kept</source>
        <translation>l’historique est endommagé (%1) et ne peut pas être mis de côté&#xa0;; rien n’est conservé</translation>
    </message>
    <message>
        <source>the history is damaged (%1); it is set aside as %2, and a new one is begun</source>
        <translation>l’historique est endommagé (%1)&#xa0;; il est mis de côté sous %2, et un nouveau commence</translation>
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
            <numerusform>%n fois, du %1 au %2</numerusform>
            <numerusform>%n fois, du %1 au %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeterSource</name>
    <message numerus="yes">
        <source>the clock of the meter is %n minutes ahead of that of the display; bars stand where the meter&apos;s clock has them</source>
        <translation>
            <numerusform>l’horloge du compteur avance de %n minute sur celle de l’écran&#xa0;; les barres suivent l’heure du compteur</numerusform>
            <numerusform>l’horloge du compteur avance de %n minutes sur celle de l’écran&#xa0;; les barres suivent l’heure du compteur</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MissingFonts</name>
    <message>
        <source>het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet</source>
        <translation>la police %1 manque (fonts-%2)&#xa0;: des textes risquent de ne pas tenir</translation>
    </message>
</context>
<context>
    <name>MonthsPage</name>
    <message>
        <source>Maanden</source>
        <translation>Mois</translation>
    </message>
</context>
<context>
    <name>MonthsTable</name>
    <message>
        <source>van het net</source>
        <translation>du réseau</translation>
    </message>
    <message>
        <source>terug</source>
        <translation>injecté</translation>
    </message>
    <message>
        <source>zon</source>
        <translation>solaire</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>chaleur</translation>
    </message>
    <message>
        <source>water</source>
        <translation>eau</translation>
    </message>
    <message>
        <source>vast</source>
        <translation>fixe</translation>
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
        <translation>mois</translation>
    </message>
</context>
<context>
    <name>MqttLink</name>
    <message>
        <source>the host is not found</source>
        <translation>l’hôte est introuvable</translation>
    </message>
    <message>
        <source>the broker ended it</source>
        <translation>le broker y a mis fin</translation>
    </message>
    <message>
        <source>the broker does not answer</source>
        <translation>le broker ne répond pas</translation>
    </message>
    <message>
        <source>no encryption: %1</source>
        <translation>pas de chiffrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>the broker wants a user and a password, and there is no file with credentials</source>
        <translation>le broker demande un nom et un mot de passe, et il n’y a pas de fichier d’identifiants</translation>
    </message>
    <message>
        <source>the broker refuses the user and password of the credentials</source>
        <translation>le broker refuse le nom et le mot de passe donnés</translation>
    </message>
    <message>
        <source>the broker refuses: %1</source>
        <translation>le broker refuse&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MqttMeter</name>
    <message>
        <source>the connection was lost: %1</source>
        <translation>la connexion est perdue&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>la connexion ne s’établit pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>none of the topics of the mapping %1 is published; the first one is %2</source>
        <translation>aucun des sujets de %1 n’est publié&#xa0;; le premier est %2</translation>
    </message>
    <message>
        <source>a message cannot be read: %1</source>
        <translation>un message est illisible&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n messages cannot be read, the last one: %1</source>
        <translation>
            <numerusform>%n message est illisible, le dernier&#xa0;: %1</numerusform>
            <numerusform>%n messages sont illisibles, le dernier&#xa0;: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MqttReadings</name>
    <message>
        <source>a counter is not below 0</source>
        <translation>un relevé n’est pas inférieur à 0</translation>
    </message>
    <message>
        <source>there is no number</source>
        <translation>il n’y a pas de nombre</translation>
    </message>
    <message>
        <source>that is no unit of what is mapped</source>
        <translation>ce n’est pas une unité de ce qui est mesuré</translation>
    </message>
    <message>
        <source>%1 told %2: %3</source>
        <translation>%1 a envoyé %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>that time is still to come</source>
        <translation>cet instant est encore à venir</translation>
    </message>
    <message>
        <source>there is no time with its offset from UTC</source>
        <translation>il n’y a pas d’heure avec son décalage UTC</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message>
        <source>Overzicht</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Analyse</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Doelen</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>totaal %1</source>
        <translation>total %1</translation>
    </message>
    <message>
        <source>%1 deze week</source>
        <translation>%1 cette semaine</translation>
    </message>
    <message>
        <source>%1, week van %2</source>
        <translation>%1, semaine du %2</translation>
    </message>
    <message>
        <source>%1 (onvolledig)</source>
        <translation>%1 (incomplet)</translation>
    </message>
</context>
<context>
    <name>P1FileLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ne s’ouvre pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>P1PipeLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ne s’ouvre pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>P1SerialLink</name>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ne s’ouvre pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>P1Source</name>
    <message>
        <source>it is cut short</source>
        <translation>il est tronqué</translation>
    </message>
    <message>
        <source>it does not end within %1 bytes</source>
        <translation>il ne finit pas avant %1 octets</translation>
    </message>
    <message>
        <source>its beginning is missing</source>
        <translation>le début manque</translation>
    </message>
    <message>
        <source>telegram %1 is dropped: %2</source>
        <translation>le télégramme %1 est écarté&#xa0;: %2</translation>
    </message>
    <message>
        <source>no more are named until a good one comes</source>
        <translation>les suivants ne sont plus nommés avant qu’un bon arrive</translation>
    </message>
    <message>
        <source>there is no telegram in it</source>
        <translation>il ne contient aucun télégramme</translation>
    </message>
</context>
<context>
    <name>P1TcpLink</name>
    <message>
        <source>nothing comes through the connection; it is made anew</source>
        <translation>rien n’arrive par la connexion&#xa0;; elle est refaite</translation>
    </message>
    <message>
        <source>the connection was lost: %1</source>
        <translation>la connexion est perdue&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be connected to: %1</source>
        <translation>la connexion ne s’établit pas&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>P1Telegram</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 est illisible</translation>
    </message>
    <message>
        <source>its checksum is %1 and should be %2</source>
        <translation>la somme de contrôle est %1 au lieu de %2</translation>
    </message>
    <message>
        <source>it has no checksum</source>
        <translation>il n’a pas de somme de contrôle</translation>
    </message>
    <message>
        <source>it holds no reading that is known here</source>
        <translation>il ne contient aucun relevé connu ici</translation>
    </message>
    <message>
        <source>it is no telegram</source>
        <translation>ce n’est pas un télégramme</translation>
    </message>
</context>
<context>
    <name>PowerDay</name>
    <message>
        <source>verbruik</source>
        <translation>conso.</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>production</translation>
    </message>
    <message>
        <source>van het net</source>
        <translation>du réseau</translation>
    </message>
    <message>
        <source>naar het net</source>
        <translation>vers le réseau</translation>
    </message>
</context>
<context>
    <name>Prices</name>
    <message>
        <source>there are no prices in it</source>
        <translation>il ne contient aucun prix</translation>
    </message>
    <message>
        <source>%1:1: the header %2 is without the columns &quot;time&quot; and &quot;eur_per_kwh&quot;</source>
        <translation>%1:1: l’en-tête %2 n’a pas les colonnes «&#xa0;time&#xa0;» et «&#xa0;eur_per_kwh&#xa0;»</translation>
    </message>
    <message>
        <source>it has not the %1 fields of the header</source>
        <translation>la ligne n’a pas les %1 champs de l’en-tête</translation>
    </message>
    <message>
        <source>%1 is no price of a kWh in euro</source>
        <translation>%1 n’est pas un prix du kWh en euros</translation>
    </message>
    <message>
        <source>%1 contradicts an earlier price of this hour; left out</source>
        <translation>%1 contredit un prix antérieur de cette heure&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>the hour from %1 has a part in another that has a price; left out</source>
        <translation>l’heure à partir de %1 chevauche une autre qui a un prix&#xa0;; ignorée</translation>
    </message>
</context>
<context>
    <name>QuantityLook</name>
    <message>
        <source>van het net</source>
        <translation>du réseau</translation>
    </message>
    <message>
        <source>teruglevering</source>
        <translation>injection</translation>
    </message>
    <message>
        <source>opwekking</source>
        <translation>production</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>water</source>
        <translation>eau</translation>
    </message>
    <message>
        <source>warmte</source>
        <translation>chaleur</translation>
    </message>
    <message>
        <source>warmtepomp</source>
        <translation>pompe à chaleur</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>voiture</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>%1: the meter goes on at %2 %3, which does not follow from before: it is another one, or was reset</source>
        <translation>%1&#xa0;: le compteur reprend à %2 %3, ce qui ne suit pas le relevé précédent&#xa0;: c’est un autre, ou il a été remis à zéro</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>le fichier n’existe pas</translation>
    </message>
    <message>
        <source>is a directory</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ne s’ouvre pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no column but &quot;%1&quot;</source>
        <translation>il n’y a pas d’autre colonne que «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>unknown column %1</source>
        <translation>colonne inconnue %1</translation>
    </message>
    <message>
        <source>column %1 comes twice</source>
        <translation>la colonne %1 est en double</translation>
    </message>
    <message>
        <source>no known kind of file has the header %1; docs/readings.md tells of those that there are</source>
        <translation>aucun type de fichier connu n’a l’en-tête %1&#xa0;; docs/readings.md dit lesquels il y a</translation>
    </message>
    <message>
        <source>electricity import</source>
        <translation>électricité</translation>
    </message>
    <message>
        <source>electricity export</source>
        <translation>injection</translation>
    </message>
    <message>
        <source>solar production</source>
        <translation>production solaire</translation>
    </message>
    <message>
        <source>gas</source>
        <translation>gaz</translation>
    </message>
    <message>
        <source>water</source>
        <translation>eau</translation>
    </message>
    <message>
        <source>heating</source>
        <translation>chaleur</translation>
    </message>
    <message>
        <source>heat pump</source>
        <translation>pompe à chaleur</translation>
    </message>
    <message>
        <source>electric car</source>
        <translation>voiture électrique</translation>
    </message>
    <message>
        <source>%1 (low tariff)</source>
        <translation>%1 (heures creuses)</translation>
    </message>
    <message>
        <source>%1 (normal tariff)</source>
        <translation>%1 (heures pleines)</translation>
    </message>
    <message>
        <source>reading stopped: %1</source>
        <translation>la lecture s’est arrêtée&#xa0;: %1</translation>
    </message>
    <message>
        <source>there are no readings in it</source>
        <translation>il ne contient aucun relevé</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>this system does not know the time zone %1; UTC is used</source>
        <translation>ce système ne connaît pas le fuseau horaire %1&#xa0;; UTC le remplace</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la ligne est trop longue</translation>
    </message>
    <message>
        <source>a quote is not closed where its field ends</source>
        <translation>un guillemet ne se ferme pas à la fin du champ</translation>
    </message>
    <message>
        <source>the number of fields is %1, not %2</source>
        <translation>le nombre de champs est %1 et non %2</translation>
    </message>
    <message>
        <source>bad time stamp %1</source>
        <translation>date non valable&#xa0;: %1</translation>
    </message>
    <message>
        <source>bad length %1 of an interval</source>
        <translation>durée non valable&#xa0;: %1</translation>
    </message>
    <message>
        <source>unknown time zone %1</source>
        <translation>fuseau horaire inconnu %1</translation>
    </message>
    <message>
        <source>bad number %1 in column &quot;%2&quot;</source>
        <translation>nombre non valable&#xa0;: %1 dans la colonne «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>a time that the clock in %1 skips; row left out</source>
        <translation>une heure que l’horloge saute à %1&#xa0;; ligne ignorée</translation>
    </message>
    <message>
        <source>left out: %1; %2</source>
        <translation>ignoré&#xa0;: %1&#xa0;; %2</translation>
    </message>
    <message>
        <source>%1 is known already %2</source>
        <translation>%1 est déjà connu %2</translation>
    </message>
    <message>
        <source>by one register</source>
        <translation>par un seul registre</translation>
    </message>
    <message>
        <source>by tariff</source>
        <translation>par tarif</translation>
    </message>
    <message>
        <source>; row left out</source>
        <translation>&#xa0;; ligne ignorée</translation>
    </message>
    <message>
        <source>contradicts an earlier value for this time; left out</source>
        <translation>contredit une valeur antérieure pour cet instant&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>is for a part of an interval known already; left out</source>
        <translation>porte sur une partie d’une période déjà connue&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>is less than before, and the next is not; left out</source>
        <translation>est inférieur au précédent, mais pas le suivant&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>is more than what follows; left out</source>
        <translation>est supérieur à ce qui suit&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>does not follow from before: another meter or a reset</source>
        <translation>ne suit pas le relevé précédent&#xa0;: autre compteur ou remise à zéro</translation>
    </message>
    <message>
        <source>does not follow from before; left out until more is known</source>
        <translation>ne suit pas le relevé précédent&#xa0;; ignoré jusqu’à plus ample information</translation>
    </message>
    <message>
        <source>is more than a household can use; left out</source>
        <translation>dépasse ce qu’un foyer peut consommer&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>is of the time zone %1; its readings are shown by the clock in %2</source>
        <translation>est du fuseau horaire %1&#xa0;; ses relevés suivent l’heure de %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more broken rows, left out</source>
        <translation>
            <numerusform>encore %n ligne abîmée, ignorée</numerusform>
            <numerusform>encore %n lignes abîmées, ignorées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more rows at times that the clock skips, left out</source>
        <translation>
            <numerusform>encore %n ligne à une heure que l’horloge saute, ignorée</numerusform>
            <numerusform>encore %n lignes à des heures que l’horloge saute, ignorées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more values that contradict earlier ones, left out</source>
        <translation>
            <numerusform>encore %n valeur qui en contredit une autre, ignorée</numerusform>
            <numerusform>encore %n valeurs qui en contredisent d’autres, ignorées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more readings that do not fit in</source>
        <translation>
            <numerusform>encore %n relevé qui ne convient pas</numerusform>
            <numerusform>encore %n relevés qui ne conviennent pas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more problems</source>
        <translation>
            <numerusform>encore %n problème</numerusform>
            <numerusform>encore %n problèmes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>nooit</source>
        <translation>jamais</translation>
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
        <translation>Tarif unique</translation>
    </message>
    <message>
        <source>Dag en nacht</source>
        <translation>Jour et nuit</translation>
    </message>
    <message>
        <source>&lt;p&gt;Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen geheugen. Het stuurt niets naar buiten en heeft geen account nodig.&lt;/p&gt;&lt;p&gt;De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit scherm. Met &lt;b&gt;Alles wissen&lt;/b&gt; op de pagina met instellingen verdwijnt alles wat hier is ingevoerd.&lt;/p&gt;&lt;p&gt;Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het uitzetten nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij de gegevens van de gebruiker van het scherm.&lt;/p&gt;&lt;p&gt;Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit en gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters vanaf dat moment volgt.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Cet écran lit les compteurs de la maison et ne garde ce qu’il lit que dans sa propre mémoire. Il n’envoie rien au dehors et ne demande aucun compte.&lt;/p&gt;&lt;p&gt;Le nom de la maison, le prix, le tarif et l’objectif sont dans un fichier de cet écran. &lt;b&gt;Tout effacer&lt;/b&gt;, à la page des réglages, supprime tout ce qui a été saisi ici.&lt;/p&gt;&lt;p&gt;Ce que les compteurs ont compté est dans un second fichier, pour que les graphiques soient encore là après un arrêt&#xa0;: les relevés de chaque heure pour toujours, ceux de chaque période de cinq minutes pendant cent jours. Tout effacer n’y touche pas. Le fichier s’appelle history.sqlite et se trouve dans le dossier zemkit, parmi les données de l’utilisateur de l’écran.&lt;/p&gt;&lt;p&gt;Avant de vendre ou de donner l’écran, effacez tous les réglages, éteignez-le puis supprimez ce fichier. Un nouvel habitant commence avec un écran vide, qui suit les compteurs à partir de ce moment.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Instellingen</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>naam van het huis</source>
        <translation>nom de la maison</translation>
    </message>
    <message>
        <source>prijs van een kWh</source>
        <translation>prix du kWh</translation>
    </message>
    <message>
        <source>tarief</source>
        <translation>tarif</translation>
    </message>
    <message>
        <source>toetsenbord</source>
        <translation>clavier</translation>
    </message>
    <message>
        <source>scherm uit na</source>
        <translation>écran éteint après</translation>
    </message>
    <message>
        <source>scherm &apos;s nachts uit</source>
        <translation>écran éteint la nuit</translation>
    </message>
    <message>
        <source>uitleg</source>
        <translation>explication</translation>
    </message>
    <message>
        <source>Wat bewaart dit scherm?</source>
        <translation>Que garde cet écran&#xa0;?</translation>
    </message>
    <message>
        <source>Alles wissen</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Naam van het huis</source>
        <translation>Nom de la maison</translation>
    </message>
    <message>
        <source>De prijzen staan in het contract</source>
        <translation>Les prix sont dans le contrat</translation>
    </message>
    <message>
        <source>Prijs van een kWh in euro</source>
        <translation>Prix du kWh en euros</translation>
    </message>
    <message>
        <source>Een prijs van 0 tot %1 euro</source>
        <translation>Un prix de 0 à %1 euros</translation>
    </message>
    <message>
        <source>Tarief</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>Toetsenbord</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Scherm uit na</source>
        <translation>Écran éteint après</translation>
    </message>
    <message>
        <source>vanaf %1 uur</source>
        <translation>à partir de %1 h</translation>
    </message>
    <message>
        <source>Scherm &apos;s nachts uit</source>
        <translation>Écran éteint la nuit</translation>
    </message>
    <message>
        <source>tot %1 uur</source>
        <translation>jusqu’à %1 h</translation>
    </message>
    <message>
        <source>Alles wissen?</source>
        <translation>Tout effacer&#xa0;?</translation>
    </message>
    <message>
        <source>Alle instellingen gaan weg.</source>
        <translation>Tous les réglages seront perdus.</translation>
    </message>
    <message>
        <source>volgens contract</source>
        <translation>selon contrat</translation>
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
        <translation>%1, %2 – %3 h</translation>
    </message>
    <message>
        <source>week van %1</source>
        <translation>semaine du %1</translation>
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
        <translation>au</translation>
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
        <translation>Lecture des relevés …</translation>
    </message>
    <message>
        <source>Het huis komt tot leven …</source>
        <translation>La maison s’éveille …</translation>
    </message>
</context>
</TS>
