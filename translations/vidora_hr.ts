<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hr_HR">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Učitavanje</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Natrag</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Prijenos ne odgovara.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Povezivanje</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduciraj</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Glasnoća</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Premjesti: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Traži</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Slova</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Kartice</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Ukloni: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Reproduciraj: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>Kanali: %1 od %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 traži broj minuta od 0 do %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: alarm %n minutu prije svakog emitiranja</numerusform>
            <numerusform>%1: alarm %n minute prije svakog emitiranja</numerusform>
            <numerusform>%1: alarm %n minuta prije svakog emitiranja</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: alarm %n minutu prije svake reprize</numerusform>
            <numerusform>%1: alarm %n minute prije svake reprize</numerusform>
            <numerusform>%1: alarm %n minuta prije svake reprize</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: alarm %n minutu prije svake premijere</numerusform>
            <numerusform>%1: alarm %n minute prije svake premijere</numerusform>
            <numerusform>%1: alarm %n minuta prije svake premijere</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres i --replays međusobno se isključuju.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres i --replays odnose se na alarme: nedostaje --alarm MINUTE.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Dodavanje nije uspjelo: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Omiljeno: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Zasad nije najavljeno nijedno emitiranje ovog naslova.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 je među omiljenima, ali nema kalendara u koji se mogu upisati alarmi.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Više nije omiljeno: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Još nema omiljenih. &quot;vidora favourite X&quot; dodaje emisiju.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Tada ne počinje nijedno nadolazeće emitiranje naslova &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Odgovara više emitiranja; --on KANAL ili duži dio naslova kaže koje:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Prekasno je za alarm %n minutu ranije.</numerusform>
            <numerusform>Prekasno je za alarm %n minute ranije.</numerusform>
            <numerusform>Prekasno je za alarm %n minuta ranije.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Alarm nije postavljen: nema kalendara u koji se može upisivati.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Alarm %n minutu ranije: %1</numerusform>
            <numerusform>Alarm %n minute ranije: %1</numerusform>
            <numerusform>Alarm %n minuta ranije: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Više nema alarma: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Alarm je uklonjen: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Nema alarma.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours traži dva vremena kao što su 00:00 07:00, ili &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Omiljene emisije ne zvone između %1 i %2.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Nema tihih sati.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Razdoblje koje prelazi ponoć ili nema trajanja utišava ih u svako doba dana.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Prije promjene kalendara morate ukloniti sve alarme</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>Ne postoji &quot;%1&quot;. Postoje: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; može biti: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Nepoznata opcija %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Nepoznata naredba %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 ne prima &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 ne prima %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>što je sada i što slijedi na odabranim kanalima</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>sve nadolazeće emisije jednog kanala, po danima</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>nadolazeće emisije jedne kategorije</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>nadolazeće emisije koje sadrže tekst</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>katalog, s označenim odabranim kanalima</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>odaberi kanale</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>ukloni kanale iz odabira</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>preuzmi ono što nedostaje ili je staro</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>koristi vlastiti XMLTV vodič: adresa ili datoteka</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>ne prati ga više i ukloni njegove alarme</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>naslovi koji se prate</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>ukloni alarm jednog emitiranja ili svih</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>emitiranja omiljenih emisija koja će zvoniti</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>kada omiljene emisije ne smiju zvoniti</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>kalendari, ili odabir onoga za alarme</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>odgovori za programe</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>čuvaj sve u ovoj mapi</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>vodič kao u nekom drugom trenutku: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>prijavi na standardni izlaz za pogreške što je preuzeto i nađeno</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>verzija programa</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>učitaj svaki dio prozora i završi</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Bez naredbe: prozor; bez zaslona, ono što je sada na programu, po potrebi nakon osvježavanja.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X je naslov, njegov dio koji ima samo jedan, ili ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Još nije odabran nijedan kanal. &quot;vidora channels&quot; ih nabraja, &quot;vidora select X...&quot; odabire.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Ovo je prvi pogled na izmišljenu regiju, s prvih %1 od njezina %2 kanala. &quot;vidora import&quot; čita vaš vlastiti vodič.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Sve je ažurno.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Osvježeno kanala: %1 od %2, emisija: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Ništa nije stiglo za: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Nema programa.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Nema emisija.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>Odabran je %n kanal.</numerusform>
            <numerusform>Odabrana su %n kanala.</numerusform>
            <numerusform>Odabrano je %n kanala.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Katalog vašeg vodiča ne može se pročitati; ponovno uvezite vodič.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Ovaj uređaj</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Upis u %1 nije moguć: ništa neće biti sačuvano.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Drugi vidora (proces %1) koristi ovu mapu; prikazuje se ono što on ima.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Drugi vidora (proces %1) koristi ovu mapu; čeka se da završi.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Ogledna regija nije se mogla pokrenuti; --log kaže zašto.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Preskočeno: %n kanal bez ID-a.</numerusform>
            <numerusform>Preskočeno: %n kanala bez ID-a.</numerusform>
            <numerusform>Preskočeno: %n kanala bez ID-a.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Preskočeno: %n kanal čiji ID već postoji.</numerusform>
            <numerusform>Preskočeno: %n kanala čiji ID već postoji.</numerusform>
            <numerusform>Preskočeno: %n kanala čiji ID već postoji.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Preskočeno: %n emisija bez početka i kraja s odmakom od UTC-a.</numerusform>
            <numerusform>Preskočeno: %n emisije bez početka i kraja s odmakom od UTC-a.</numerusform>
            <numerusform>Preskočeno: %n emisija bez početka i kraja s odmakom od UTC-a.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Preskočeno: %n emisija kanala kojih nema u vodiču.</numerusform>
            <numerusform>Preskočeno: %n emisije kanala kojih nema u vodiču.</numerusform>
            <numerusform>Preskočeno: %n emisija kanala kojih nema u vodiču.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Kanala: %1, emisija: %2, dana: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n od prije odabranih kanala je u njemu; &quot;vidora update&quot; čita njegove emisije.</numerusform>
            <numerusform>%n od prije odabranih kanala su u njemu; &quot;vidora update&quot; čita njihove emisije.</numerusform>
            <numerusform>%n od prije odabranih kanala je u njemu; &quot;vidora update&quot; čita njihove emisije.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Odaberite kanale s &quot;vidora select X...&quot;, a zatim &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>čitanje: %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>ikone: %1 od %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Ovdje nema prozora.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Sve emisije</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Igrani filmovi</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Večernji program</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Najgledanije</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Dokumentarni program</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Za djecu</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Vijesti</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Zabava</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Glazba</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Komedije</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Pustolovine</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Krimići</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Vesterni</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Drame</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Trileri</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>Znanstvena fantastika</translation>
    </message>
    <message>
        <source>Fantasy</source>
        <translation>Fantastika</translation>
    </message>
    <message>
        <source>Horrors</source>
        <translation>Horori</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filmovi</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Serije</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 nije dostupno: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 je odgovorio statusom %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 je prazno.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 ima nepoznato kodiranje.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 nije adresa vodiča: potreban je http, https ili datoteka.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 nije XMLTV vodič.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Vodič na %1 nema kanala.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Uvoz je prekinut; ostaje dosadašnji vodič.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Katalog se ne može zapisati: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Veza s udaljenim poslužiteljem nije uspostavljena</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Provjerite internetsku vezu.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>U redu</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Nema kanala.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Nema kanala s tim imenom ili jezikom.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Svi kanali</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Ostalo</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanali</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Osvježi</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Dodaj kanale</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Ukloni sve kanale</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Još nije odabran nijedan kanal. Dodajte one koje želite vidjeti.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Ova stranica stiže u nekoj od sljedećih inačica.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Trenutno</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorije</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Raspored</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>Na kartici &quot;Kanali&quot; odaberite kanale koje želite vidjeti.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Osvježeno </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Obavijest</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Prijenos ovog videa trenutno nije dostupan ili brzina vaše internetske veze nije dovoljna.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Sva emitiranja ove omiljene emisije imaju alarm: sljedeće osvježavanje ponovno ga postavlja.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Popis kanala</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ukloni</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Uz --clock nema kalendara, osim u zasebnoj mapi: --home MAPA.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Nema računa. &quot;vidora calendars add ADRESA --user IME&quot; dodaje račun.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Kalendari ovog uređaja nalaze se u %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: izmjene koje čekaju na poslužitelj: %2. &quot;vidora calendars test&quot; kaže zašto.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: može se upisivati</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: samo za čitanje</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Ništa nije dodano. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Dodano: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars IME&quot; odabire kalendar za alarme.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Ni u jedan njegov kalendar ne može se upisivati: alarmi ne mogu biti ondje.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Kalendari su na %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Prijava: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Izmjene koje čekaju na poslužitelj: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Izmjene koje čekaju na poslužitelj bile bi izgubljene: %1. --force svejedno uklanja račun.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Lozinka je još u privjesku ključeva, koji nije dostupan.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Uklonjeno: %1. Njegovi kalendari ostaju na poslužitelju.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Ovo nije adresa poslužitelja.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Ne postoji poslužitelj s tim imenom.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Poslužitelj nije dostupan.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Poslužitelj nije dostupan putem HTTPS-a.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Certifikat poslužitelja nije pouzdan: možda je samopotpisan, istekao ili pripada drugom poslužitelju. Vlastito certifikacijsko tijelo mora biti među onima u sustavu.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Poslužitelj ne odgovara.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Lozinka nije dostupna: privjesak ključeva je zaključan ili lozinka više nije sačuvana. Ponovno dodajte račun da biste je unijeli.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Poslužitelj ne prihvaća ovog korisnika s ovom lozinkom.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Poslužitelj traži lozinku u izvornom obliku preko nešifrirane veze. Nije poslana; koristite https adresu.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Poslužitelj ne dopušta ovom korisniku vidjeti tamošnje kalendare.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Poslužitelj upućuje na drugi poslužitelj, kojem se lozinka ne šalje. Navedite tu adresu.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Poslužitelj postoji, ali na ovoj adresi nema CalDAV kalendara. Navedite adresu koju daje vaš pružatelj usluge.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Poslužitelj ima vlastitih poteškoća; pokušajte kasnije.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Poslužitelj nije dao razumljiv odgovor.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>koristi kalendare CalDAV poslužitelja; pita za lozinku</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>što kažu poslužitelji računa</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>ne koristi više račun</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Lozinka za %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Lozinka nije unesena.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>VRIJEME</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>kada emitiranje počinje: 20:00 ili 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>KANAL</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>na ovom kanalu</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>zvoni prije jednog emitiranja i prati njegov naslov</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINUTE</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>toliko ranije; bez toga kao prošli put</translation>
    </message>
    <message>
        <source>[off | FROM TO]</source>
        <translation>[off | OD DO]</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>ADRESA</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>IME</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>ime za prijavu</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[IME]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>i kad čekaju promjene kojih nema na poslužitelju</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>MAPA</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>ovaj tekst; iza naredbe ono što ona prima</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 traži vrijeme kao što je 20:00 ili 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 traži vrijeme kao što je 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 traži %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Uporaba: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>&quot;%1&quot; kaže kako.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>prati naslov i zvoni prije njegovih emitiranja</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>zvoni toliko prije svakog emitiranja</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>samo za premijere</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>samo za reprize</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEKST</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[NAREDBA] [OPCIJA]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Slika ovog prijenosa ne može se prikazati na ovom računalu.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Pokušaj ponovo</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>U tijeku</translation>
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
        <translation>Repriza</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Popularno</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Poništi</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Nema veze.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Upravo ažurirano</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Ažurirano prije %1 min</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Ažurirano prije %1 h</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotovo</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Svi kanali uklonjeni</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>Uklonjeno: %1</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Nema popisa</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>još %1 min</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Kalendara „%1“ s vašim alarmima više nema. Novi nastaju u „%2“; „vidora calendars NAZIV“ bira drugi.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Kalendari ovog računa nalaze se na %1. Da lozinka smije onamo: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Poslužitelj ne prihvaća promjenu „%1“ u %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>kamo još smije ići lozinka</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 prima: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[KLJUČ [VRIJEDNOST]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>postavke, ili promijeni jednu; &quot;default&quot; je vraća</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>nakon koliko sekundi se popis ponovno dohvaća</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>koliko emisija kanala stoji u pregledu onoga što je sada</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>boje za ono što je u eteru i za omiljene</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>slike emisija</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>slike iza stranice emisije</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>boje prozora; &quot;desktop&quot; slijedi što je ondje postavljeno</translation>
    </message>
</context>
</TS>
