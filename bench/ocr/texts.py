# SPDX-License-Identifier: GPL-3.0-or-later
"""What the pictures of the corpus say."""

ENGLISH = """The ferry leaves the harbour at seven and reaches the island shortly before noon.
Please bring warm clothes, because the wind on deck is colder than it looks from the pier.
Tickets can be bought at the counter or from the machine beside the waiting room.
Children under twelve travel free when they are accompanied by an adult.
The kitchen on board serves soup, sandwiches and coffee until half past ten.
Bicycles are stored on the lower deck and must be locked to the rail.
In rough weather the captain may decide to anchor in the bay for an hour or two.
Passengers who feel unwell should sit in the middle of the ship and look at the horizon.
Announcements are made in three languages and repeated on the screens near the stairs.
The return journey takes about forty minutes longer because of the current.
Lost property is kept at the office for six weeks and then given to charity.
Our winter schedule begins on the second Monday in November.""".split("\n")

GERMAN = """Die Fähre verlässt den Hafen um sieben Uhr und erreicht die Insel kurz vor Mittag.
Bitte bringen Sie warme Kleidung mit, denn der Wind an Deck ist kälter als gedacht.
Fahrkarten erhalten Sie am Schalter oder am Automaten neben dem Wartesaal.
Kinder unter zwölf Jahren fahren in Begleitung eines Erwachsenen kostenlos mit.
Die Küche an Bord bietet bis halb elf Suppe, belegte Brote und Kaffee an.
Fahrräder stehen auf dem unteren Deck und müssen angeschlossen werden.
Bei stürmischem Wetter kann der Kapitän entscheiden, in der Bucht zu ankern.
Durchsagen werden in drei Sprachen gemacht und auf den Bildschirmen wiederholt.
Die Rückfahrt dauert wegen der Strömung ungefähr vierzig Minuten länger.
Fundsachen werden sechs Wochen lang im Büro aufbewahrt und danach gespendet.""".split("\n")

FRENCH = """Le bateau quitte le port à sept heures et arrive sur l'île peu avant midi.
Prévoyez des vêtements chauds, car le vent sur le pont est plus froid qu'on ne le croit.
Les billets sont en vente au guichet ou à la borne située près de la salle d'attente.
Les enfants de moins de douze ans voyagent gratuitement avec un adulte.
La cuisine du bord propose de la soupe et du café jusqu'à dix heures et demie.
Les vélos sont rangés au pont inférieur et doivent être attachés à la barre.
Par mauvais temps, le capitaine peut décider de jeter l'ancre dans la baie.
Les annonces sont faites en trois langues et répétées sur les écrans.
Le trajet du retour dure environ quarante minutes de plus à cause du courant.
Les objets trouvés sont gardés six semaines au bureau, puis donnés à une œuvre.""".split("\n")

GREEK = """Το πλοίο φεύγει από το λιμάνι στις επτά και φτάνει στο νησί λίγο πριν το μεσημέρι.
Παρακαλούμε να φέρετε ζεστά ρούχα, γιατί ο άνεμος στο κατάστρωμα είναι κρύος.
Τα εισιτήρια πωλούνται στο ταμείο ή στο μηχάνημα δίπλα στην αίθουσα αναμονής.
Τα παιδιά κάτω των δώδεκα ετών ταξιδεύουν δωρεάν όταν συνοδεύονται από ενήλικα.
Η κουζίνα σερβίρει σούπα και καφέ μέχρι τις δέκα και μισή.
Τα ποδήλατα φυλάσσονται στο κάτω κατάστρωμα και πρέπει να κλειδώνονται.
Με κακό καιρό ο καπετάνιος μπορεί να αποφασίσει να αγκυροβολήσει στον κόλπο.
Το ταξίδι της επιστροφής διαρκεί περίπου σαράντα λεπτά περισσότερο.""".split("\n")

JAPANESE = """船は朝七時に港を出て、昼前に島へ着きます。
甲板の風は冷たいので、暖かい服をお持ちください。
切符は窓口または待合室の横にある機械で買えます。
十二歳未満のお子様は大人と一緒なら無料です。
船内の食堂では十時半までスープとコーヒーを出しています。
自転車は下の甲板に置き、必ず鍵をかけてください。
天気が悪いときは、船長の判断で湾に停泊することがあります。
帰りは海流のため、およそ四十分長くかかります。""".split("\n")

CODE = """def schedule(departures, weather):
    # Ships stay in port when the wind is too strong.
    result = []
    for ship in departures:
        if weather.wind_speed > ship.max_wind:
            log.warning("delayed: %s", ship.name)
            continue
        minutes = ship.distance / ship.speed * 60
        result.append((ship.name, round(minutes)))
    return sorted(result, key=lambda item: item[1])

class Harbour(Base):
    capacity: int = 24
    open_hours = ("06:30", "22:00")

    def assign_berth(self, ship) -> Berth:
        free = [b for b in self.berths if not b.taken]
        if len(free) == 0:
            raise HarbourFull(self.name)
        return min(free, key=lambda b: b.length)""".split("\n")

TERMINAL = """ada@lighthouse:~/harbour$ git status
On branch main
Your branch is ahead of 'origin/main' by 2 commits.
Changes not staged for commit:
        modified:   src/schedule.py
        modified:   tests/test_berths.py
ada@lighthouse:~/harbour$ python -m pytest -q tests
collected 40 items from 6 files
40 passed in 3.27s
ada@lighthouse:~/harbour$ ls -l backups
-rw-r--r-- 1 ada users  48213 Oct 12 08:41 harbour.tar.gz
-rw-r--r-- 1 ada users 190344 Nov  3 21:07 passengers.csv
ada@lighthouse:~/harbour$ df -h /srv
Filesystem      Size  Used Avail Use% Mounted on
/dev/sda2       465G  212G  230G  48% /srv
ada@lighthouse:~/harbour$ systemctl restart ferryd
Failed to restart ferryd.service: Access denied""".split("\n")

MENU = ["File", "Edit", "View", "Bookmarks", "Tools", "Window", "Help"]
SIDEBAR = ["Inbox", "Favourites", "Drafts", "Sent messages", "Archive", "Spam", "Deleted items", "Shared folders"]
MESSAGES = [("Margaret Hollins", "Timetable for the winter season", "Yesterday"),
            ("Harbour Office", "Invoice 20481 is overdue", "Monday"),
            ("Peter Lindqvist", "Photographs from the regatta", "12 October"),
            ("Support Team", "Your password has been changed", "9 October"),
            ("Weather Service", "Storm warning for the northern coast", "3 October"),
            ("Ines Carvalho", "Minutes of the planning meeting", "28 September")]
SETTINGS = [("Notifications", "Show alerts on the lock screen", "Enabled"),
            ("Language", "Interface and spelling", "English"),
            ("Appearance", "Follow the desktop", "Automatic"),
            ("Storage", "Keep downloaded attachments", "30 days"),
            ("Privacy", "Send anonymous statistics", "Never")]
BUTTONS = ["Cancel", "Apply changes", "Restore defaults"]
