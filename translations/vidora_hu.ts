<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Betöltés</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Az adatfolyam nem válaszol.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Kapcsolódás</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szünet</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lejátszás</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hangerő</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Áthelyezés: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Betűk</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Lapok</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Törlés: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Lejátszás: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>%1/%2 csatorna</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 0 és %2 közötti percszámot vár.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: riasztás %n perccel minden adás előtt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: riasztás %n perccel minden ismétlés előtt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: riasztás %n perccel minden bemutató előtt</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>A --premieres és a --replays kizárja egymást.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>A --premieres és a --replays riasztásokra vonatkozik: hiányzik az --alarm PERC.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Nem sikerült felvenni: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Kedvenc: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Jelenleg egyetlen adás sem szerepel ezzel a címmel.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 a kedvencek közé került, de nincs írható naptár a riasztásaihoz.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Már nem kedvenc: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Még nincs kedvenc. A &quot;vidora favourite X&quot; vesz fel egyet.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Akkor nem kezdődik &quot;%1&quot; című adás.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Több adás is illik rá; az --on CSATORNA vagy a cím hosszabb része megmondja, melyik:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>A %n perccel korábbi riasztáshoz már késő van.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Nem állítható be riasztás: nincs írható naptár.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Riasztás %n perccel előbb: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Nincs több riasztás: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>A riasztás törölve: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Nincs riasztás.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>A silent-hours két időpontot vár, például 00:00 07:00, vagy azt, hogy &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>A kedvencek %1 és %2 között nem jeleznek.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Nincsenek csendes órák.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Az éjfélen átnyúló vagy nulla hosszúságú időszak a nap minden percében elnémítja őket.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Naptárváltás előtt minden riasztást törölni kell</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>Nincs ilyen: &quot;%1&quot;. Ezek vannak: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; ezek egyike lehet: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Ismeretlen kapcsoló: %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Ismeretlen parancs: %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 nem fogadja el ezt: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 nem fogadja el ezt: %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>mi megy most és mi következik a kiválasztott csatornákon</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>egy csatorna összes következő műsora, napok szerint</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>egy kategória következő műsorai</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>következő műsorok, amelyekben előfordul egy szöveg</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>a katalógus, megjelölve a kiválasztott csatornákkal</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>csatornák kiválasztása</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>csatornák elhagyása</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>a hiányzó vagy elavult adatok letöltése</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>saját XMLTV-műsorújság használata: cím vagy fájl</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>követés megszüntetése, riasztásaival együtt</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>a követett címek</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>egy adás vagy az összes riasztásának törlése</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>a kedvencek adásai, amelyek jelezni fognak</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>mikor ne jelezzenek a kedvencek</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>a naptárak, vagy a riasztások naptárának kiválasztása</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>válaszok programok számára</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>minden adat ebben a mappában</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>a műsor egy másik időpontban: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>kiírja a hibakimenetre, mi lett letöltve és mit tartalmazott</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>a program verziója</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>az ablak minden részének betöltése, majd kilépés</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Parancs nélkül: az ablak; kijelző nélkül a most futó műsorok, szükség esetén frissítés után.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X egy cím, annak egyértelmű része vagy egy azonosító.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Még nincs kiválasztott csatorna. A &quot;vidora channels&quot; felsorolja, a &quot;vidora select X...&quot; kiválasztja őket.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Ez egy kitalált régió, csatornáiból az első %1 látható (összesen %2). A &quot;vidora import&quot; saját műsorújságot olvas be.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Minden naprakész.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Frissítve %1/%2 csatorna, %3 műsor.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Semmi nem érkezett ezekhez: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Nincs műsor.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Nincsenek műsorok.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>%n csatorna van kiválasztva.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>A műsorújság katalógusa nem olvasható; importálja újra a műsorújságot.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Ez az eszköz</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Nem írható: %1; semmi sem lesz megőrizve.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Egy másik vidora (%1. folyamat) használja ezt a mappát; az látszik, ami abban van.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Egy másik vidora (%1. folyamat) használja ezt a mappát; várakozás.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>A mintarégió nem indult el; a --log megmondja, miért.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Kihagyva: %n azonosító nélküli csatorna.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Kihagyva: %n csatorna, amelynek azonosítója már szerepelt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Kihagyva: %n műsor időeltolásos kezdet és vég nélkül.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Kihagyva: %n műsor olyan csatornáról, amelyet a műsorújság nem sorol fel.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>%1 csatorna, %2 műsor, %3 nap.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>A korábban kiválasztott csatornák közül %n szerepel benne; a &quot;vidora update&quot; beolvassa a műsoraikat.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Válasszon csatornákat: &quot;vidora select X...&quot;, majd &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>beolvasás: %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>ikonok: %1/%2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Itt nincs ablak.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Minden műsor</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Játékfilmek</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Esti műsor</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Legnézettebb</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Dokumentumfilmek</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Gyerekeknek</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Hírek</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Szórakoztató</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Zene</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Vígjátékok</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Kaland</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Krimi</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Westernek</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Drámák</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Thrillerek</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>Sci-fi</translation>
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
        <translation>Filmek</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Sorozatok</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 nem érhető el: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 válaszának állapotkódja: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 üres.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 kódolása ismeretlen.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 nem műsorújság címe: http, https vagy fájl kell.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 nem XMLTV-műsorújság.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>A műsorújságban nincs csatorna: %1</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Az importálás megszakadt; a korábbi műsorújság marad.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>A katalógus nem írható: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Nem sikerült kapcsolódni a távoli kiszolgálóhoz</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Ellenőrizze az internetkapcsolatot.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Nincsenek csatornák.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Nincs ilyen nevű vagy nyelvű csatorna.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Minden csatorna</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Egyéb</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Csatornák</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Csatornák felvétele</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Minden csatorna eltávolítása</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Még nincs kiválasztott csatorna. Vegye fel azokat, amelyeket látni szeretne.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Ez az oldal egy későbbi változatban lesz elérhető.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Most</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategóriák</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Ütemterv</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>A &quot;Csatornák&quot; lapon válassza ki azokat a csatornákat, amelyeket látni szeretne.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Frissítve: </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Értesítés</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>A videó jelenleg nem érhető el, vagy az internetkapcsolat sebessége nem megfelelő.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Ennek a kedvencnek minden adásához tartozik riasztás: a következő frissítés újra beállítja.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Csatornalista</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>A --clock mellett nincsenek naptárak, csak külön mappában: --home MAPPA.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Nincs fiók. A &quot;vidora calendars add CÍM --user NÉV&quot; vesz fel egyet.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Az eszköz naptárainak helye: %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: a kiszolgálóra váró módosítások: %2. A &quot;vidora calendars test&quot; megmondja, miért.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: írható</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: csak olvasható</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Nem lett felvéve semmi. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Felvéve: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>A &quot;vidora calendars NÉV&quot; választja ki a riasztások naptárát.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Egyik naptára sem írható: riasztások nem kerülhetnek bele.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>A naptárak itt vannak: %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Bejelentkezés: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>A kiszolgálóra váró módosítások: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>A kiszolgálóra váró módosítások elvesznének: %1. A --force így is törli a fiókot.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>A jelszó még a kulcstartóban van, amely nem érhető el.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Eltávolítva: %1. Naptárai a kiszolgálón maradnak.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Ez nem kiszolgáló címe.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Nincs ilyen nevű kiszolgáló.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>A kiszolgáló nem érhető el.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>A kiszolgáló nem érhető el HTTPS-en.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>A kiszolgáló tanúsítványa nem megbízható: lehet saját készítésű, lejárt vagy egy másik kiszolgálóé. A saját hitelesítésszolgáltatónak szerepelnie kell a rendszerben.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>A kiszolgáló nem válaszol.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>A jelszó nem érhető el: a kulcstartó zárolva van, vagy a jelszó már nincs meg. Megadásához vegye fel újra a fiókot.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>A kiszolgáló nem fogadja el ezt a felhasználót ezzel a jelszóval.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>A kiszolgáló titkosítatlan vonalon, nyíltan kéri a jelszót. Nem lett elküldve; használjon https címet.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>A kiszolgáló nem engedi, hogy ez a felhasználó lássa az ottani naptárakat.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>A kiszolgáló egy másikhoz irányít, amelynek a jelszó nem küldhető el. Adja meg annak a címét.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Van kiszolgáló, de ezen a címen nincsenek CalDAV-naptárak. Adja meg a szolgáltatója által megnevezett címet.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>A kiszolgálónál hiba van; próbálja később.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>A kiszolgáló válasza nem értelmezhető.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>egy CalDAV-kiszolgáló naptárainak használata; jelszót kér</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>mit mondanak a fiókok kiszolgálói</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>egy fiók elhagyása</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>%1 jelszava: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Nincs megadva jelszó.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>IDŐ</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>mikor kezdődik az adás: 20:00 vagy 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>CSATORNA</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>ezen a csatornán</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>jelzés egyetlen adás előtt, és a cím követése</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>PERC</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>ennyivel előbb; enélkül mint legutóbb</translation>
    </message>
    <message>
        <source>[off | FROM TO]</source>
        <translation>[off | ETTŐL EDDIG]</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>CÍM</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÉV</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>a bejelentkezési név</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[NÉV]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>akkor is, ha olyan változások várnak, amelyek nincsenek a kiszolgálón</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>MAPPA</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>ez a szöveg; parancs után az, amit elfogad</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 időpontot vár, például 20:00 vagy 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 időpontot vár, például 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 ezt várja: %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Használat: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>A „%1” megmondja, hogyan.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>egy cím követése és jelzés az adásai előtt</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>ennyivel jelez minden adás előtt</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>csak premierek előtt</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>csak ismétlések előtt</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>SZÖVEG</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[PARANCS] [KAPCSOLÓ]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Ennek az adásnak a képe ezen a gépen nem jeleníthető meg.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>Most megy</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Riasztás</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Kedvenc</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Ismétlés</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Népszerű</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Visszavonás</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Nincs kapcsolat.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Épp most frissítve</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>%1 perce frissítve</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>%1 órája frissítve</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Minden csatorna eltávolítva</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 eltávolítva</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Nincs lista</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>még %1 perc</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>A riasztások „%1” naptára eltűnt. Az újak itt készülnek: „%2”; a „vidora calendars NÉV” másikat választ.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>A fiók naptárai itt vannak: %1. Ha a jelszó oda is mehet: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>A kiszolgáló nem fogadja el a(z) „%1” módosítását (%2): %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>hová mehet még a jelszó</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 ezt fogadja el: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[KULCS [ÉRTÉK]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>a beállítások, vagy egy módosítása; a „default” visszaállítja</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>hány másodperc után töltődik le újra egy lista</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>hány műsort mutat egy csatornáról a most futók listája</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>színek az éppen futókhoz és a kedvencekhez</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>a műsorok képei</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>képek a műsor oldala mögött</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>az ablak színei; a „desktop” az ottani beállítást követi</translation>
    </message>
</context>
</TS>
