<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sr_RS">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Учитавање</translation>
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
        <translation>Пренос не одговара.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Повезивање</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пусти</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Јачина звука</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Затвори</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Помери: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Претрага</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Откажи</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Слова</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Картице</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Уклони: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Пусти: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>Канали: %1 од %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 тражи број минута од 0 до %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: аларм %n минут пре сваког емитовања</numerusform>
            <numerusform>%1: аларм %n минута пре сваког емитовања</numerusform>
            <numerusform>%1: аларм %n минута пре сваког емитовања</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: аларм %n минут пре сваке репризе</numerusform>
            <numerusform>%1: аларм %n минута пре сваке репризе</numerusform>
            <numerusform>%1: аларм %n минута пре сваке репризе</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: аларм %n минут пре сваке премијере</numerusform>
            <numerusform>%1: аларм %n минута пре сваке премијере</numerusform>
            <numerusform>%1: аларм %n минута пре сваке премијере</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres и --replays искључују једно друго.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres и --replays се односе на аларме: недостаје --alarm МИНУТИ.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Додавање није успело: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Омиљено: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>За сада није најављено ниједно емитовање овог наслова.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 је међу омиљенима, али нема календара у који се могу уписати аларми.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Више није омиљено: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Још нема омиљених. &quot;vidora favourite X&quot; додаје емисију.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Тада не почиње ниједно предстојеће емитовање наслова &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Одговара више емитовања; --on КАНАЛ или дужи део наслова каже које:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Прекасно је за аларм %n минут раније.</numerusform>
            <numerusform>Прекасно је за аларм %n минута раније.</numerusform>
            <numerusform>Прекасно је за аларм %n минута раније.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Аларм није постављен: нема календара у који се може уписивати.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Аларм %n минут раније: %1</numerusform>
            <numerusform>Аларм %n минута раније: %1</numerusform>
            <numerusform>Аларм %n минута раније: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Више нема аларма: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Аларм је уклоњен: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Нема аларма.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours тражи два времена као што су 00:00 07:00, или &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Омиљене емисије не звоне између %1 и %2.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Нема тихих сати.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>Период који прелази поноћ или нема трајање утишава их у свако доба дана.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Пре промене календара морате уклонити све аларме</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>Не постоји &quot;%1&quot;. Постоје: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; може бити: %2</translation>
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
        <translation>шта је сада и шта следи на изабраним каналима</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>све предстојеће емисије једног канала, по данима</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>предстојеће емисије једне категорије</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>предстојеће емисије које садрже текст</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>каталог, са означеним изабраним каналима</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>изабери канале</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>уклони канале из избора</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>преузми оно што недостаје или је старо</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>користи сопствени XMLTV водич: адреса или датотека</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>не прати га више и уклони његове аларме</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>наслови који се прате</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>уклони аларм једног емитовања или свих</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>емитовања омиљених емисија која ће звонити</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>када омиљене емисије не смеју да звоне</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>календари, или избор онога за аларме</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>одговори за програме</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>чувај све у овом фолдеру</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>водич као у неком другом тренутку: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>пријави на стандардни излаз за грешке шта је преузето и нађено</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>верзија програма</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>учитај сваки део прозора и заврши</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Без команде: прозор; без екрана, оно што је сада на програму, по потреби после освежавања.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X је наслов, његов део који има само један, или ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Још није изабран ниједан канал. &quot;vidora channels&quot; их набраја, &quot;vidora select X...&quot; бира.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Ово је први поглед на измишљени регион, са првих %1 од његова %2 канала. &quot;vidora import&quot; чита ваш сопствени водич.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Све је ажурно.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Освежено канала: %1 од %2, емисија: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Ништа није стигло за: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Нема програма.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Нема емисија.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>Изабран је %n канал.</numerusform>
            <numerusform>Изабрана су %n канала.</numerusform>
            <numerusform>Изабрано је %n канала.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Каталог вашег водича не може да се прочита; увезите водич поново.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Овај уређај</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Упис у %1 није могућ: ништа неће бити сачувано.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Други vidora (процес %1) користи овај фолдер; приказује се оно што он има.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Други vidora (процес %1) користи овај фолдер; чека се да заврши.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Пробни регион није могао да се покрене; --log каже зашто.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Прескочено: %n канал без ID-а.</numerusform>
            <numerusform>Прескочено: %n канала без ID-а.</numerusform>
            <numerusform>Прескочено: %n канала без ID-а.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Прескочено: %n канал чији ID већ постоји.</numerusform>
            <numerusform>Прескочено: %n канала чији ID већ постоји.</numerusform>
            <numerusform>Прескочено: %n канала чији ID већ постоји.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Прескочено: %n емисија без почетка и краја са одступањем од UTC.</numerusform>
            <numerusform>Прескочено: %n емисије без почетка и краја са одступањем од UTC.</numerusform>
            <numerusform>Прескочено: %n емисија без почетка и краја са одступањем од UTC.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Прескочено: %n емисија канала којих нема у водичу.</numerusform>
            <numerusform>Прескочено: %n емисије канала којих нема у водичу.</numerusform>
            <numerusform>Прескочено: %n емисија канала којих нема у водичу.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Канала: %1, емисија: %2, дана: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n од раније изабраних канала је у њему; &quot;vidora update&quot; чита његове емисије.</numerusform>
            <numerusform>%n од раније изабраних канала су у њему; &quot;vidora update&quot; чита њихове емисије.</numerusform>
            <numerusform>%n од раније изабраних канала је у њему; &quot;vidora update&quot; чита њихове емисије.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Изаберите канале са &quot;vidora select X...&quot;, а затим &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>читање: %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>иконе: %1 од %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Овде нема прозора.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Све емисије</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Играни филмови</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Вечерњи програм</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Најгледаније</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Документарни програм</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>За децу</translation>
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
        <translation>Комедије</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Авантуре</translation>
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
        <translation>Драме</translation>
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
        <translation>Фантастика</translation>
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
        <translation>Серије</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 није доступно: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 је одговорио статусом %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 је празно.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 има непознато кодирање.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 није адреса водича: потребан је http, https или датотека.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 није XMLTV водич.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Водич на %1 нема канала.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Увоз је прекинут; остаје досадашњи водич.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Каталог не може да се упише: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Веза са удаљеним сервером није успостављена</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Проверите везу са интернетом.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>У реду</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Нема канала.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Нема канала са тим именом или језиком.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Сви канали</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Остало</translation>
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
        <translation>Додај канале</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Уклони све канале</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Још није изабран ниједан канал. Додајте оне које желите да видите.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Подешавања</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Ова страница стиже у некој од наредних верзија.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Тренутно</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Категорије</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Распоред</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>На картици &quot;Канали&quot; изаберите канале које желите да видите.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Освежено </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Обавештење</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Пренос овог видеа тренутно није доступан или брзина ваше интернет везе није довољна.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Сва емитовања ове омиљене емисије имају аларм: наредно освежавање га поново поставља.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Списак канала</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Уклони</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Уз --clock нема календара, осим у засебном фолдеру: --home ФОЛДЕР.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Нема налога. &quot;vidora calendars add АДРЕСА --user ИМЕ&quot; додаје налог.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Календари овог уређаја налазе се у %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: измене које чекају на сервер: %2. &quot;vidora calendars test&quot; каже зашто.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: може да се уписује</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: само за читање</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Ништа није додато. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Додато: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars ИМЕ&quot; бира календар за аларме.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>Ни у један његов календар не може да се уписује: аларми не могу тамо да буду.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Календари су на %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Пријава: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Измене које чекају на сервер: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Измене које чекају на сервер биле би изгубљене: %1. --force ипак уклања налог.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Лозинка је још у свежњу кључева, који није доступан.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Уклоњено: %1. Његови календари остају на серверу.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Ово није адреса сервера.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Не постоји сервер са тим именом.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Сервер није доступан.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Сервер није доступан преко HTTPS-а.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Сертификат сервера није поуздан: можда је самопотписан, истекао или припада другом серверу. Сопствено сертификационо тело мора бити међу онима у систему.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Сервер не одговара.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Лозинка није доступна: свежањ кључева је закључан или лозинка више није сачувана. Додајте налог поново да бисте је унели.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Сервер не прихвата овог корисника са овом лозинком.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Сервер тражи лозинку у изворном облику преко нешифроване везе. Није послата; користите https адресу.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Сервер не допушта овом кориснику да види тамошње календаре.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Сервер упућује на други сервер, коме се лозинка не шаље. Наведите ту адресу.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Сервер постоји, али на овој адреси нема CalDAV календара. Наведите адресу коју даје ваш пружалац услуге.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Сервер има сопствених тешкоћа; покушајте касније.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Сервер није дао разумљив одговор.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>користи календаре CalDAV сервера; пита за лозинку</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>шта кажу сервери налога</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>не користи више налог</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Лозинка за %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Лозинка није унета.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ВРЕМЕ</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>када емитовање почиње: 20:00 или 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>КАНАЛ</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>на овом каналу</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>звони пре једног емитовања и прати његов наслов</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>МИНУТИ</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>толико раније; без тога као прошли пут</translation>
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
        <translation>име за пријаву</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[ИМЕ]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>и кад чекају промене којих нема на серверу</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ФОЛДЕР</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>овај текст; иза команде оно што она прима</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 тражи време као што је 20:00 или 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 тражи време као што је 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 тражи %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Употреба: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>&quot;%1&quot; каже како.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>прати наслов и звони пре његових емитовања</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>звони толико пре сваког емитовања</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>само за премијере</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>само за репризе</translation>
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
        <translation>Слика овог преноса не може да се прикаже на овом рачунару.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Покушај поново</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>У току</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Аларм</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Омиљено</translation>
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
        <translation>Опозови</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Нема везе.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Управо ажурирано</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Ажурирано пре %1 мин</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Ажурирано пре %1 х</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Сви канали уклоњени</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>Уклоњено: %1</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Нема листе</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>још %1 мин</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Календара „%1“ са вашим алармима више нема. Нови настају у „%2“; &quot;vidora calendars НАЗИВ&quot; бира други.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Календари овог налога налазе се на %1. Да лозинка сме тамо: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Сервер не прихвата промену „%1“ у %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>куда још сме да иде лозинка</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 прима: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[КЉУЧ [ВРЕДНОСТ]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>подешавања, или промени једно; &quot;default&quot; га враћа</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>после колико секунди се листа поново преузима</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>колико емисија канала стоји у прегледу онога што је сада</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>боје за оно што је у етру и за омиљене</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>слике емисија</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>слике иза странице емисије</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>боје прозора; &quot;desktop&quot; следи што је тамо подешено</translation>
    </message>
</context>
</TS>
