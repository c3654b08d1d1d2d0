<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="mk_MK">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Вчитување</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Преносот не одговара.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Поврзување</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пушти</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Јачина на звукот</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Затвори</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Премести: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Барај</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Откажи</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Букви</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Картички</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Отстрани: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Пушти: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>Канали: %1 од %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 бара број на минути од 0 до %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: аларм %n минута пред секое емитување</numerusform>
            <numerusform>%1: аларм %n минути пред секое емитување</numerusform>
            <numerusform>%1: аларм %n минути пред секое емитување</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: аларм %n минута пред секоја реприза</numerusform>
            <numerusform>%1: аларм %n минути пред секоја реприза</numerusform>
            <numerusform>%1: аларм %n минути пред секоја реприза</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: аларм %n минута пред секоја премиера</numerusform>
            <numerusform>%1: аларм %n минути пред секоја премиера</numerusform>
            <numerusform>%1: аларм %n минути пред секоја премиера</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres и --replays се исклучуваат меѓусебно.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres и --replays се однесуваат на аларми: недостасува --alarm МИНУТИ.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Додавањето не успеа: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Омилено: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Засега не е најавено ниедно емитување на овој наслов.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 е меѓу омилените, но нема календар во кој може да се запишат алармите.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Веќе не е омилено: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Сè уште нема омилени. &quot;vidora favourite X&quot; додава емисија.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Тогаш не почнува ниедно претстојно емитување на &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Одговараат повеќе емитувања; --on КАНАЛ или подолг дел од насловот кажува кое:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Предоцна е за аларм %n минута порано.</numerusform>
            <numerusform>Предоцна е за аларм %n минути порано.</numerusform>
            <numerusform>Предоцна е за аларм %n минути порано.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Алармот не е поставен: нема календар во кој може да се запишува.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Аларм %n минута порано: %1</numerusform>
            <numerusform>Аларм %n минути порано: %1</numerusform>
            <numerusform>Аларм %n минути порано: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Веќе нема аларми: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Алармот е отстранет: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Нема аларми.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours бара две времиња како 00:00 07:00, или &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Омилените емисии не ѕвонат меѓу %1 и %2.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Нема тивки часови.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Период што минува преку полноќ или нема траење ги стишува во секое време од денот.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Пред да го смените календарот, мора да ги отстраните сите аларми</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>Не постои &quot;%1&quot;. Постојат: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; може да биде: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Непозната опција %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Непозната команда %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 не прима &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 не прима %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>што има сега и што следува на избраните канали</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>сите претстојни емисии на еден канал, по денови</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>претстојни емисии од една категорија</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>претстојни емисии што содржат текст</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>каталогот, со означени избрани канали</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>избери канали</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>отстрани канали од изборот</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>преземи го она што недостасува или е старо</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>користи сопствен XMLTV водич: адреса или датотека</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>не следи го повеќе и отстрани ги неговите аларми</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>насловите што се следат</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>отстрани го алармот на едно емитување или на сите</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>емитувањата на омилените емисии што ќе ѕвонат</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>кога омилените емисии не смеат да ѕвонат</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>календарите, или избор на оној за алармите</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>одговори за програми</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>чувај сè во оваа папка</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>водичот како во некој друг момент: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>јави на стандардниот излез за грешки што е преземено и најдено</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>верзијата на програмата</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>вчитај го секој дел од прозорецот и заврши</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Без команда: прозорецот; без екран, она што е сега на програма, по потреба по освежување.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X е наслов, негов дел што го има само еден, или ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Сè уште не е избран ниеден канал. &quot;vidora channels&quot; ги наведува, &quot;vidora select X...&quot; избира.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Ова е прв поглед на измислен регион, со првите %1 од неговите %2 канали. &quot;vidora import&quot; чита ваш сопствен водич.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Сè е ажурно.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Освежени канали: %1 од %2, емисии: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Ништо не пристигна за: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Нема програма.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Нема емисии.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>Избран е %n канал.</numerusform>
            <numerusform>Избрани се %n канали.</numerusform>
            <numerusform>Избрани се %n канали.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Каталогот на вашиот водич не може да се прочита; увезете го водичот повторно.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Овој уред</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Запишување во %1 не е можно: ништо нема да се зачува.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Друг vidora (процес %1) ја користи оваа папка; се прикажува она што го има.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Друг vidora (процес %1) ја користи оваа папка; се чека да заврши.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Пробниот регион не можеше да се стартува; --log кажува зошто.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Прескокнато: %n канал без ID.</numerusform>
            <numerusform>Прескокнато: %n канали без ID.</numerusform>
            <numerusform>Прескокнато: %n канали без ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Прескокнато: %n канал чиј ID веќе постои.</numerusform>
            <numerusform>Прескокнато: %n канали чиј ID веќе постои.</numerusform>
            <numerusform>Прескокнато: %n канали чиј ID веќе постои.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Прескокнато: %n емисија без почеток и крај со отстапување од UTC.</numerusform>
            <numerusform>Прескокнато: %n емисии без почеток и крај со отстапување од UTC.</numerusform>
            <numerusform>Прескокнато: %n емисии без почеток и крај со отстапување од UTC.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Прескокнато: %n емисија на канали што ги нема во водичот.</numerusform>
            <numerusform>Прескокнато: %n емисии на канали што ги нема во водичот.</numerusform>
            <numerusform>Прескокнато: %n емисии на канали што ги нема во водичот.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Канали: %1, емисии: %2, денови: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n од претходно избраните канали е во него; &quot;vidora update&quot; ги чита неговите емисии.</numerusform>
            <numerusform>%n од претходно избраните канали се во него; &quot;vidora update&quot; ги чита нивните емисии.</numerusform>
            <numerusform>%n од претходно избраните канали се во него; &quot;vidora update&quot; ги чита нивните емисии.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Изберете канали со &quot;vidora select X...&quot;, а потоа &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>читање: %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>икони: %1 од %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Тука нема прозорец.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Сите емисии</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Играни филмови</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Вечерна програма</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Најгледано</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Документарна програма</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>За деца</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Вести</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Забава</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музика</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Спорт</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Комедии</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Авантури</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Криминалистички</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Вестерни</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Драми</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Трилери</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>Научна фантастика</translation>
    </message>
    <message>
        <source>Fantasy</source>
        <translation>Фантазија</translation>
    </message>
    <message>
        <source>Horrors</source>
        <translation>Хорори</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Филмови</translation>
    </message>
    <message>
        <source>TV Series</source>
        <translation>Серии</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 не е достапно: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 одговори со статус %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 е празно.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 има непознато кодирање.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 не е адреса на водич: потребен е http, https или датотека.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 не е XMLTV водич.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Водичот на %1 нема канали.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Увозот е прекинат; останува досегашниот водич.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Каталогот не може да се запише: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Не може да се воспостави врска со далечинскиот сервер</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Проверете ја врската со интернет.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Во ред</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Нема канали.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Нема канал со тоа име или јазик.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Сите канали</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Друго</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Канали</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Освежи</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Додај канали</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Отстрани ги сите канали</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Сè уште не е избран ниеден канал. Додајте ги оние што сакате да ги гледате.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Поставки</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Оваа страница доаѓа во некоја од следните верзии.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Сега</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Категории</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Распоред</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>На картичката &quot;Канали&quot; изберете ги каналите што сакате да ги гледате.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Освежено </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Известување</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Преносот на ова видео моментално не е достапен или брзината на вашата интернет-врска не е доволна.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Сите емитувања на оваа омилена емисија имаат аларм: следното освежување повторно го поставува.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Список на канали</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Отстрани</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Со --clock нема календари, освен во посебна папка: --home ПАПКА.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Нема сметка. &quot;vidora calendars add АДРЕСА --user ИМЕ&quot; додава сметка.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Календарите на овој уред се наоѓаат во %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: измени што чекаат на серверот: %2. &quot;vidora calendars test&quot; кажува зошто.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: може да се запишува</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: само за читање</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Ништо не е додадено. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Додадено: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars ИМЕ&quot; го избира календарот за аларми.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Во ниеден негов календар не може да се запишува: алармите не можат да бидат таму.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Календарите се на %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Најава: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Измени што чекаат на серверот: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Измените што чекаат на серверот би се изгубиле: %1. --force сепак ја отстранува сметката.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Лозинката е сè уште во приврзокот со клучеви, кој не е достапен.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Отстрането: %1. Неговите календари остануваат на серверот.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Ова не е адреса на сервер.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Не постои сервер со тоа име.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Серверот не е достапен.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Серверот не е достапен преку HTTPS.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Сертификатот на серверот не е доверлив: можеби е самопотпишан, истечен или припаѓа на друг сервер. Сопствен издавач на сертификати мора да биде меѓу оние во системот.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Серверот не одговара.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Лозинката не е достапна: приврзокот со клучеви е заклучен или лозинката повеќе не е зачувана. Додајте ја сметката повторно за да ја внесете.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Серверот не го прифаќа овој корисник со оваа лозинка.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Серверот ја бара лозинката во изворен облик преку нешифрирана врска. Не е испратена; користете https адреса.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Серверот не му дозволува на овој корисник да ги види тамошните календари.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Серверот упатува на друг сервер, на кој лозинката не се испраќа. Наведете ја таа адреса.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Серверот постои, но на оваа адреса нема CalDAV календари. Наведете ја адресата што ја дава вашиот давател на услугата.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Серверот има свои тешкотии; обидете се подоцна.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Серверот не даде разбирлив одговор.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>користи ги календарите на CalDAV сервер; прашува за лозинка</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>што кажуваат серверите на сметките</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>не користи повеќе сметка</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Лозинка за %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Не е внесена лозинка.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ВРЕМЕ</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>кога почнува емитувањето: 20:00 или 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>КАНАЛ</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>на овој канал</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>ѕвони пред едно емитување и го следи неговиот наслов</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>МИНУТИ</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>толку порано; без тоа како минатиот пат</translation>
    </message>
    <message>
        <source>[off | FROM TO]</source>
        <translation>[off | ОД ДО]</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>АДРЕСА</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЕ</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>името за најава</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[ИМЕ]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>и кога чекаат промени што ги нема на серверот</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ПАПКА</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>овој текст; зад команда, она што таа го прима</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 бара време како 20:00 или 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 бара време како 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 бара %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Употреба: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>„%1“ кажува како.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>следи наслов и ѕвони пред неговите емитувања</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>ѕвони толку порано пред секое емитување</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>само за премиери</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>само за репризи</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>ТЕКСТ</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[КОМАНДА] [ОПЦИЈА]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Сликата на овој пренос не може да се прикаже на овој компјутер.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Обиди се повторно</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>Во тек</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Аларм</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Омилено</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Реприза</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Популарно</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Врати</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Нема врска.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Штотуку ажурирано</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Ажурирано пред %1 мин</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Ажурирано пред %1 ч</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Сите канали се отстранети</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>Отстрането: %1</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Нема список</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>уште %1 мин</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Календарот „%1“ со вашите аларми го нема. Новите се прават во „%2“; „vidora calendars ИМЕ“ избира друг.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Календарите на оваа сметка се на %1. За лозинката да смее таму: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Серверот не ја прифаќа промената на „%1“ во %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>каде уште смее да оди лозинката</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 прима: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[КЛУЧ [ВРЕДНОСТ]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>поставките, или измени една; „default“ ја враќа</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>по колку секунди листата повторно се презема</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>колку емисии од канал стојат во она што е сега</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>бои за она што е во етер и за омилените</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>слики од емисиите</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>слики зад страницата на емисија</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>боите на прозорецот; „desktop“ го следи она што е поставено таму</translation>
    </message>
</context>
</TS>
