<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Lo streaming non risponde.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connessione in corso</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Sposta %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettere</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Schede</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Elimina %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Riproduci %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>%1 canali su %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 richiede un numero di minuti da 0 a %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: avviso %n minuto prima di ogni messa in onda</numerusform>
            <numerusform>%1: avviso %n minuti prima di ogni messa in onda</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: avviso %n minuto prima di ogni replica</numerusform>
            <numerusform>%1: avviso %n minuti prima di ogni replica</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: avviso %n minuto prima di ogni prima visione</numerusform>
            <numerusform>%1: avviso %n minuti prima di ogni prima visione</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres e --replays si escludono a vicenda.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres e --replays riguardano gli avvisi: manca --alarm MINUTI.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Impossibile aggiungere: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Preferito: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Al momento non è prevista alcuna messa in onda con questo titolo.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 è tra i preferiti, ma non c&apos;è un calendario in cui scrivere gli avvisi.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Non più preferito: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Ancora nessun preferito. &quot;vidora favourite X&quot; ne aggiunge uno.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Nessuna prossima trasmissione di &quot;%1&quot; inizia a quell&apos;ora.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Corrispondono più trasmissioni; --on CANALE o una parte più lunga del titolo dice quale:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>È troppo tardi per un avviso %n minuto prima.</numerusform>
            <numerusform>È troppo tardi per un avviso %n minuti prima.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Nessun avviso impostato: nessun calendario è scrivibile.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Avviso %n minuto prima: %1</numerusform>
            <numerusform>Avviso %n minuti prima: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Nessun altro avviso: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Avviso rimosso: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Nessun avviso.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours richiede due orari come 00:00 07:00, oppure &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>I preferiti non suonano tra le %1 e le %2.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Nessuna ora di silenzio.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Un periodo che passa la mezzanotte, o senza durata, li silenzia a ogni ora del giorno.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Prima di cambiare calendario è necessario rimuovere tutti gli avvisi</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>&quot;%1&quot; non esiste. Ci sono: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; può essere: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Opzione sconosciuta: %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Comando sconosciuto: %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 non accetta &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 non accetta %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>cosa va in onda ora e subito dopo sui canali scelti</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>tutti i prossimi programmi di un canale, per giorno</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>prossimi programmi di una categoria</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>prossimi programmi che contengono un testo</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>il catalogo, con i canali scelti contrassegnati</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>sceglie canali</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>rinuncia a canali</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>scarica ciò che manca o è vecchio</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>usa una guida XMLTV propria: un indirizzo o un file</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>non lo segue più e rimuove i suoi avvisi</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>i titoli seguiti</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>rimuove l&apos;avviso di una messa in onda, o di tutte</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>le messe in onda dei preferiti che suoneranno</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>quando i preferiti non devono suonare</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>i calendari, o la scelta di quello per gli avvisi</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>risposte per programmi</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>conserva tutto in questa cartella</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>la guida come in un altro momento: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>dice sullo standard error che cosa è stato scaricato e trovato</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>la versione del programma</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>carica ogni parte della finestra ed esce</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Senza comando: la finestra; senza schermo, ciò che va in onda ora, dopo un aggiornamento se serve.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X è un titolo, una sua parte che appartiene a uno solo, o un ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Nessun canale è ancora scelto. &quot;vidora channels&quot; li elenca, &quot;vidora select X...&quot; sceglie.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Questo è un primo sguardo a una regione inventata, con i primi %1 dei suoi %2 canali. &quot;vidora import&quot; legge una guida propria.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>È tutto aggiornato.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Canali aggiornati: %1 su %2, programmi: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Non è arrivato nulla per: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Nessuna programmazione.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Nessun programma.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>%n canale scelto.</numerusform>
            <numerusform>%n canali scelti.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Il catalogo della guida non è leggibile; importare di nuovo la guida.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Questo dispositivo</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Impossibile scrivere in %1: nulla sarà conservato.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Un altro vidora (processo %1) usa questa cartella; si mostra ciò che contiene.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Un altro vidora (processo %1) usa questa cartella; in attesa.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Impossibile avviare la regione di prova; --log dice perché.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Saltato: %n canale senza ID.</numerusform>
            <numerusform>Saltati: %n canali senza ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Saltato: %n canale il cui ID c&apos;era già.</numerusform>
            <numerusform>Saltati: %n canali il cui ID c&apos;era già.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Saltato: %n programma senza inizio e fine con fuso orario.</numerusform>
            <numerusform>Saltati: %n programmi senza inizio e fine con fuso orario.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Saltato: %n programma di canali che la guida non elenca.</numerusform>
            <numerusform>Saltati: %n programmi di canali che la guida non elenca.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Canali: %1, programmi: %2, giorni: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n dei canali scelti in precedenza vi si trova; &quot;vidora update&quot; ne legge i programmi.</numerusform>
            <numerusform>%n dei canali scelti in precedenza vi si trovano; &quot;vidora update&quot; ne legge i programmi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Scegliere i canali con &quot;vidora select X...&quot;, poi &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>lettura di %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>icone: %1 su %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Qui non c&apos;è alcuna finestra.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Tutti i programmi</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Lungometraggi</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Programmi serali</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>I più visti</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Documentari</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Per bambini</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Notizie</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Intrattenimento</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Commedie</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Avventura</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Polizieschi</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Western</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Drammi</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Thriller</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>Fantascienza</translation>
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
        <translation>Film</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Serie TV</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 non è raggiungibile: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 ha risposto con lo stato %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 è vuoto.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 ha una codifica sconosciuta.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 non è l&apos;indirizzo di una guida: serve http, https o un file.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 non è una guida XMLTV.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>La guida in %1 non ha canali.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>L&apos;importazione è stata interrotta; resta la guida di prima.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Impossibile scrivere il catalogo: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Impossibile stabilire la connessione con il server remoto</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Controllare la connessione a Internet.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Non ci sono canali.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Nessun canale con questo nome o in questa lingua.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Tutti i canali</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Aggiungi canali</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Rimuovi tutti i canali</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Nessun canale è ancora scelto. Aggiungere quelli da vedere.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Questa pagina arriverà con una versione successiva.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>In onda</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>Scegliere nella scheda &quot;Canali&quot; i canali da vedere.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aggiornato: </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Lo streaming di questo video non è al momento disponibile o la velocità della connessione a Internet non è sufficiente.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Tutte le messe in onda di questo preferito hanno un avviso: il prossimo aggiornamento lo imposta di nuovo.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Elenco dei canali</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Con --clock non ci sono calendari, se non in una cartella a parte: --home CARTELLA.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Non c&apos;è alcun account. &quot;vidora calendars add INDIRIZZO --user NOME&quot; ne aggiunge uno.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>I calendari di questo dispositivo si trovano in %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: modifiche in attesa del server: %2. &quot;vidora calendars test&quot; dice perché.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: scrivibile</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: in sola lettura</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Non è stato aggiunto nulla. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Aggiunto: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars NOME&quot; sceglie il calendario per gli avvisi.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Nessuno dei suoi calendari è scrivibile: gli avvisi non possono stare lì.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>I calendari sono in %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Accesso: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Modifiche in attesa del server: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Le modifiche in attesa del server andrebbero perse: %1. --force rimuove comunque l&apos;account.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>La password è ancora nel portachiavi, che non è raggiungibile.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Rimosso: %1. I suoi calendari restano sul server.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Questo non è l&apos;indirizzo di un server.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Non esiste un server con questo nome.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Il server non è raggiungibile.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Il server non è raggiungibile tramite HTTPS.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Il certificato del server non è attendibile: può essere autofirmato, scaduto o di un altro server. Un&apos;autorità propria deve essere tra quelle del sistema.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Il server non risponde.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>La password non è disponibile: il portachiavi è bloccato o non la conserva più. Aggiungere di nuovo l&apos;account per inserirla.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Il server non accetta questo utente con questa password.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Il server vuole la password in chiaro su una linea non cifrata. Non è stata inviata; usare un indirizzo https.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Il server non permette a questo utente di vedere quei calendari.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Il server rimanda a un altro, a cui la password non viene inviata. Indicare quell&apos;indirizzo.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Il server c&apos;è, ma a questo indirizzo non ci sono calendari CalDAV. Indicare quello fornito dal proprio provider.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Il server ha problemi propri; riprovare più tardi.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Il server non ha dato una risposta comprensibile.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>usa i calendari di un server CalDAV; chiede la password</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>che cosa dicono i server degli account</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>non usa più un account</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Password di %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Nessuna password inserita.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ORA</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>quando inizia la messa in onda: 20:00 o 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>CANALE</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>su questo canale</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>suona prima di una sola messa in onda e ne segue il titolo</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINUTI</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>con questo anticipo; senza, come l&apos;ultima volta</translation>
    </message>
    <message>
        <source>[off | FROM TO]</source>
        <translation>[off | DALLE ALLE]</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>INDIRIZZO</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>il nome con cui accedere</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[NOME]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>anche se attendono modifiche che il server non ha</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>CARTELLA</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>questo testo; dopo un comando, ciò che accetta</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 richiede un orario come 20:00 o 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 richiede un momento come 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 richiede %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>&quot;%1&quot; dice come.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>segue un titolo e suona prima delle sue messe in onda</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>suona con questo anticipo prima di ogni messa in onda</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>solo per le prime visioni</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>solo per le repliche</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TESTO</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[COMANDO] [OPZIONE]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Le immagini di questo flusso non possono essere mostrate su questo computer.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>In onda</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Sveglia</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Preferito</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Replica</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Popolare</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Nessuna connessione.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Appena aggiornato</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Aggiornato %1 min fa</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Aggiornato %1 h fa</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Tutti i canali rimossi</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 rimosso</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Nessun elenco</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>ancora %1 min</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Il calendario «%1» dei tuoi avvisi non c’è più. I nuovi nascono in «%2»; «vidora calendars NOME» ne sceglie un altro.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>I calendari di questo account si trovano su %1. Perché la password possa andarci: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Il server non accetta la modifica di «%1» in %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>dove altro può andare la password</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 accetta: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[CHIAVE [VALORE]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>le impostazioni, o cambiarne una; &quot;default&quot; la ripristina</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>dopo quanti secondi un elenco viene scaricato di nuovo</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>quanti programmi di un canale stanno in ciò che va in onda ora</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>colori per ciò che è in onda e per i preferiti</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>immagini dei programmi</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>immagini dietro la pagina di un programma</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>i colori della finestra; &quot;desktop&quot; segue ciò che è impostato lì</translation>
    </message>
</context>
</TS>
