<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Der Stream antwortet nicht.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Wird verbunden</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Reiter</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>%1 abspielen</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>%1 von %2 Sendern</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 verlangt eine Anzahl Minuten von 0 bis %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: Erinnerung %n Minute vor jeder Ausstrahlung</numerusform>
            <numerusform>%1: Erinnerung %n Minuten vor jeder Ausstrahlung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: Erinnerung %n Minute vor jeder Wiederholung</numerusform>
            <numerusform>%1: Erinnerung %n Minuten vor jeder Wiederholung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: Erinnerung %n Minute vor jeder Erstausstrahlung</numerusform>
            <numerusform>%1: Erinnerung %n Minuten vor jeder Erstausstrahlung</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres und --replays schließen einander aus.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres und --replays betreffen Erinnerungen: --alarm MINUTEN fehlt.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>%1 konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Favorit: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Zurzeit ist keine Ausstrahlung mit diesem Titel angekündigt.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 ist ein Favorit, aber für die Erinnerungen gibt es keinen beschreibbaren Kalender.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Kein Favorit mehr: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Noch keine Favoriten. &quot;vidora favourite X&quot; fügt einen hinzu.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Keine kommende Ausstrahlung von &quot;%1&quot; beginnt zu dieser Zeit.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Mehrere Ausstrahlungen passen; --on SENDER oder mehr vom Titel sagt, welche:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Für eine Erinnerung %n Minute vorher ist es zu spät.</numerusform>
            <numerusform>Für eine Erinnerung %n Minuten vorher ist es zu spät.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Keine Erinnerung gesetzt: kein Kalender ist beschreibbar.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Erinnerung %n Minute vorher: %1</numerusform>
            <numerusform>Erinnerung %n Minuten vorher: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Keine Erinnerungen mehr: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Keine Erinnerung mehr: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Keine Erinnerungen.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours verlangt zwei Zeiten wie 00:00 07:00, oder &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Favoriten erinnern zwischen %1 und %2 nicht.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Keine Ruhezeiten.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Ein Zeitraum über Mitternacht oder ohne Länge unterdrückt sie zu jeder Tageszeit.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Vor dem Wechsel des Kalenders müssen Sie alle Erinnerungen entfernen</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>&quot;%1&quot; gibt es nicht. Es gibt: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; kann sein: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Unbekannte Option %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Unbekannter Befehl %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 nimmt &quot;%2&quot; nicht an.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 nimmt %2 nicht an.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>was auf den ausgewählten Sendern jetzt und danach läuft</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>alle kommenden Sendungen eines Senders, nach Tagen</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>kommende Sendungen einer Kategorie</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>kommende Sendungen, die einen Text enthalten</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>der Katalog, ausgewählte Sender sind markiert</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>Sender auswählen</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>Sender wieder abwählen</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>holen, was fehlt oder veraltet ist</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>einen eigenen XMLTV-Programmführer benutzen: Adresse oder Datei</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>ihm nicht mehr folgen und seine Erinnerungen entfernen</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>die Titel, denen Sie folgen</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>die Erinnerung einer Ausstrahlung entfernen, oder aller</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>die Ausstrahlungen der Favoriten, an die erinnert wird</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>wann Favoriten nicht erinnern sollen</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>die Kalender, oder den für Erinnerungen auswählen</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>Antworten für Programme</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>alles in diesem Ordner aufbewahren</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>das Programm wie zu einem anderen Zeitpunkt: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>auf der Fehlerausgabe sagen, was geholt und gefunden wurde</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>die Version des Programms</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>jeden Teil des Fensters laden und beenden</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Ohne Befehl: das Fenster; ohne Bildschirm, was jetzt läuft, wenn nötig nach einer Aktualisierung.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X ist ein Titel, ein eindeutiger Teil davon oder eine ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Es ist noch kein Sender ausgewählt. &quot;vidora channels&quot; zeigt sie, &quot;vidora select X...&quot; wählt aus.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Das ist ein erster Blick auf eine erfundene Region, mit den ersten %1 ihrer %2 Sender. &quot;vidora import&quot; liest einen eigenen Programmführer.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Alles ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>%1 von %2 Sendern aktualisiert, %3 Sendungen.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Nichts kam für: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Kein Programm.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Keine Sendungen.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>%n Sender ist ausgewählt.</numerusform>
            <numerusform>%n Sender sind ausgewählt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Der Katalog Ihres Programmführers ist nicht lesbar; importieren Sie ihn erneut.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Dieses Gerät</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>%1 ist nicht beschreibbar: nichts wird aufbewahrt.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Ein anderes vidora (Prozess %1) benutzt diesen Ordner; gezeigt wird, was es hat.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Ein anderes vidora (Prozess %1) benutzt diesen Ordner; es wird gewartet.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Die Beispielregion konnte nicht gestartet werden; --log sagt, warum.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Übergangen: %n Sender ohne ID.</numerusform>
            <numerusform>Übergangen: %n Sender ohne ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Übergangen: %n Sender, dessen ID es schon gab.</numerusform>
            <numerusform>Übergangen: %n Sender, deren ID es schon gab.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Übergangen: %n Sendung ohne Beginn und Ende mit Zeitverschiebung.</numerusform>
            <numerusform>Übergangen: %n Sendungen ohne Beginn und Ende mit Zeitverschiebung.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Übergangen: %n Sendung von Sendern, die der Programmführer nicht nennt.</numerusform>
            <numerusform>Übergangen: %n Sendungen von Sendern, die der Programmführer nicht nennt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Sender: %1, Sendungen: %2, Tage: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n der zuvor ausgewählten Sender ist darin; &quot;vidora update&quot; liest seine Sendungen.</numerusform>
            <numerusform>%n der zuvor ausgewählten Sender sind darin; &quot;vidora update&quot; liest ihre Sendungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Wählen Sie Sender mit &quot;vidora select X...&quot;, danach &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>Symbole: %1 von %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Hier gibt es kein Fenster.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Alle Sendungen</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Spielfilme</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Abendprogramm</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Meistgesehen</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Dokumentationen</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Für Kinder</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Unterhaltung</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Komödien</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Abenteuer</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Krimis</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Western</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Dramen</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Thriller</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>Science-Fiction</translation>
    </message>
    <message>
        <source>Fantasy</source>
        <translation>Fantasy</translation>
    </message>
    <message>
        <source>Horrors</source>
        <translation>Horror</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Serien</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 ist nicht erreichbar: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 antwortete mit Status %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 hat eine unbekannte Kodierung.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 ist keine Adresse eines Programmführers: es braucht http, https oder eine Datei.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 ist kein XMLTV-Programmführer.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Der Programmführer unter %1 hat keine Sender.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Der Import wurde abgebrochen; der bisherige Programmführer bleibt.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Der Katalog kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Keine Verbindung zum Server</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Bitte prüfen Sie Ihre Internetverbindung.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Es gibt keine Sender.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Kein Sender mit diesem Namen oder in dieser Sprache.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Alle Sender</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Sender hinzufügen</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Alle Sender entfernen</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Es ist noch kein Sender ausgewählt. Fügen Sie die hinzu, die Sie sehen möchten.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Diese Seite kommt mit einer späteren Version.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Merkliste</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>Wählen Sie im Reiter &quot;Sender&quot; die Sender aus, die Sie sehen möchten.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aktualisiert: </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Dieser Stream ist derzeit nicht verfügbar, oder Ihre Internetverbindung ist zu langsam.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Alle Ausstrahlungen dieses Favoriten haben eine Erinnerung: Die nächste Aktualisierung setzt sie wieder.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Senderliste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Mit --clock gibt es keine Kalender, außer in einem eigenen Ordner: --home ORDNER.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Es gibt kein Konto. &quot;vidora calendars add ADRESSE --user NAME&quot; fügt eines hinzu.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Die Kalender dieses Geräts liegen in %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: Änderungen, die auf den Server warten: %2. &quot;vidora calendars test&quot; sagt, warum.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: beschreibbar</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: nur lesbar</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Nichts wurde hinzugefügt. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars NAME&quot; wählt den Kalender für Erinnerungen.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Keiner seiner Kalender ist beschreibbar: Erinnerungen können dort nicht liegen.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Die Kalender sind unter %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Anmeldung: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Änderungen, die auf den Server warten: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Änderungen, die auf den Server warten, gingen verloren: %1. --force entfernt das Konto trotzdem.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Das Passwort liegt noch im Schlüsselbund, der nicht erreichbar ist.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Entfernt: %1. Seine Kalender bleiben auf dem Server.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Das ist keine Adresse eines Servers.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Es gibt keinen Server dieses Namens.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Der Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Der Server ist über HTTPS nicht erreichbar.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut: Es kann selbst erstellt, abgelaufen oder das eines anderen Servers sein. Eine eigene Zertifizierungsstelle muss unter denen des Systems sein.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Das Passwort ist nicht verfügbar: Der Schlüsselbund ist gesperrt, oder es wird nicht mehr aufbewahrt. Fügen Sie das Konto erneut hinzu, um es anzugeben.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Der Server nimmt diesen Benutzer mit diesem Passwort nicht an.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Der Server will das Passwort im Klartext über eine unverschlüsselte Verbindung. Es wurde nicht gesendet; benutzen Sie eine https-Adresse.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Der Server lässt diesen Benutzer die dortigen Kalender nicht sehen.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Der Server verweist auf einen anderen, an den das Passwort nicht geht. Geben Sie dessen Adresse an.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Es gibt einen Server, aber keine CalDAV-Kalender unter dieser Adresse. Geben Sie die an, die Ihr Anbieter nennt.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Der Server hat selbst Schwierigkeiten; versuchen Sie es später wieder.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Der Server gab keine verständliche Antwort.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>die Kalender eines CalDAV-Servers benutzen; fragt nach dem Passwort</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>was die Server der Konten sagen</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>ein Konto nicht mehr benutzen</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Passwort von %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Es wurde kein Passwort angegeben.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ZEIT</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>wann die Ausstrahlung beginnt: 20:00 oder 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>SENDER</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>auf diesem Sender</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>vor einer einzelnen Ausstrahlung erinnern und ihrem Titel folgen</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINUTEN</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>so lange vorher; ohne Angabe wie beim letzten Mal</translation>
    </message>
    <message>
        <source>[off | FROM TO]</source>
        <translation>[off | VON BIS]</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>ADRESSE</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>der Name für die Anmeldung</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[NAME]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>auch wenn Änderungen warten, die der Server nicht hat</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>dieser Text; hinter einem Befehl, was er annimmt</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 verlangt eine Zeit wie 20:00 oder 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 verlangt eine Zeit wie 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 braucht %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>„%1“ sagt, wie es geht.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>einem Titel folgen und vor seinen Ausstrahlungen erinnern</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>so lange vor jeder Ausstrahlung erinnern</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>nur bei Erstausstrahlungen</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>nur bei Wiederholungen</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[BEFEHL] [OPTION]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Die Bilder dieses Streams können auf diesem Computer nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>Läuft gerade</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Beliebt</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Keine Verbindung.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Gerade aktualisiert</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Vor %1 Min. aktualisiert</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Vor %1 Std. aktualisiert</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Alle Sender entfernt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Keine Liste</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>noch %1 Min.</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Der Kalender „%1“ mit Ihren Weckern ist fort. Neue entstehen in „%2“; „vidora calendars NAME“ wählt einen anderen.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Die Kalender dieses Kontos liegen unter %1. Soll das Passwort dorthin dürfen: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Der Server nimmt die Änderung von „%1“ in %2 nicht an: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>wohin das Passwort noch gehen darf</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 nimmt an: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[SCHLÜSSEL [WERT]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>die Einstellungen, oder eine ändern; „default“ setzt sie zurück</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>nach wie vielen Sekunden eine Liste neu geholt wird</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>wie viele Sendungen eines Senders bei „jetzt“ stehen</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>Farben für Laufendes und für Favoriten</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>Bilder der Sendungen</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>Bilder hinter der Seite einer Sendung</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>die Farben des Fensters; „desktop“ folgt dem, was dort eingestellt ist</translation>
    </message>
</context>
</TS>
