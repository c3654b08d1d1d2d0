<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Načítání</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Stream neodpovídá.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Připojování</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Přesunout: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Písmena</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Karty</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Odebrat: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Přehrát: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>Kanály: %1 z %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 vyžaduje počet minut od 0 do %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: upozornění %n minutu před každým vysíláním</numerusform>
            <numerusform>%1: upozornění %n minuty před každým vysíláním</numerusform>
            <numerusform>%1: upozornění %n minut před každým vysíláním</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: upozornění %n minutu před každou reprízou</numerusform>
            <numerusform>%1: upozornění %n minuty před každou reprízou</numerusform>
            <numerusform>%1: upozornění %n minut před každou reprízou</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: upozornění %n minutu před každou premiérou</numerusform>
            <numerusform>%1: upozornění %n minuty před každou premiérou</numerusform>
            <numerusform>%1: upozornění %n minut před každou premiérou</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres a --replays se navzájem vylučují.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres a --replays se týkají upozornění: chybí --alarm MINUTY.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Nepodařilo se přidat: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Oblíbené: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>V tuto chvíli není ohlášeno žádné vysílání s tímto názvem.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 je mezi oblíbenými, ale pro upozornění není žádný zapisovatelný kalendář.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Už není oblíbené: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Zatím žádné oblíbené. &quot;vidora favourite X&quot; pořad přidá.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>V tu dobu nezačíná žádné nadcházející vysílání pořadu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Odpovídá více vysílání; --on KANÁL nebo delší část názvu určí které:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Na upozornění %n minutu předem je už pozdě.</numerusform>
            <numerusform>Na upozornění %n minuty předem je už pozdě.</numerusform>
            <numerusform>Na upozornění %n minut předem je už pozdě.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Upozornění nebylo nastaveno: žádný kalendář nelze zapisovat.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Upozornění %n minutu předem: %1</numerusform>
            <numerusform>Upozornění %n minuty předem: %1</numerusform>
            <numerusform>Upozornění %n minut předem: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Už bez upozornění: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Upozornění odebráno: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Žádná upozornění.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours vyžaduje dva časy, například 00:00 07:00, nebo &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Oblíbené pořady mezi %1 a %2 nezvoní.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Žádné tiché hodiny.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Období přes půlnoc nebo bez délky je ztiší po celý den.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Před změnou kalendáře musíte odebrat všechna upozornění</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>&quot;%1&quot; neexistuje. K dispozici jsou: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; může být: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Neznámá volba %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Neznámý příkaz %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 nepřijímá &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 nepřijímá %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>co se vysílá nyní a co následuje na vybraných kanálech</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>všechny nadcházející pořady kanálu podle dnů</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>nadcházející pořady jedné kategorie</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>nadcházející pořady, které obsahují text</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>katalog s označenými vybranými kanály</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>vybrat kanály</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>zrušit výběr kanálů</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>stáhnout, co chybí nebo je staré</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>použít vlastní XMLTV program: adresa nebo soubor</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>přestat sledovat a odebrat upozornění</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>sledované pořady</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>odebrat upozornění jednoho vysílání, nebo všech</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>vysílání oblíbených pořadů, na která zazvoní upozornění</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>kdy oblíbené pořady nemají zvonit</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>kalendáře, nebo výběr toho pro upozornění</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>odpovědi pro programy</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>vše ukládat do této složky</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>program jako v jiném okamžiku: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>vypisovat na chybový výstup, co bylo staženo a nalezeno</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>verze programu</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>načíst všechny části okna a skončit</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Bez příkazu: okno; bez displeje to, co se nyní vysílá, v případě potřeby po aktualizaci.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X je název, jeho jednoznačná část, nebo ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Zatím není vybrán žádný kanál. &quot;vidora channels&quot; je vypíše, &quot;vidora select X...&quot; vybere.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Toto je první pohled na smyšlený region s prvními %1 z jeho %2 kanálů. &quot;vidora import&quot; načte váš vlastní program.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Vše je aktuální.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Aktualizované kanály: %1 z %2, pořady: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Nic nepřišlo pro: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Žádný program.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Žádné pořady.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>Je vybrán %n kanál.</numerusform>
            <numerusform>Jsou vybrány %n kanály.</numerusform>
            <numerusform>Je vybráno %n kanálů.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Katalog vašeho programu nelze přečíst; importujte program znovu.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Toto zařízení</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Do %1 nelze zapisovat: nic se neuloží.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Tuto složku používá jiná vidora (proces %1); zobrazuje se, co má.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Tuto složku používá jiná vidora (proces %1); čeká se na ni.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Ukázkový region se nepodařilo spustit; --log řekne proč.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Vynechán: %n kanál bez ID.</numerusform>
            <numerusform>Vynechány: %n kanály bez ID.</numerusform>
            <numerusform>Vynecháno: %n kanálů bez ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Vynechán: %n kanál s již použitým ID.</numerusform>
            <numerusform>Vynechány: %n kanály s již použitým ID.</numerusform>
            <numerusform>Vynecháno: %n kanálů s již použitým ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Vynechán: %n pořad bez začátku a konce s časovým posunem.</numerusform>
            <numerusform>Vynechány: %n pořady bez začátku a konce s časovým posunem.</numerusform>
            <numerusform>Vynecháno: %n pořadů bez začátku a konce s časovým posunem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Vynechán: %n pořad kanálů, které program neuvádí.</numerusform>
            <numerusform>Vynechány: %n pořady kanálů, které program neuvádí.</numerusform>
            <numerusform>Vynecháno: %n pořadů kanálů, které program neuvádí.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Kanály: %1, pořady: %2, dny: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>Obsahuje %n z dříve vybraných kanálů; &quot;vidora update&quot; načte jeho pořady.</numerusform>
            <numerusform>Obsahuje %n z dříve vybraných kanálů; &quot;vidora update&quot; načte jejich pořady.</numerusform>
            <numerusform>Obsahuje %n z dříve vybraných kanálů; &quot;vidora update&quot; načte jejich pořady.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Vyberte kanály příkazem &quot;vidora select X...&quot;, potom &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>načítá se %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>ikony: %1 z %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Zde není žádné okno.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Všechny pořady</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Celovečerní filmy</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Večerní pořady</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Nejsledovanější</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Pro děti</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Zprávy</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Zábava</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Hudba</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Komedie</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Dobrodružné</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Krimi</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Westerny</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Dramata</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Thrillery</translation>
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
        <translation>Horory</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Seriály</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 není dostupné: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 odpovědělo stavem %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 je prázdné.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 má neznámé kódování.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 není adresa programu: je třeba http, https nebo soubor.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 není program ve formátu XMLTV.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Program na %1 nemá žádné kanály.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Import byl ukončen; zůstává dosavadní program.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Katalog nelze zapsat: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Nelze navázat spojení se vzdáleným serverem</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Zkontrolujte připojení k internetu.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Žádné kanály.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Žádný kanál s tímto názvem nebo jazykem.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Všechny kanály</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Ostatní</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Přidat kanály</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Odebrat všechny kanály</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Zatím není vybrán žádný kanál. Přidejte ty, které chcete vidět.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Tato stránka přijde v některé z dalších verzí.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Plán</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>Na kartě &quot;Kanály&quot; vyberte kanály, které chcete vidět.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aktualizováno </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Upozornění</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Streamování tohoto videa je momentálně nedostupné nebo rychlost vašeho internetového připojení nestačí.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Všechna vysílání tohoto oblíbeného pořadu mají upozornění: příští aktualizace je znovu nastaví.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Seznam kanálů</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>S --clock nejsou žádné kalendáře, leda ve vlastní složce: --home SLOŽKA.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Žádný účet není. &quot;vidora calendars add ADRESA --user JMÉNO&quot; jej přidá.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Kalendáře tohoto zařízení jsou uloženy v %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: změny čekající na server: %2. &quot;vidora calendars test&quot; řekne proč.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: lze zapisovat</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: jen pro čtení</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Nic nebylo přidáno. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Přidáno: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars JMÉNO&quot; vybere kalendář pro upozornění.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Do žádného z jeho kalendářů nelze zapisovat: upozornění tam být nemohou.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Kalendáře jsou na %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Přihlášení: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Změny čekající na server: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Změny čekající na server by se ztratily: %1. --force účet přesto odebere.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Heslo je stále v klíčence, která není dostupná.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Odebráno: %1. Jeho kalendáře zůstávají na serveru.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Toto není adresa serveru.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Server s tímto názvem neexistuje.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Server není dostupný.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Server není přes HTTPS dostupný.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Certifikát serveru není důvěryhodný: může být vlastní výroby, prošlý nebo patřit jinému serveru. Vlastní certifikační autorita musí být mezi autoritami systému.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Server neodpovídá.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Heslo není k dispozici: klíčenka je uzamčena nebo heslo už není uloženo. Zadáte je novým přidáním účtu.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Server nepřijímá tohoto uživatele s tímto heslem.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Server chce heslo v čitelné podobě po nešifrovaném spojení. Nebylo odesláno; použijte adresu https.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Server tomuto uživateli nedovolí vidět tamní kalendáře.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Server odkazuje na jiný, kterému se heslo neposílá. Zadejte jeho adresu.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Server existuje, ale na této adrese nejsou kalendáře CalDAV. Zadejte adresu, kterou uvádí váš poskytovatel.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Server má vlastní potíže; zkuste to později.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Server neposlal srozumitelnou odpověď.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>použít kalendáře serveru CalDAV; zeptá se na heslo</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>co říkají servery účtů</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>účet už nepoužívat</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Heslo pro %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Heslo nebylo zadáno.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ČAS</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>kdy vysílání začíná: 20:00 nebo 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>KANÁL</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>na tomto kanálu</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>zazvonit před jedním vysíláním a sledovat jeho pořad</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINUTY</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>o tolik dříve; bez toho jako naposledy</translation>
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
        <translation>JMÉNO</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>jméno k přihlášení</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[JMÉNO]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>i když čekají změny, které server nemá</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>SLOŽKA</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>tento text; za příkazem to, co přijímá</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 vyžaduje čas, například 20:00 nebo 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 vyžaduje čas, například 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 vyžaduje %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Použití: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>Jak na to, řekne „%1“.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>sledovat pořad a zazvonit před jeho vysíláním</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>zazvonit o tolik dříve před každým vysíláním</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>jen před premiérami</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>jen před reprízami</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[PŘÍKAZ] [VOLBA]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Obraz tohoto vysílání nelze na tomto počítači zobrazit.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>Právě běží</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Upozornění</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Oblíbené</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repríza</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Populární</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Žádné připojení.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Právě aktualizováno</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Aktualizováno před %1 min</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Aktualizováno před %1 h</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Všechny kanály odebrány</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>Odebráno: %1</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Žádný seznam</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>ještě %1 min</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Kalendář „%1“ s vašimi upozorněními je pryč. Nová vznikají v „%2“; „vidora calendars NÁZEV“ zvolí jiný.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Kalendáře tohoto účtu leží na %1. Má-li tam smět heslo: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Server nepřijímá změnu pořadu „%1“ v %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>kam ještě smí heslo jít</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 přijímá: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[KLÍČ [HODNOTA]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>nastavení, nebo jedno změnit; „default“ ho vrátí</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>po kolika sekundách se seznam znovu stáhne</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>kolik pořadů kanálu ukazuje přehled toho, co právě běží</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>barvy pro to, co právě běží, a pro oblíbené</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>obrázky pořadů</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>obrázky za stránkou pořadu</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>barvy okna; „desktop“ se řídí nastavením plochy</translation>
    </message>
</context>
</TS>
