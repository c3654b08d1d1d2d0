<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro_RO">
<context>
    <name>vidora</name>
    <message>
        <source>Loading</source>
        <translation>Se încarcă</translation>
    </message>
    <message>
        <source>%1 - Vidora</source>
        <translation>%1 - Vidora</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>The stream does not answer.</source>
        <translation>Transmisiunea nu răspunde.</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Se conectează</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Redă</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Mută: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Căutare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Renunță</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Litere</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Elimină: %1</translation>
    </message>
    <message>
        <source>Play %1</source>
        <translation>Redă: %1</translation>
    </message>
    <message>
        <source>%1 of %2 channels</source>
        <translation>Canale: %1 din %2</translation>
    </message>
    <message>
        <source>%1 takes a number of minutes from 0 to %2.</source>
        <translation>%1 cere un număr de minute de la 0 la %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each broadcast</source>
        <translation>
            <numerusform>%1: alarmă cu %n minut înainte de fiecare difuzare</numerusform>
            <numerusform>%1: alarmă cu %n minute înainte de fiecare difuzare</numerusform>
            <numerusform>%1: alarmă cu %n de minute înainte de fiecare difuzare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each replay</source>
        <translation>
            <numerusform>%1: alarmă cu %n minut înainte de fiecare reluare</numerusform>
            <numerusform>%1: alarmă cu %n minute înainte de fiecare reluare</numerusform>
            <numerusform>%1: alarmă cu %n de minute înainte de fiecare reluare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: alarm %n minutes ahead of each premiere</source>
        <translation>
            <numerusform>%1: alarmă cu %n minut înainte de fiecare premieră</numerusform>
            <numerusform>%1: alarmă cu %n minute înainte de fiecare premieră</numerusform>
            <numerusform>%1: alarmă cu %n de minute înainte de fiecare premieră</numerusform>
        </translation>
    </message>
    <message>
        <source>--premieres and --replays exclude each other.</source>
        <translation>--premieres și --replays se exclud reciproc.</translation>
    </message>
    <message>
        <source>--premieres and --replays are about alarms: --alarm MINUTES is missing.</source>
        <translation>--premieres și --replays privesc alarmele: lipsește --alarm MINUTE.</translation>
    </message>
    <message>
        <source>%1 could not be added.</source>
        <translation>Adăugarea nu a reușit: %1</translation>
    </message>
    <message>
        <source>A favourite: %1</source>
        <translation>Favorit: %1</translation>
    </message>
    <message>
        <source>No broadcast of this title is listed at present.</source>
        <translation>Momentan nu este anunțată nicio difuzare cu acest titlu.</translation>
    </message>
    <message>
        <source>%1 is a favourite, but there is no calendar that can be written for its alarms.</source>
        <translation>%1 este printre favorite, dar nu există niciun calendar în care să poată fi scrise alarmele.</translation>
    </message>
    <message>
        <source>No longer a favourite: %1</source>
        <translation>Nu mai este favorit: %1</translation>
    </message>
    <message>
        <source>No favourites yet. &quot;vidora favourite X&quot; adds one.</source>
        <translation>Nu există încă favorite. &quot;vidora favourite X&quot; adaugă una.</translation>
    </message>
    <message>
        <source>No coming broadcast of &quot;%1&quot; starts then.</source>
        <translation>Nicio difuzare viitoare a titlului &quot;%1&quot; nu începe atunci.</translation>
    </message>
    <message>
        <source>More than one broadcast fits; --on CHANNEL or more of the title tells which:</source>
        <translation>Se potrivesc mai multe difuzări; --on CANAL sau o parte mai lungă din titlu spune care:</translation>
    </message>
    <message numerus="yes">
        <source>It is too late for an alarm %n minutes ahead.</source>
        <translation>
            <numerusform>Este prea târziu pentru o alarmă cu %n minut înainte.</numerusform>
            <numerusform>Este prea târziu pentru o alarmă cu %n minute înainte.</numerusform>
            <numerusform>Este prea târziu pentru o alarmă cu %n de minute înainte.</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarm was set: no calendar can be written.</source>
        <translation>Nu s-a setat nicio alarmă: nu există un calendar în care se poate scrie.</translation>
    </message>
    <message numerus="yes">
        <source>Alarm %n minutes ahead: %1</source>
        <translation>
            <numerusform>Alarmă cu %n minut înainte: %1</numerusform>
            <numerusform>Alarmă cu %n minute înainte: %1</numerusform>
            <numerusform>Alarmă cu %n de minute înainte: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No alarms any more: %1</source>
        <translation>Fără alarme de acum: %1</translation>
    </message>
    <message>
        <source>No alarm any more: %1</source>
        <translation>Alarmă eliminată: %1</translation>
    </message>
    <message>
        <source>No alarms.</source>
        <translation>Nicio alarmă.</translation>
    </message>
    <message>
        <source>silent-hours takes two times such as 00:00 07:00, or &quot;off&quot;.</source>
        <translation>silent-hours cere două ore precum 00:00 07:00, sau &quot;off&quot;.</translation>
    </message>
    <message>
        <source>Favourites do not ring between %1 and %2.</source>
        <translation>Favoritele nu sună între %1 și %2.</translation>
    </message>
    <message>
        <source>No silent hours.</source>
        <translation>Fără ore de liniște.</translation>
    </message>
    <message>
        <source>A period that crosses midnight, or has no length, silences them at every time of the day.</source>
        <translation>O perioadă care trece de miezul nopții sau nu are durată le oprește la orice oră din zi.</translation>
    </message>
    <message>
        <source>You have to remove all your alerts before changing calendar</source>
        <translation>Trebuie să eliminați toate alarmele înainte de a schimba calendarul</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;. There are: %2</source>
        <translation>Nu există &quot;%1&quot;. Există: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be: %2</source>
        <translation>&quot;%1&quot; poate fi: %2</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>Opțiune necunoscută: %1.</translation>
    </message>
    <message>
        <source>Unknown command %1.</source>
        <translation>Comandă necunoscută: %1.</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;.</source>
        <translation>%1 nu acceptă &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>%1 does not take %2.</source>
        <translation>%1 nu acceptă %2.</translation>
    </message>
    <message>
        <source>what is on now and next on the chosen channels</source>
        <translation>ce este acum și ce urmează pe canalele alese</translation>
    </message>
    <message>
        <source>all coming shows of a channel, by days</source>
        <translation>toate emisiunile viitoare ale unui canal, pe zile</translation>
    </message>
    <message>
        <source>coming shows of a category</source>
        <translation>emisiunile viitoare dintr-o categorie</translation>
    </message>
    <message>
        <source>coming shows that contain a text</source>
        <translation>emisiunile viitoare care conțin un text</translation>
    </message>
    <message>
        <source>the catalogue, the chosen channels marked</source>
        <translation>catalogul, cu canalele alese marcate</translation>
    </message>
    <message>
        <source>choose channels</source>
        <translation>alege canale</translation>
    </message>
    <message>
        <source>give channels up</source>
        <translation>renunță la canale</translation>
    </message>
    <message>
        <source>fetch what is missing or old</source>
        <translation>descarcă ce lipsește sau este vechi</translation>
    </message>
    <message>
        <source>use an XMLTV guide of your own: an address or a file</source>
        <translation>folosește un ghid XMLTV propriu: o adresă sau un fișier</translation>
    </message>
    <message>
        <source>follow it no longer, and remove its alarms</source>
        <translation>nu-l mai urmări și elimină alarmele sale</translation>
    </message>
    <message>
        <source>the titles that are followed</source>
        <translation>titlurile urmărite</translation>
    </message>
    <message>
        <source>remove the alarm of one broadcast, or of all</source>
        <translation>elimină alarma unei difuzări sau a tuturor</translation>
    </message>
    <message>
        <source>the broadcasts of favourites that will ring</source>
        <translation>difuzările favoritelor care vor suna</translation>
    </message>
    <message>
        <source>when favourites must not ring</source>
        <translation>când favoritele nu trebuie să sune</translation>
    </message>
    <message>
        <source>the calendars, or choose the one for alarms</source>
        <translation>calendarele, sau alege-l pe cel pentru alarme</translation>
    </message>
    <message>
        <source>answers for programs</source>
        <translation>răspunsuri pentru programe</translation>
    </message>
    <message>
        <source>keep everything in this folder</source>
        <translation>păstrează totul în acest dosar</translation>
    </message>
    <message>
        <source>the guide as at another moment: 2026-11-22T19:00:00Z</source>
        <translation>ghidul ca în alt moment: 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>say on standard error what was fetched and found</source>
        <translation>spune pe ieșirea de erori ce s-a descărcat și găsit</translation>
    </message>
    <message>
        <source>the version of the program</source>
        <translation>versiunea programului</translation>
    </message>
    <message>
        <source>load every part of the window and quit</source>
        <translation>încarcă fiecare parte a ferestrei și ieși</translation>
    </message>
    <message>
        <source>Without a command: the window; without a display, what is on now, after an update where one is due.</source>
        <translation>Fără comandă: fereastra; fără ecran, ce este acum la televizor, după o actualizare dacă este cazul.</translation>
    </message>
    <message>
        <source>X is a title, a part of it that only one has, or an id.</source>
        <translation>X este un titlu, o parte din el pe care o are doar unul, sau un ID.</translation>
    </message>
    <message>
        <source>No channels are chosen yet. &quot;vidora channels&quot; lists them, &quot;vidora select X...&quot; chooses.</source>
        <translation>Nu este ales încă niciun canal. &quot;vidora channels&quot; le enumeră, &quot;vidora select X...&quot; alege.</translation>
    </message>
    <message>
        <source>This is a first look at a made-up region, with the first %1 of its %2 channels. &quot;vidora import&quot; reads a guide of your own.</source>
        <translation>Aceasta este o primă privire asupra unei regiuni inventate, cu primele %1 din cele %2 canale ale ei. &quot;vidora import&quot; citește un ghid propriu.</translation>
    </message>
    <message>
        <source>Everything is up to date.</source>
        <translation>Totul este la zi.</translation>
    </message>
    <message>
        <source>%1 of %2 channels updated, %3 shows.</source>
        <translation>Canale actualizate: %1 din %2, emisiuni: %3.</translation>
    </message>
    <message>
        <source>Nothing came for: %1</source>
        <translation>Nu a sosit nimic pentru: %1</translation>
    </message>
    <message>
        <source>No listings.</source>
        <translation>Niciun program.</translation>
    </message>
    <message>
        <source>No shows.</source>
        <translation>Nicio emisiune.</translation>
    </message>
    <message numerus="yes">
        <source>%n channels are chosen.</source>
        <translation>
            <numerusform>Este ales %n canal.</numerusform>
            <numerusform>Sunt alese %n canale.</numerusform>
            <numerusform>Sunt alese %n de canale.</numerusform>
        </translation>
    </message>
    <message>
        <source>The catalogue of your guide can&apos;t be read; import the guide again.</source>
        <translation>Catalogul ghidului nu poate fi citit; importați ghidul din nou.</translation>
    </message>
    <message>
        <source>This device</source>
        <translation>Acest dispozitiv</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing will be kept.</source>
        <translation>Nu se poate scrie în %1: nimic nu va fi păstrat.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; showing what it has.</source>
        <translation>Un alt vidora (procesul %1) folosește acest dosar; se arată ce are el.</translation>
    </message>
    <message>
        <source>Another vidora (process %1) is using this home; waiting for it.</source>
        <translation>Un alt vidora (procesul %1) folosește acest dosar; se așteaptă.</translation>
    </message>
    <message>
        <source>The sample region could not be started; --log says why.</source>
        <translation>Regiunea de probă nu a putut fi pornită; --log spune de ce.</translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels without an id.</source>
        <translation>
            <numerusform>Omis: %n canal fără ID.</numerusform>
            <numerusform>Omise: %n canale fără ID.</numerusform>
            <numerusform>Omise: %n de canale fără ID.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n channels whose id was there already.</source>
        <translation>
            <numerusform>Omis: %n canal al cărui ID exista deja.</numerusform>
            <numerusform>Omise: %n canale al căror ID exista deja.</numerusform>
            <numerusform>Omise: %n de canale al căror ID exista deja.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes without a start and an end with an offset.</source>
        <translation>
            <numerusform>Omisă: %n emisiune fără început și sfârșit cu decalaj orar.</numerusform>
            <numerusform>Omise: %n emisiuni fără început și sfârșit cu decalaj orar.</numerusform>
            <numerusform>Omise: %n de emisiuni fără început și sfârșit cu decalaj orar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Skipped: %n programmes of channels that the guide does not list.</source>
        <translation>
            <numerusform>Omisă: %n emisiune a unor canale pe care ghidul nu le conține.</numerusform>
            <numerusform>Omise: %n emisiuni ale unor canale pe care ghidul nu le conține.</numerusform>
            <numerusform>Omise: %n de emisiuni ale unor canale pe care ghidul nu le conține.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 channels, %2 programmes on %3 days.</source>
        <translation>Canale: %1, emisiuni: %2, zile: %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the channels chosen before are in it; &quot;vidora update&quot; reads their shows.</source>
        <translation>
            <numerusform>%n dintre canalele alese înainte se află în el; &quot;vidora update&quot; citește emisiunile lui.</numerusform>
            <numerusform>%n dintre canalele alese înainte se află în el; &quot;vidora update&quot; citește emisiunile lor.</numerusform>
            <numerusform>%n dintre canalele alese înainte se află în el; &quot;vidora update&quot; citește emisiunile lor.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose channels with &quot;vidora select X...&quot;, then &quot;vidora update&quot;.</source>
        <translation>Alegeți canale cu &quot;vidora select X...&quot;, apoi &quot;vidora update&quot;.</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>se citește %1</translation>
    </message>
    <message>
        <source>icons: %1 of %2</source>
        <translation>pictograme: %1 din %2</translation>
    </message>
    <message>
        <source>There is no window here.</source>
        <translation>Aici nu există fereastră.</translation>
    </message>
    <message>
        <source>All Shows</source>
        <translation>Toate emisiunile</translation>
    </message>
    <message>
        <source>Feature Films</source>
        <translation>Filme artistice</translation>
    </message>
    <message>
        <source>Evening Shows</source>
        <translation>Emisiuni de seară</translation>
    </message>
    <message>
        <source>Most Watched</source>
        <translation>Cele mai vizionate</translation>
    </message>
    <message>
        <source>Documentaries</source>
        <translation>Documentare</translation>
    </message>
    <message>
        <source>For Children</source>
        <translation>Pentru copii</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Știri</translation>
    </message>
    <message>
        <source>Entertainment</source>
        <translation>Divertisment</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzică</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>Comedies</source>
        <translation>Comedii</translation>
    </message>
    <message>
        <source>Adventure</source>
        <translation>Aventură</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Polițiste</translation>
    </message>
    <message>
        <source>Westerns</source>
        <translation>Westernuri</translation>
    </message>
    <message>
        <source>Dramas</source>
        <translation>Drame</translation>
    </message>
    <message>
        <source>Thrillers</source>
        <translation>Thrillere</translation>
    </message>
    <message>
        <source>SF</source>
        <translation>SF</translation>
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
        <translation>Seriale</translation>
    </message>
    <message>
        <source>%1 can&apos;t be reached: %2</source>
        <translation>%1 nu poate fi accesat: %2</translation>
    </message>
    <message>
        <source>%1 answered with status %2.</source>
        <translation>%1 a răspuns cu starea %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 este gol.</translation>
    </message>
    <message>
        <source>%1 is in an encoding that is not known.</source>
        <translation>%1 are o codificare necunoscută.</translation>
    </message>
    <message>
        <source>%1 is no address of a guide: it takes http, https or a file.</source>
        <translation>%1 nu este adresa unui ghid: trebuie http, https sau un fișier.</translation>
    </message>
    <message>
        <source>%1 is no XMLTV guide.</source>
        <translation>%1 nu este un ghid XMLTV.</translation>
    </message>
    <message>
        <source>The guide at %1 has no channels.</source>
        <translation>Ghidul de la %1 nu are canale.</translation>
    </message>
    <message>
        <source>The import was ended; the guide of before stays.</source>
        <translation>Importul a fost întrerupt; rămâne ghidul dinainte.</translation>
    </message>
    <message>
        <source>The catalogue can&apos;t be written: %1</source>
        <translation>Catalogul nu poate fi scris: %1</translation>
    </message>
    <message>
        <source>Unable to establish connection to remote server</source>
        <translation>Nu se poate stabili conexiunea cu serverul</translation>
    </message>
    <message>
        <source>Check your Internet connection.</source>
        <translation>Verificați conexiunea la internet.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>There are no channels.</source>
        <translation>Nu există canale.</translation>
    </message>
    <message>
        <source>No channel of this name or language.</source>
        <translation>Niciun canal cu acest nume sau în această limbă.</translation>
    </message>
    <message>
        <source>All Channels</source>
        <translation>Toate canalele</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altele</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizează</translation>
    </message>
    <message>
        <source>Add channels</source>
        <translation>Adaugă canale</translation>
    </message>
    <message>
        <source>Remove all channels</source>
        <translation>Elimină toate canalele</translation>
    </message>
    <message>
        <source>No channels are chosen yet. Add the ones you want to see.</source>
        <translation>Nu este ales încă niciun canal. Adăugați-le pe cele pe care doriți să le vedeți.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>This page comes with a later version.</source>
        <translation>Această pagină va veni cu o versiune ulterioară.</translation>
    </message>
    <message>
        <source>Currently</source>
        <translation>Acum</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorii</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Agendă</translation>
    </message>
    <message>
        <source>Choose the channels you want to see in the tab &quot;Channels&quot;.</source>
        <translation>Alegeți în fila &quot;Canale&quot; canalele pe care doriți să le vedeți.</translation>
    </message>
    <message>
        <source>Updated </source>
        <translation>Actualizat: </translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alertă</translation>
    </message>
    <message>
        <source>Streaming of this video is currently unavailable or your Internet connection speed is not adequate.</source>
        <translation>Redarea acestui videoclip nu este disponibilă momentan sau viteza conexiunii la internet nu este suficientă.</translation>
    </message>
    <message>
        <source>All broadcasts of this favourite have alarms: the next update sets it again.</source>
        <translation>Toate difuzările acestui favorit au alarmă: următoarea actualizare o setează din nou.</translation>
    </message>
    <message>
        <source>List of the channels</source>
        <translation>Lista canalelor</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimină</translation>
    </message>
    <message>
        <source>With --clock there are no calendars, but in a home of its own: --home DIR.</source>
        <translation>Cu --clock nu există calendare, decât într-un dosar separat: --home DOSAR.</translation>
    </message>
    <message>
        <source>There is no account. &quot;vidora calendars add ADDRESS --user NAME&quot; adds one.</source>
        <translation>Nu există niciun cont. &quot;vidora calendars add ADRESA --user NUME&quot; adaugă unul.</translation>
    </message>
    <message>
        <source>Calendars of this device lie in %1.</source>
        <translation>Calendarele acestui dispozitiv se află în %1.</translation>
    </message>
    <message>
        <source>%1: changes that wait for the server: %2. &quot;vidora calendars test&quot; tells why.</source>
        <translation>%1: modificări care așteaptă serverul: %2. &quot;vidora calendars test&quot; spune de ce.</translation>
    </message>
    <message>
        <source>%1: can be written</source>
        <translation>%1: se poate scrie</translation>
    </message>
    <message>
        <source>%1: read-only</source>
        <translation>%1: doar pentru citire</translation>
    </message>
    <message>
        <source>Nothing was added. %1 (%2)</source>
        <translation>Nu s-a adăugat nimic. %1 (%2)</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Adăugat: %1</translation>
    </message>
    <message>
        <source>&quot;vidora calendars NAME&quot; chooses the calendar for alarms.</source>
        <translation>&quot;vidora calendars NUME&quot; alege calendarul pentru alarme.</translation>
    </message>
    <message>
        <source>None of its calendars can be written: alarms can&apos;t live there.</source>
        <translation>În niciunul dintre calendarele sale nu se poate scrie: alarmele nu pot sta acolo.</translation>
    </message>
    <message>
        <source>Calendars are at %1.</source>
        <translation>Calendarele sunt la %1.</translation>
    </message>
    <message>
        <source>Login: %1</source>
        <translation>Autentificare: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server: %1</source>
        <translation>Modificări care așteaptă serverul: %1</translation>
    </message>
    <message>
        <source>Changes that wait for the server would be lost: %1. --force removes the account all the same.</source>
        <translation>Modificările care așteaptă serverul s-ar pierde: %1. --force elimină totuși contul.</translation>
    </message>
    <message>
        <source>The password is still in the keyring, which can&apos;t be reached.</source>
        <translation>Parola este încă în inelul de chei, care nu poate fi accesat.</translation>
    </message>
    <message>
        <source>Removed: %1. Its calendars stay on the server.</source>
        <translation>Eliminat: %1. Calendarele sale rămân pe server.</translation>
    </message>
    <message>
        <source>This is no address of a server.</source>
        <translation>Aceasta nu este adresa unui server.</translation>
    </message>
    <message>
        <source>There is no server of this name.</source>
        <translation>Nu există niciun server cu acest nume.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached.</source>
        <translation>Serverul nu poate fi accesat.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached by HTTPS.</source>
        <translation>Serverul nu poate fi accesat prin HTTPS.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted: it may be self-made, have expired, or be another server&apos;s. An authority of your own has to be among those of the system.</source>
        <translation>Certificatul serverului nu este de încredere: poate fi creat manual, expirat sau al altui server. O autoritate proprie trebuie să fie printre cele ale sistemului.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Serverul nu răspunde.</translation>
    </message>
    <message>
        <source>The password can&apos;t be had: the keyring is locked, or it is kept no more. Add the account again to give it.</source>
        <translation>Parola nu este disponibilă: inelul de chei este blocat sau parola nu mai este păstrată. Adăugați din nou contul pentru a o introduce.</translation>
    </message>
    <message>
        <source>The server does not accept this user with this password.</source>
        <translation>Serverul nu acceptă acest utilizator cu această parolă.</translation>
    </message>
    <message>
        <source>The server wants the password as it stands over a line without encryption. It was not sent; use an https address.</source>
        <translation>Serverul vrea parola în clar printr-o conexiune necriptată. Nu a fost trimisă; folosiți o adresă https.</translation>
    </message>
    <message>
        <source>The server does not let this user see the calendars there.</source>
        <translation>Serverul nu permite acestui utilizator să vadă calendarele de acolo.</translation>
    </message>
    <message>
        <source>The server sends us to another one, to which the password does not go. Give that address.</source>
        <translation>Serverul trimite la un altul, căruia parola nu îi este trimisă. Indicați acea adresă.</translation>
    </message>
    <message>
        <source>There is a server, but no CalDAV calendars at this address. Give the one that your provider names.</source>
        <translation>Există un server, dar nu și calendare CalDAV la această adresă. Indicați adresa dată de furnizorul dumneavoastră.</translation>
    </message>
    <message>
        <source>The server has trouble of its own; try again later.</source>
        <translation>Serverul are probleme; încercați mai târziu.</translation>
    </message>
    <message>
        <source>The server gave no answer that can be understood.</source>
        <translation>Serverul nu a dat un răspuns inteligibil.</translation>
    </message>
    <message>
        <source>use the calendars of a CalDAV server; asks for the password</source>
        <translation>folosește calendarele unui server CalDAV; cere parola</translation>
    </message>
    <message>
        <source>what the servers of the accounts say</source>
        <translation>ce spun serverele conturilor</translation>
    </message>
    <message>
        <source>use an account no more</source>
        <translation>nu mai folosi un cont</translation>
    </message>
    <message>
        <source>Password of %1: </source>
        <translation>Parola pentru %1: </translation>
    </message>
    <message>
        <source>No password was given.</source>
        <translation>Nu a fost introdusă nicio parolă.</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ORA</translation>
    </message>
    <message>
        <source>when the broadcast starts: 20:00 or 2026-11-22T19:00:00Z</source>
        <translation>când începe difuzarea: 20:00 sau 2026-11-22T19:00:00Z</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>CANAL</translation>
    </message>
    <message>
        <source>on this channel</source>
        <translation>pe acest canal</translation>
    </message>
    <message>
        <source>ring ahead of one broadcast, and follow its title</source>
        <translation>sună înainte de o singură difuzare și îi urmărește titlul</translation>
    </message>
    <message>
        <source>MINUTES</source>
        <translation>MINUTE</translation>
    </message>
    <message>
        <source>so long ahead; without it, as the last time</source>
        <translation>cu atât mai devreme; fără ea, ca ultima dată</translation>
    </message>
    <message>
        <source>[off | FROM TO]</source>
        <translation>[off | DE-LA LA]</translation>
    </message>
    <message>
        <source>ADDRESS</source>
        <translation>ADRESA</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NUME</translation>
    </message>
    <message>
        <source>the name to log in with</source>
        <translation>numele de autentificare</translation>
    </message>
    <message>
        <source>[NAME]</source>
        <translation>[NUME]</translation>
    </message>
    <message>
        <source>even where changes wait that the server does not have</source>
        <translation>chiar dacă așteaptă modificări pe care serverul nu le are</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>DOSAR</translation>
    </message>
    <message>
        <source>this text; behind a command, what it takes</source>
        <translation>acest text; după o comandă, ce acceptă ea</translation>
    </message>
    <message>
        <source>%1 takes a time such as 20:00 or 2026-11-22T19:00:00Z.</source>
        <translation>%1 cere o oră precum 20:00 sau 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 takes a time such as 2026-11-22T19:00:00Z.</source>
        <translation>%1 cere un moment precum 2026-11-22T19:00:00Z.</translation>
    </message>
    <message>
        <source>%1 needs %2.</source>
        <translation>%1 cere %2.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Utilizare: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells how.</source>
        <translation>„%1” spune cum.</translation>
    </message>
    <message>
        <source>follow a title, and ring ahead of its broadcasts</source>
        <translation>urmărește un titlu și sună înainte de difuzările lui</translation>
    </message>
    <message>
        <source>ring so long ahead of each broadcast</source>
        <translation>sună cu atât înainte de fiecare difuzare</translation>
    </message>
    <message>
        <source>of premieres only</source>
        <translation>doar pentru premiere</translation>
    </message>
    <message>
        <source>of replays only</source>
        <translation>doar pentru reluări</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>[COMMAND] [OPTION]...</source>
        <translation>[COMANDĂ] [OPȚIUNE]...</translation>
    </message>
    <message>
        <source>The pictures of this stream can&apos;t be drawn on this computer.</source>
        <translation>Imaginea acestui flux nu poate fi afișată pe acest calculator.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Încearcă din nou</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>În difuzare</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarmă</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Reluare</translation>
    </message>
    <message>
        <source>Popular</source>
        <translation>Popular</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>No connection.</source>
        <translation>Nicio conexiune.</translation>
    </message>
    <message>
        <source>Updated just now</source>
        <translation>Actualizat chiar acum</translation>
    </message>
    <message>
        <source>Updated %1 min ago</source>
        <translation>Actualizat acum %1 min</translation>
    </message>
    <message>
        <source>Updated %1 h ago</source>
        <translation>Actualizat acum %1 h</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gata</translation>
    </message>
    <message>
        <source>All channels removed</source>
        <translation>Toate canalele au fost eliminate</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 eliminat</translation>
    </message>
    <message>
        <source>No list</source>
        <translation>Nicio listă</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>încă %1 min</translation>
    </message>
    <message>
        <source>The calendar &quot;%1&quot; of your alarms is gone. New ones are made in &quot;%2&quot;; &quot;vidora calendars NAME&quot; chooses another.</source>
        <translation>Calendarul „%1” al alarmelor a dispărut. Cele noi se fac în „%2”; „vidora calendars NUME” alege altul.</translation>
    </message>
    <message>
        <source>The calendars of this account lie at %1. To let the password go there: --also %1</source>
        <translation>Calendarele acestui cont se află la %1. Pentru ca parola să poată ajunge acolo: --also %1</translation>
    </message>
    <message>
        <source>The server does not take the change of &quot;%1&quot; in %2: %3</source>
        <translation>Serverul nu primește modificarea „%1” din %2: %3</translation>
    </message>
    <message>
        <source>where else the password may go</source>
        <translation>unde mai poate ajunge parola</translation>
    </message>
    <message>
        <source>%1 takes: %2.</source>
        <translation>%1 acceptă: %2.</translation>
    </message>
    <message>
        <source>[KEY [VALUE]]</source>
        <translation>[CHEIE [VALOARE]]</translation>
    </message>
    <message>
        <source>the settings, or change one; &quot;default&quot; sets it back</source>
        <translation>setările, sau schimbă una; „default” o readuce</translation>
    </message>
    <message>
        <source>after how many seconds a list is fetched again</source>
        <translation>după câte secunde o listă este adusă din nou</translation>
    </message>
    <message>
        <source>how many shows of a channel stand in what is on now</source>
        <translation>câte emisiuni ale unui canal apar la ce este acum</translation>
    </message>
    <message>
        <source>colours for what is on air and for favourites</source>
        <translation>culori pentru ce este în emisie și pentru favorite</translation>
    </message>
    <message>
        <source>pictures of shows</source>
        <translation>imagini ale emisiunilor</translation>
    </message>
    <message>
        <source>pictures behind the page of a show</source>
        <translation>imagini în spatele paginii unei emisiuni</translation>
    </message>
    <message>
        <source>the window&apos;s colours; &quot;desktop&quot; follows what is set there</source>
        <translation>culorile ferestrei; „desktop” urmează ce este setat acolo</translation>
    </message>
</context>
</TS>
