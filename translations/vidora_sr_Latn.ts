<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sr_RS">
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
        <translation>Nazad</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Prenos ne odgovara.</translation>
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
        <translation>Pusti</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Jačina zvuka</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Pomeri: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pretraga</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Otkaži</translation>
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
        <translation>Pusti: %1</translation>
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
            <numerusform>%1: alarm %n minut pre svakog emitovanja</numerusform>
            <numerusform>%1: alarm %n minuta pre svakog emitovanja</numerusform>
            <numerusform>%1: alarm %n minuta pre svakog emitovanja</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: alarm %n minut pre svake reprize</numerusform>
            <numerusform>%1: alarm %n minuta pre svake reprize</numerusform>
            <numerusform>%1: alarm %n minuta pre svake reprize</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: alarm %n minut pre svake premijere</numerusform>
            <numerusform>%1: alarm %n minuta pre svake premijere</numerusform>
            <numerusform>%1: alarm %n minuta pre svake premijere</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres i --replays isključuju jedno drugo.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres i --replays se odnose na alarme: nedostaje --alarm MINUTI.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Dodavanje nije uspelo: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Omiljeno: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Za sada nije najavljeno nijedno emitovanje ovog naslova.</translation>
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
        <translation>Tada ne počinje nijedno predstojeće emitovanje naslova &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Odgovara više emitovanja; --on KANAL ili duži deo naslova kaže koje:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Prekasno je za alarm %n minut ranije.</numerusform>
            <numerusform>Prekasno je za alarm %n minuta ranije.</numerusform>
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
            <numerusform>Alarm %n minut ranije: %1</numerusform>
            <numerusform>Alarm %n minuta ranije: %1</numerusform>
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
        <translation>Period koji prelazi ponoć ili nema trajanje utišava ih u svako doba dana.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Pre promene kalendara morate ukloniti sve alarme</translation>
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
        <translation>Nepoznata komanda %1.</translation>
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
        <translation>šta je sada i šta sledi na izabranim kanalima</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>sve predstojeće emisije jednog kanala, po danima</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>predstojeće emisije jedne kategorije</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>predstojeće emisije koje sadrže tekst</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>katalog, sa označenim izabranim kanalima</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>izaberi kanale</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>ukloni kanale iz izbora</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>preuzmi ono što nedostaje ili je staro</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>koristi sopstveni XMLTV vodič: adresa ili datoteka</translation>
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
        <translation>ukloni alarm jednog emitovanja ili svih</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>emitovanja omiljenih emisija koja će zvoniti</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>kada omiljene emisije ne smeju da zvone</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>kalendari, ili izbor onoga za alarme</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>odgovori za programe</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>čuvaj sve u ovom folderu</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>vodič kao u nekom drugom trenutku: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>prijavi na standardni izlaz za greške šta je preuzeto i nađeno</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>verzija programa</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>učitaj svaki deo prozora i završi</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Bez komande: prozor; bez ekrana, ono što je sada na programu, po potrebi posle osvežavanja.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X je naslov, njegov deo koji ima samo jedan, ili ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Još nije izabran nijedan kanal. &quot;vidora channels&quot; ih nabraja, &quot;vidora select X...&quot; bira.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Ovo je prvi pogled na izmišljeni region, sa prvih %1 od njegova %2 kanala. &quot;vidora import&quot; čita vaš sopstveni vodič.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Sve je ažurno.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Osveženo kanala: %1 od %2, emisija: %3.</translation>
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
            <numerusform>Izabran je %n kanal.</numerusform>
            <numerusform>Izabrana su %n kanala.</numerusform>
            <numerusform>Izabrano je %n kanala.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Katalog vašeg vodiča ne može da se pročita; uvezite vodič ponovo.</translation>
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
        <translation>Drugi vidora (proces %1) koristi ovaj folder; prikazuje se ono što on ima.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Drugi vidora (proces %1) koristi ovaj folder; čeka se da završi.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Probni region nije mogao da se pokrene; --log kaže zašto.</translation>
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
            <numerusform>Preskočeno: %n emisija bez početka i kraja sa odstupanjem od UTC.</numerusform>
            <numerusform>Preskočeno: %n emisije bez početka i kraja sa odstupanjem od UTC.</numerusform>
            <numerusform>Preskočeno: %n emisija bez početka i kraja sa odstupanjem od UTC.</numerusform>
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
            <numerusform>%n od ranije izabranih kanala je u njemu; &quot;vidora update&quot; čita njegove emisije.</numerusform>
            <numerusform>%n od ranije izabranih kanala su u njemu; &quot;vidora update&quot; čita njihove emisije.</numerusform>
            <numerusform>%n od ranije izabranih kanala je u njemu; &quot;vidora update&quot; čita njihove emisije.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Izaberite kanale sa &quot;vidora select X...&quot;, a zatim &quot;vidora update&quot;.</translation>
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
        <translation>Ovde nema prozora.</translation>
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
        <translation>Za decu</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Vesti</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Zabava</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzika</translation>
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
        <translation>Avanture</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Kriminalistički</translation>
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
        <translation>Naučna fantastika</translation>
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
        <translation>Katalog ne može da se upiše: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Veza sa udaljenim serverom nije uspostavljena</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Proverite vezu sa internetom.</translation>
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
        <translation>Nema kanala sa tim imenom ili jezikom.</translation>
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
        <translation>Osveži</translation>
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
        <translation>Još nije izabran nijedan kanal. Dodajte one koje želite da vidite.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Podešavanja</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Ova stranica stiže u nekoj od narednih verzija.</translation>
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
        <translation>Na kartici &quot;Kanali&quot; izaberite kanale koje želite da vidite.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Osveženo </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Obaveštenje</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Prenos ovog videa trenutno nije dostupan ili brzina vaše internet veze nije dovoljna.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Sva emitovanja ove omiljene emisije imaju alarm: naredno osvežavanje ga ponovo postavlja.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Spisak kanala</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ukloni</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Uz --clock nema kalendara, osim u zasebnom folderu: --home FOLDER.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Nema naloga. &quot;vidora calendars add ADRESA --user IME&quot; dodaje nalog.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Kalendari ovog uređaja nalaze se u %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: izmene koje čekaju na server: %2. &quot;vidora calendars test&quot; kaže zašto.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: može da se upisuje</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: samo za čitanje</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Ništa nije dodato. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Dodato: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars IME&quot; bira kalendar za alarme.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Ni u jedan njegov kalendar ne može da se upisuje: alarmi ne mogu tamo da budu.</translation>
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
        <translation>Izmene koje čekaju na server: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Izmene koje čekaju na server bile bi izgubljene: %1. --force ipak uklanja nalog.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Lozinka je još u svežnju ključeva, koji nije dostupan.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Uklonjeno: %1. Njegovi kalendari ostaju na serveru.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Ovo nije adresa servera.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Ne postoji server sa tim imenom.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Server nije dostupan.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Server nije dostupan preko HTTPS-a.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Sertifikat servera nije pouzdan: možda je samopotpisan, istekao ili pripada drugom serveru. Sopstveno sertifikaciono telo mora biti među onima u sistemu.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Server ne odgovara.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Lozinka nije dostupna: svežanj ključeva je zaključan ili lozinka više nije sačuvana. Dodajte nalog ponovo da biste je uneli.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Server ne prihvata ovog korisnika sa ovom lozinkom.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Server traži lozinku u izvornom obliku preko nešifrovane veze. Nije poslata; koristite https adresu.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Server ne dopušta ovom korisniku da vidi tamošnje kalendare.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Server upućuje na drugi server, kome se lozinka ne šalje. Navedite tu adresu.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Server postoji, ali na ovoj adresi nema CalDAV kalendara. Navedite adresu koju daje vaš pružalac usluge.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Server ima sopstvenih teškoća; pokušajte kasnije.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Server nije dao razumljiv odgovor.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>koristi kalendare CalDAV servera; pita za lozinku</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>šta kažu serveri naloga</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>ne koristi više nalog</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Lozinka za %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Lozinka nije uneta.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>VREME</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>kada emitovanje počinje: 20:00 ili 2026-11-22T19:00:00Z</translation>
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
        <translation>zvoni pre jednog emitovanja i prati njegov naslov</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINUTI</translation>
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
        <translation>i kad čekaju promene kojih nema na serveru</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>FOLDER</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>ovaj tekst; iza komande ono što ona prima</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 traži vreme kao što je 20:00 ili 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 traži vreme kao što je 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 traži %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Upotreba: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>&quot;%1&quot; kaže kako.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>prati naslov i zvoni pre njegovih emitovanja</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>zvoni toliko pre svakog emitovanja</translation>
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
        <translation>[KOMANDA] [OPCIJA]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Slika ovog prenosa ne može da se prikaže na ovom računaru.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Pokušaj ponovo</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>U toku</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Omiljeno</translation>
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
        <translation>Opozovi</translation>
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
        <translation>Ažurirano pre %1 min</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Ažurirano pre %1 h</translation>
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
        <translation>Nema liste</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>još %1 min</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Kalendara „%1“ sa vašim alarmima više nema. Novi nastaju u „%2“; &quot;vidora calendars NAZIV&quot; bira drugi.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Kalendari ovog naloga nalaze se na %1. Da lozinka sme tamo: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Server ne prihvata promenu „%1“ u %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>kuda još sme da ide lozinka</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 prima: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[KLJUČ [VREDNOST]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>podešavanja, ili promeni jedno; &quot;default&quot; ga vraća</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>posle koliko sekundi se lista ponovo preuzima</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>koliko emisija kanala stoji u pregledu onoga što je sada</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>boje za ono što je u etru i za omiljene</translation>
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
        <translation>boje prozora; &quot;desktop&quot; sledi što je tamo podešeno</translation>
    </message>
</context>
</TS>
