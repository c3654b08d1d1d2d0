<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk_SK">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Načítava sa</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Stream neodpovedá.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Pripája sa</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastaviť</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Prehrať</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hlasitosť</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Presunúť: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hľadať</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Písmená</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Karty</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Odobrať: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Prehrať: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>Kanály: %1 z %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 vyžaduje počet minút od 0 do %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: upozornenie %n minútu pred každým vysielaním</numerusform>
            <numerusform>%1: upozornenie %n minúty pred každým vysielaním</numerusform>
            <numerusform>%1: upozornenie %n minút pred každým vysielaním</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: upozornenie %n minútu pred každou reprízou</numerusform>
            <numerusform>%1: upozornenie %n minúty pred každou reprízou</numerusform>
            <numerusform>%1: upozornenie %n minút pred každou reprízou</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: upozornenie %n minútu pred každou premiérou</numerusform>
            <numerusform>%1: upozornenie %n minúty pred každou premiérou</numerusform>
            <numerusform>%1: upozornenie %n minút pred každou premiérou</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres a --replays sa navzájom vylučujú.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres a --replays sa týkajú upozornení: chýba --alarm MINÚTY.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Nepodarilo sa pridať: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Obľúbené: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Momentálne nie je ohlásené žiadne vysielanie s týmto názvom.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 je medzi obľúbenými, ale na upozornenia nie je žiadny zapisovateľný kalendár.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Už nie je obľúbené: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Zatiaľ žiadne obľúbené. &quot;vidora favourite X&quot; reláciu pridá.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>V tom čase sa nezačína žiadne nadchádzajúce vysielanie relácie &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Zodpovedá viac vysielaní; --on KANÁL alebo dlhšia časť názvu určí ktoré:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Na upozornenie %n minútu vopred je už neskoro.</numerusform>
            <numerusform>Na upozornenie %n minúty vopred je už neskoro.</numerusform>
            <numerusform>Na upozornenie %n minút vopred je už neskoro.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Upozornenie nebolo nastavené: do žiadneho kalendára sa nedá zapisovať.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Upozornenie %n minútu vopred: %1</numerusform>
            <numerusform>Upozornenie %n minúty vopred: %1</numerusform>
            <numerusform>Upozornenie %n minút vopred: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Už bez upozornení: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Upozornenie odobrané: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Žiadne upozornenia.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours vyžaduje dva časy, napríklad 00:00 07:00, alebo &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Obľúbené relácie medzi %1 a %2 nezvonia.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Žiadne tiché hodiny.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Obdobie cez polnoc alebo bez dĺžky ich stíši po celý deň.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Pred zmenou kalendára musíte odobrať všetky upozornenia</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>&quot;%1&quot; neexistuje. K dispozícii sú: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; môže byť: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Neznáma voľba %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Neznámy príkaz %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 neprijíma &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 neprijíma %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>čo sa vysiela teraz a čo nasleduje na vybraných kanáloch</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>všetky nadchádzajúce relácie kanála podľa dní</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>nadchádzajúce relácie jednej kategórie</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>nadchádzajúce relácie, ktoré obsahujú text</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>katalóg s označenými vybranými kanálmi</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>vybrať kanály</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>zrušiť výber kanálov</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>stiahnuť, čo chýba alebo je staré</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>použiť vlastný XMLTV program: adresa alebo súbor</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>prestať sledovať a odobrať upozornenia</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>sledované relácie</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>odobrať upozornenie jedného vysielania, alebo všetkých</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>vysielania obľúbených relácií, na ktoré zazvoní upozornenie</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>kedy obľúbené relácie nemajú zvoniť</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>kalendáre, alebo výber toho pre upozornenia</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>odpovede pre programy</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>všetko ukladať do tohto priečinka</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>program ako v inom okamihu: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>vypisovať na chybový výstup, čo bolo stiahnuté a nájdené</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>verzia programu</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>načítať všetky časti okna a skončiť</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Bez príkazu: okno; bez displeja to, čo sa práve vysiela, v prípade potreby po aktualizácii.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X je názov, jeho jednoznačná časť, alebo ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Zatiaľ nie je vybraný žiadny kanál. &quot;vidora channels&quot; ich vypíše, &quot;vidora select X...&quot; vyberie.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Toto je prvý pohľad na vymyslený región s prvými %1 z jeho %2 kanálov. &quot;vidora import&quot; načíta váš vlastný program.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Všetko je aktuálne.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Aktualizované kanály: %1 z %2, relácie: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Nič neprišlo pre: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Žiadny program.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Žiadne relácie.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>Je vybraný %n kanál.</numerusform>
            <numerusform>Sú vybrané %n kanály.</numerusform>
            <numerusform>Je vybraných %n kanálov.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Katalóg vášho programu sa nedá prečítať; importujte program znova.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Toto zariadenie</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Do %1 sa nedá zapisovať: nič sa neuloží.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Tento priečinok používa iná vidora (proces %1); zobrazuje sa, čo má.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Tento priečinok používa iná vidora (proces %1); čaká sa na ňu.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Ukážkový región sa nepodarilo spustiť; --log povie prečo.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Vynechaný: %n kanál bez ID.</numerusform>
            <numerusform>Vynechané: %n kanály bez ID.</numerusform>
            <numerusform>Vynechaných: %n kanálov bez ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Vynechaný: %n kanál s už použitým ID.</numerusform>
            <numerusform>Vynechané: %n kanály s už použitým ID.</numerusform>
            <numerusform>Vynechaných: %n kanálov s už použitým ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Vynechaná: %n relácia bez začiatku a konca s časovým posunom.</numerusform>
            <numerusform>Vynechané: %n relácie bez začiatku a konca s časovým posunom.</numerusform>
            <numerusform>Vynechaných: %n relácií bez začiatku a konca s časovým posunom.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Vynechaná: %n relácia kanálov, ktoré program neuvádza.</numerusform>
            <numerusform>Vynechané: %n relácie kanálov, ktoré program neuvádza.</numerusform>
            <numerusform>Vynechaných: %n relácií kanálov, ktoré program neuvádza.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Kanály: %1, relácie: %2, dni: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>Obsahuje %n z predtým vybraných kanálov; &quot;vidora update&quot; načíta jeho relácie.</numerusform>
            <numerusform>Obsahuje %n z predtým vybraných kanálov; &quot;vidora update&quot; načíta ich relácie.</numerusform>
            <numerusform>Obsahuje %n z predtým vybraných kanálov; &quot;vidora update&quot; načíta ich relácie.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Vyberte kanály príkazom &quot;vidora select X...&quot;, potom &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>načítava sa %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>ikony: %1 z %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Tu nie je žiadne okno.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Všetky relácie</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Celovečerné filmy</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Večerné relácie</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Najsledovanejšie</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Pre deti</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Správy</translation>
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
        <translation>Šport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Komédie</translation>
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
        <translation>Drámy</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Trilery</translation>
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
        <translation>%1 nie je dostupné: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 odpovedalo stavom %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 je prázdne.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 má neznáme kódovanie.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 nie je adresa programu: treba http, https alebo súbor.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 nie je program vo formáte XMLTV.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Program na %1 nemá žiadne kanály.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Import bol ukončený; zostáva doterajší program.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Katalóg sa nedá zapísať: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Nepodarilo sa nadviazať spojenie so vzdialeným serverom</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Skontrolujte pripojenie na internet.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Žiadne kanály.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Žiadny kanál s týmto názvom alebo jazykom.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Všetky kanály</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Ostatné</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Obnoviť</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Pridať kanály</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Odobrať všetky kanály</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Zatiaľ nie je vybraný žiadny kanál. Pridajte tie, ktoré chcete vidieť.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Táto stránka príde v niektorej z ďalších verzií.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Práve teraz</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategórie</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Plán</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>Na karte &quot;Kanály&quot; vyberte kanály, ktoré chcete vidieť.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Aktualizované </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Upozornenie</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Streamovanie tohto videa je momentálne nedostupné alebo rýchlosť vášho internetového pripojenia nestačí.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Všetky vysielania tejto obľúbenej relácie majú upozornenie: ďalšia aktualizácia ho znova nastaví.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Zoznam kanálov</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odobrať</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>S --clock nie sú žiadne kalendáre, iba vo vlastnom priečinku: --home PRIEČINOK.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Žiadny účet nie je. &quot;vidora calendars add ADRESA --user MENO&quot; ho pridá.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Kalendáre tohto zariadenia sú uložené v %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: zmeny čakajúce na server: %2. &quot;vidora calendars test&quot; povie prečo.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: dá sa zapisovať</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: iba na čítanie</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Nič nebolo pridané. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Pridané: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars MENO&quot; vyberie kalendár pre upozornenia.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Do žiadneho z jeho kalendárov sa nedá zapisovať: upozornenia tam byť nemôžu.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Kalendáre sú na %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Prihlásenie: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Zmeny čakajúce na server: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Zmeny čakajúce na server by sa stratili: %1. --force účet aj tak odoberie.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Heslo je stále v zväzku kľúčov, ktorý nie je dostupný.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Odobraté: %1. Jeho kalendáre zostávajú na serveri.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Toto nie je adresa servera.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Server s týmto názvom neexistuje.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Server nie je dostupný.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Server nie je cez HTTPS dostupný.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Certifikát servera nie je dôveryhodný: môže byť vlastnej výroby, neplatný alebo patriť inému serveru. Vlastná certifikačná autorita musí byť medzi autoritami systému.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Server neodpovedá.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Heslo nie je k dispozícii: zväzok kľúčov je zamknutý alebo heslo už nie je uložené. Zadáte ho novým pridaním účtu.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Server neprijíma tohto používateľa s týmto heslom.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Server chce heslo v čitateľnej podobe cez nešifrované spojenie. Nebolo odoslané; použite adresu https.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Server tomuto používateľovi nedovolí vidieť tamojšie kalendáre.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Server odkazuje na iný, ktorému sa heslo neposiela. Zadajte jeho adresu.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Server existuje, ale na tejto adrese nie sú kalendáre CalDAV. Zadajte adresu, ktorú uvádza váš poskytovateľ.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Server má vlastné problémy; skúste to neskôr.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Server neposlal zrozumiteľnú odpoveď.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>použiť kalendáre servera CalDAV; opýta sa na heslo</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>čo hovoria servery účtov</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>účet už nepoužívať</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Heslo pre %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Heslo nebolo zadané.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ČAS</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>kedy sa vysielanie začína: 20:00 alebo 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>KANÁL</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>na tomto kanáli</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>zazvoniť pred jedným vysielaním a sledovať jeho reláciu</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINÚTY</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>o toľko skôr; bez toho ako naposledy</translation>
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
        <translation>MENO</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>meno na prihlásenie</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[MENO]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>aj keď čakajú zmeny, ktoré server nemá</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>PRIEČINOK</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>tento text; za príkazom to, čo prijíma</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 vyžaduje čas, napríklad 20:00 alebo 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 vyžaduje čas, napríklad 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 vyžaduje %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Použitie: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>Ako na to, povie „%1“.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>sledovať reláciu a zazvoniť pred jej vysielaniami</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>zazvoniť o toľko skôr pred každým vysielaním</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>len pred premiérami</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>len pred reprízami</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[PRÍKAZ] [VOĽBA]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Obraz tohto vysielania sa na tomto počítači nedá zobraziť.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Skúsiť znova</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>Práve beží</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Upozornenie</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Obľúbené</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repríza</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Populárne</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátiť späť</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Žiadne pripojenie.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Práve aktualizované</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Aktualizované pred %1 min</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Aktualizované pred %1 h</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Všetky kanály odstránené</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>Odstránené: %1</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Žiadny zoznam</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>ešte %1 min</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Kalendár „%1“ s vašimi upozorneniami je preč. Nové vznikajú v „%2“; „vidora calendars NÁZOV“ zvolí iný.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Kalendáre tohto účtu ležia na %1. Ak tam smie heslo: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Server neprijíma zmenu „%1“ v %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>kam ešte smie heslo ísť</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 prijíma: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[KĽÚČ [HODNOTA]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>nastavenia, alebo jedno zmeniť; „default“ ho vráti</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>po koľkých sekundách sa zoznam znova stiahne</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>koľko relácií kanála ukazuje prehľad toho, čo práve beží</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>farby pre to, čo práve beží, a pre obľúbené</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>obrázky relácií</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>obrázky za stránkou relácie</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>farby okna; „desktop“ sa riadi nastavením plochy</translation>
    </message>
</context>
</TS>
