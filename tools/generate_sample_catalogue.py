#!/usr/bin/env python3
"""Print SQL INSERT statements for a sample web-shop catalogue.

The catalogue fills every table of db/schema.sql: laptops, tablets and all-in-one PCs of the
makers the Grando category tree knows, their stored component columns, prices in the forms the
shop's staff type them, taxes, currencies, exchange rates, margins, fixed prices, the three-level
category tree, extra information per site and the translation table for the HU, SK and CZ
sites. The same seed always gives the same output.

Load it into a database that holds the empty schema:
    python3 tools/generate_sample_catalogue.py --products 200 | mariadb uj_db
"""

import argparse
import random
import sys

DEFAULT_PRODUCTS = 200
DEFAULT_SEED = 20130415
ROWS_PER_INSERT = 400

# Newer products are named by `nev`, older ones by `tipusmegnevezes`: serials straddle this.
NAMING_THRESHOLD = 11130

LAPTOP = "Laptop"
TABLET = "Tablet"
AIO = "Minden egyben PC - AIO PC"
ULTRABOOK = "Ultrabook"
KINDS = [LAPTOP, TABLET, AIO, ULTRABOOK]

# Stored Hungarian text, Slovak text, Czech text. No text may hold a single quote: the tool
# splices them into its statements unescaped.
LABELS = [
    # Component sections.
    ("Processzor", "Procesor", "Procesor"),
    ("CPU részletei:", "Detaily CPU:", "Detaily CPU:"),
    ("mutat/elrejt", "zobraziť/skryť", "zobrazit/skrýt"),
    ("CPU", "CPU", "CPU"),
    ("Érték", "Hodnota", "Hodnota"),
    ("Gyártó", "Výrobca", "Výrobce"),
    ("Típus", "Typ", "Typ"),
    ("Órajel", "Frekvencia", "Frekvence"),
    ("Turbó órajel", "Turbo frekvencia", "Turbo frekvence"),
    ("Magok száma", "Počet jadier", "Počet jader"),
    ("Gyorsítótár", "Vyrovnávacia pamäť", "Mezipaměť"),
    ("Kijelzõ részletei:", "Detaily displeja:", "Detaily displeje:"),
    ("Kijelzõ", "Displej", "Displej"),
    ("Méret", "Veľkosť", "Velikost"),
    ("HD", "HD", "HD"),
    ("Felbontás", "Rozlíšenie", "Rozlišení"),
    ("LED megvilágítás", "LED podsvietenie", "LED podsvícení"),
    ("Matt", "Matný", "Matný"),
    ("TochScreen", "Dotyková obrazovka", "Dotyková obrazovka"),
    ("3D", "3D", "3D"),
    ("IPS", "IPS", "IPS"),
    ("Memória részletei:", "Detaily pamäte:", "Detaily paměti:"),
    ("Memória", "Pamäť", "Paměť"),
    ("Merevlemez részletei:", "Detaily pevného disku:", "Detaily pevného disku:"),
    ("Merevlemez", "Pevný disk", "Pevný disk"),
    ("Sebesség", "Rýchlosť", "Rychlost"),
    ("Darabszám", "Počet kusov", "Počet kusů"),
    ("Grafikus kártya részletei:", "Detaily grafickej karty:", "Detaily grafické karty:"),
    ("Grafikus kártya", "Grafická karta", "Grafická karta"),
    ("Memóriaméret", "Veľkosť pamäte", "Velikost paměti"),
    ("Memóriatípus", "Typ pamäte", "Typ paměti"),
    ("Memóriasebesség", "Rýchlosť pamäte", "Rychlost paměti"),
    ("A készülék rendelkezik ezzel az elemmel", "Zariadenie má tento prvok",
     "Zařízení má tento prvek"),
    ("A készülék nem rendelkezik ezzel az elemmel", "Zariadenie nemá tento prvok",
     "Zařízení nemá tento prvek"),
    # Simple sections.
    ("Optikai meghajtó", "Optická mechanika", "Optická mechanika"),
    ("Optikai meghajtó nélkül", "Bez optickej mechaniky", "Bez optické mechaniky"),
    ("Operációs rendszer", "Operačný systém", "Operační systém"),
    ("Operációs rendszer nélkül", "Bez operačného systému", "Bez operačního systému"),
    ("Billentyûzet", "Klávesnica", "Klávesnice"),
    ("Billentyûzet nélkül", "Bez klávesnice", "Bez klávesnice"),
    ("Készlet", "Sklad", "Sklad"),
    ("Garancia", "Záruka", "Záruka"),
    # Features section.
    ("Egyéb jellemzõk", "Ďalšie vlastnosti", "Další vlastnosti"),
    ("WiFi", "WiFi", "WiFi"),
    ("USB csatlakozók", "USB porty", "USB porty"),
    ("Kártyaolvasó", "Čítačka kariet", "Čtečka karet"),
    ("HDMI", "HDMI", "HDMI"),
    ("VGA", "VGA", "VGA"),
    ("Webkamera", "Webkamera", "Webkamera"),
    ("e-SATA", "e-SATA", "e-SATA"),
    ("ExpressCard", "ExpressCard", "ExpressCard"),
    ("BlueTooth", "Bluetooth", "Bluetooth"),
    ("LAN", "LAN", "LAN"),
    ("TV-Tuner", "TV tuner", "TV tuner"),
    ("3G", "3G", "3G"),
    ("Ujjlenyomat olvasó", "Čítačka odtlačkov prstov", "Čtečka otisků prstů"),
    ("Egyebek", "Ostatné", "Ostatní"),
    ("Kiegészítõk", "Príslušenstvo", "Příslušenství"),
    ("Akkumulátor (cella)", "Batéria (články)", "Baterie (články)"),
    ("Üzemidõ", "Výdrž", "Výdrž"),
    ("További információk", "Ďalšie informácie", "Další informace"),
]

# Category path words of the product pages. The collation folds case, so "laptop" and
# "Laptop" share their rows: the kind names below are inserted later and win, which the
# Heureka.sk URL (lower-cased whole) and category text (compared upper-cased) both accept.
CATEGORY_WORDS = [
    ("laptop", "notebook", "notebook"),
    ("tablet", "tablet", "tablet"),
    ("minden-egyben-pc-aio-pc", "pocitac-vsetko-v-jednom-aio-pc", "pocitac-vse-v-jednom-aio-pc"),
]
KIND_NAMES = [
    (LAPTOP, "Notebook", "Notebook"),
    (TABLET, "Tablet", "Tablet"),
    (AIO, "Počítač všetko v jednom - AIO PC", "Počítač vše v jednom - AIO PC"),
]

WARRANTIES = [
    ("12 hónap", "12 mesiacov", "12 měsíců"),
    ("24 hónap", "24 mesiacov", "24 měsíců"),
    ("36 hónap", "36 mesiacov", "36 měsíců"),
    ("24 hónap gyártói garancia", "24 mesiacov záruka výrobcu", "24 měsíců záruka výrobce"),
]
STOCK_STATUSES = [
    ("Raktáron", "Na sklade", "Skladem"),
    ("Rendelésre", "Na objednávku", "Na objednávku"),
    ("Beszerzés alatt", "Dostupné do 7 dní", "Dostupné do 7 dnů"),
    ("Utolsó darabok", "Posledné kusy", "Poslední kusy"),
    ("Külsõ raktáron", "Na externom sklade", "Na externím skladě"),
]
# Accessory texts; items are separated by ";" as the staff type them.
ACCESSORIES = [
    ("Táska", "Taška", "Taška"),
    ("Egér", "Myš", "Myš"),
    ("Táska; Egér", "Taška; Myš", "Taška; Myš"),
    ("Office 2013 próbaverzió", "Office 2013 skúšobná verzia", "Office 2013 zkušební verze"),
    ("Tápegység (90W)", "Napájací adaptér (90W)", "Napájecí adaptér (90W)"),
    ("Dokkoló; Táska; Egér", "Dok; Taška; Myš", "Dok; Taška; Myš"),
]
SPECIALITIES = [
    ("Alumínium ház", "Hliníkové telo", "Hliníkové tělo"),
    ("Háttérvilágítású billentyûzet", "Podsvietená klávesnica", "Podsvícená klávesnice"),
    ("Dolby hangrendszer", "Zvukový systém Dolby", "Zvukový systém Dolby"),
    ("Ütésálló kivitel", "Odolné prevedenie", "Odolné provedení"),
    ("Intel Wireless Display", "Intel Wireless Display", "Intel Wireless Display"),
]
EXTRA_FIELDS = [
    ("Ajándék egérrel", "S darčekovou myšou", "S dárkovou myší"),
    ("Ingyenes szállítással", "S dopravou zdarma", "S dopravou zdarma"),
    ("Bemutató darab", "Predvádzací kus", "Předváděcí kus"),
]
# Older rows that later rows overrule (the newest row of a word wins).
STALE_TRANSLATIONS = [
    ("Garancia", "SK", "Záruka (stará)"),
    ("Garancia", "CZ", "Záruka (stará)"),
    ("Raktáron", "SK", "Skladom"),
    ("Kijelzõ", "SK", "Obrazovka"),
]

EXTRA_INFO = [
    ("Ajándék laptop táska a készülék mellé", "Darček: taška na notebook k zariadeniu"),
    ("<b>Ingyenes</b> házhoz szállítás", "<b>Doprava zdarma</b> až domov"),
    ("Windows 8 frissítés 4990 Ft-ért", "Aktualizácia na Windows 8 za 14,90 EUR"),
    ("Bõvíthetõ memória: 16 GB-ig", "Rozšíriteľná pamäť: do 16 GB"),
    ("Kelvor pixelhiba garancia igényelhetõ", "Možnosť záruky na pixelové chyby"),
]

# Supplier names by warehouse country (matched by keys such as "ipon" or "asbis").
SUPPLIERS = {
    "SK": ["Agem", "ED System", "ATC", "Datacomp", "Asbis", "Alza", "Semleges", "Asus-shop"],
    "HU": ["iPon", "PC-Planet", "United Trading", "Mofo Hungary", "Extreme Digital",
           "Aviatronic", "A&T Investments", "HRP", "Ramiris", "Expert", "CHS", "PCLand",
           "Ingram Micro", "Ingram Micro SK", "Laptopszaki", "Maktorex"],
    "DE": ["notebooksbilliger.de", "cyberport.de", "alternate.de", "computeruniverse.net"],
}

# Maker, kinds (first is the main kind), level-2 series, model name, class, ultrabook flag.
MODELS = [
    ("Acer", [LAPTOP], "Aspire", "Aspire 5750G", "mid", False),
    ("Acer", [LAPTOP], "Aspire", "Aspire V3-571G", "mid", False),
    ("Acer", [LAPTOP], "Aspire Timeline", "Aspire Timeline 5830TG", "mid", False),
    ("Acer", [LAPTOP], "Aspire Timeline", "Aspire Timeline Ultra M3", "ultra", True),
    ("Acer", [LAPTOP], "TravelMate", "TravelMate 8573T", "business", False),
    ("Acer", [LAPTOP], "Extensa", "Extensa 5635ZG", "budget", False),
    ("Acer", [TABLET], "Iconia", "Iconia Tab A510", "tablet", False),
    ("Acer", [TABLET], "Iconia", "Iconia W510", "wintablet", False),
    ("Acer", [AIO], "Aspire Z", "Aspire Z3620", "aio", False),
    ("Apple", [LAPTOP], "MacBook Air", "MacBook Air 13", "mac_ultra", True),
    ("Apple", [LAPTOP], "MacBook Pro", "MacBook Pro 15 Retina", "mac", False),
    ("Apple", [LAPTOP], "MacBook", "MacBook 13 White", "mac", False),
    ("Apple", [AIO], "iMac", "iMac 21.5", "mac_aio", False),
    ("Apple", [TABLET], "iPad", "iPad 4 Retina", "ipad", False),
    ("Asus", [LAPTOP], "K55", "K55VD", "mid", False),
    ("Asus", [LAPTOP], "N56", "N56VZ", "high", False),
    ("Asus", [LAPTOP], "X501", "X501A", "budget", False),
    ("Asus", [LAPTOP], "Zenbook UX", "Zenbook UX31A", "ultra", True),
    ("Asus", [LAPTOP], "G75", "G75VW", "gaming", False),
    ("Asus", [LAPTOP, TABLET], "Transformer Book", "Transformer Book TX300", "ultra", False),
    ("Asus", [TABLET], "Transformer Pad", "Transformer Pad TF300T", "tablet", False),
    ("Asus", [AIO], "ET", "ET2311INTH", "aio", False),
    ("Toshiba", [LAPTOP], "Satellite", "Satellite L850-1LM", "budget", False),
    ("Toshiba", [LAPTOP], "Portege", "Portege Z930", "ultra", True),
    ("Toshiba", [LAPTOP], "Qosmio", "Qosmio X870", "gaming", False),
    ("Toshiba", [LAPTOP], "Tecra", "Tecra R950", "business", False),
    ("Toshiba", [TABLET], "Folio", "Folio 100", "tablet", False),
    ("Toshiba", [TABLET], "AT", "AT300", "tablet", False),
    ("Sony", [LAPTOP], "Vaio E", "Vaio SVE1512", "mid", False),
    ("Sony", [LAPTOP, TABLET], "Vaio Duo", "Vaio Duo 11", "ultra", True),
    ("Sony", [TABLET], "Xperia", "Xperia Tablet S", "tablet", False),
    ("HP", [LAPTOP], "Pavilion", "Pavilion g6-2200", "budget", False),
    ("HP", [LAPTOP], "EliteBook", "EliteBook 8470p", "business", False),
    ("HP", [LAPTOP], "ProBook", "ProBook 4540s", "business", False),
    ("HP", [LAPTOP], "Envy", "Envy 4-1000", "ultra", True),
    ("HP", [LAPTOP], "Compaq", "Compaq CQ58", "budget", False),
    ("HP", [AIO], "Pavilion", "Pavilion 23", "aio", False),
    ("HP", [AIO], "Compaq Elite", "Compaq Elite 8300 AiO", "aio", False),
    ("HP", [TABLET], "TouchPad", "TouchPad", "tablet", False),
    ("MSI", [LAPTOP], "GE", "GE60 0NC", "gaming", False),
    ("MSI", [LAPTOP], "CX", "CX61 0NF", "mid", False),
    ("MSI", [LAPTOP], "FX", "FX600", "mid", False),
    ("MSI", [AIO], "Wind Top", "Wind Top AE2282", "aio", False),
    ("MSI", [TABLET], "WindPad", "WindPad 110W", "wintablet", False),
    ("Dell", [LAPTOP], "Inspiron", "Inspiron 15R 5520", "mid", False),
    ("Dell", [LAPTOP], "Latitude", "Latitude E6430", "business", False),
    ("Dell", [LAPTOP], "Vostro", "Vostro 3560", "business", False),
    ("Dell", [LAPTOP], "XPS", "XPS 13", "ultra", True),
    ("Dell", [LAPTOP], "Alienware", "Alienware M17x R4", "gaming", False),
    ("Dell", [AIO], "OptiPlex", "OptiPlex 9010 AIO", "aio", False),
    ("Dell", [TABLET], "Latitude", "Latitude 10", "wintablet", False),
    ("Google", [TABLET], "Nexus", "Nexus 7", "tablet", False),
    ("Lenovo", [LAPTOP], "IdeaPad", "IdeaPad Z580", "mid", False),
    ("Lenovo", [LAPTOP], "IdeaPad", "IdeaPad U310", "ultra", True),
    ("Lenovo", [LAPTOP], "ThinkPad", "ThinkPad T430", "business", False),
    ("Lenovo", [LAPTOP], "Essential", "Essential G580", "budget", False),
    ("Lenovo", [LAPTOP, TABLET], "IdeaPad Yoga", "IdeaPad Yoga 13", "ultra", True),
    ("Lenovo", [AIO], "ThinkCentre", "ThinkCentre M92z", "aio", False),
    ("Lenovo", [TABLET], "IdeaTab", "IdeaTab A2107", "tablet", False),
    ("Packard Bell", [LAPTOP], "EasyNote", "EasyNote TS11", "budget", False),
    ("Packard Bell", [TABLET], "Liberty Tab", "Liberty Tab G100", "tablet", False),
    ("Samsung", [LAPTOP], "Series 3", "NP300E5C", "budget", False),
    ("Samsung", [LAPTOP], "Series 9", "NP900X3C", "ultra", True),
    ("Samsung", [TABLET], "Galaxy", "Galaxy Tab 2 10.1", "tablet", False),
    ("Schenker", [LAPTOP], "XMG", "XMG P502", "gaming", False),
    ("Yarvik", [TABLET], "Xenta", "Xenta TAB10-201", "tablet", False),
]

# Processor: maker|type|clock|turbo|cores|cache.
CPUS = {
    "budget": ["Intel|Pentium B960|2.2 GHz||2|2 MB", "Intel|Celeron 1000M|1.8 GHz||2|2 MB",
               "Intel|Core i3-2370M|2.4 GHz||2|3 MB", "AMD|E2-1800|1.7 GHz||2|1 MB",
               "AMD|A4-4300M|2.5 GHz|3.0 GHz|2|1 MB", "AMD|A6-4400M"],
    "mid": ["Intel|Core i5-3210M|2.5 GHz|3.1 GHz|2|3 MB",
            "Intel|Core i7-3630QM|2.4 GHz|3.4 GHz|4|6 MB",
            "Intel|Intel® Core i5-3230M|2.6 GHz|3.2 GHz|2|3 MB",
            "AMD|A8-4500M|1.9 GHz|2.8 GHz|4|4 MB", "AMD|A10-4600M|2.3 GHz|3.2 GHz|4|4 MB"],
    "high": ["Intel|Core i7-3610QM|2.3 GHz|3.3 GHz|4|6 MB",
             "Intel|Core i7-3630QM|2.4 GHz|3.4 GHz|4|6 MB"],
    "gaming": ["Intel|Core i7-3610QM|2.3 GHz|3.3 GHz|4|6 MB",
               "Intel|Core i7-3720QM|2.6 GHz|3.6 GHz|4|6 MB",
               "Intel|Core i7-3820QM|2.7 GHz|3.7 GHz|4|8 MB"],
    "business": ["Intel|Core i5-3320M|2.6 GHz|3.3 GHz|2|3 MB",
                 "Intel|Core i7-3520M|2.9 GHz|3.6 GHz|2|4 MB",
                 "Intel|Core i3-3110M|2.4 GHz||2|3 MB"],
    "ultra": ["Intel|Core i5-3317U|1.7 GHz|2.6 GHz|2|3 MB",
              "Intel|Core i7-3517U|1.9 GHz|3.0 GHz|2|4 MB",
              "Intel|Core i3-3217U|1.8 GHz||2|3 MB"],
    "mac": ["Intel|Core i5|2.5 GHz|3.1 GHz|2|3 MB", "Intel|Core i7|2.3 GHz|3.3 GHz|4|6 MB"],
    "mac_ultra": ["Intel|Core i5|1.8 GHz|2.8 GHz|2|3 MB", "Intel|Core i7|2.0 GHz|3.2 GHz|2|4 MB"],
    "mac_aio": ["Intel|Core i5|2.7 GHz|3.2 GHz|4|6 MB"],
    "aio": ["Intel|Core i5-3470S|2.9 GHz|3.6 GHz|4|6 MB", "Intel|Core i3-3220T|2.8 GHz||2|3 MB",
            "Intel|Core i7-3770S|3.1 GHz|3.9 GHz|4|8 MB", "AMD|A8-5500|3.2 GHz|3.7 GHz|4|4 MB"],
    "tablet": ["NVIDIA|Tegra 3 T30S|1.3 GHz||4|1 MB", "Samsung|Exynos 4412|1.4 GHz||4|",
               "TI|OMAP 4430|1.0 GHz||2|", "Qualcomm|Snapdragon S4|1.5 GHz||2|",
               "Rockchip|RK3066|1.6 GHz||2|", "ARM|Cortex A9|1.2 GHz||2|"],
    "wintablet": ["Intel|Atom Z2760|1.8 GHz||2|1 MB", "Intel|Core i5-3339Y|1.5 GHz|2.0 GHz|2|3 MB"],
    "ipad": ["Apple|A6X|1.4 GHz||2|"],
}

# Memory: size|type|clock.
MEMORIES = {
    "budget": ["2 GB|DDR3|1333 MHz", "4 GB|DDR3|1333 MHz", "4 GB|DDR3|1600 MHz"],
    "mid": ["4 GB|DDR3|1600 MHz", "6 GB|DDR3|1600 MHz", "8 GB|DDR3|1600 MHz"],
    "high": ["8 GB|DDR3|1600 MHz", "12 GB|DDR3|1600 MHz"],
    "gaming": ["8 GB|DDR3|1600 MHz", "16 GB|DDR3|1600 MHz"],
    "business": ["4 GB|DDR3|1600 MHz", "8 GB|DDR3|1600 MHz"],
    "ultra": ["4 GB|DDR3|1333 MHz", "4 GB|DDR3L|1600 MHz", "8 GB|DDR3|1600 MHz"],
    "mac": ["4 GB|DDR3|1600 MHz", "8 GB|DDR3|1600 MHz"],
    "mac_ultra": ["4 GB|DDR3|1600 MHz", "8 GB|DDR3|1600 MHz"],
    "mac_aio": ["8 GB|DDR3|1600 MHz"],
    "aio": ["4 GB|DDR3|1600 MHz", "6 GB|DDR3|1333 MHz", "8 GB|DDR3|1600 MHz"],
    "tablet": ["1 GB|DDR2|", "1 GB|LPDDR2|", "2 GB|LPDDR2|"],
    "wintablet": ["2 GB|LPDDR2|800 MHz", "4 GB|DDR3L|1600 MHz"],
    "ipad": ["1 GB|LPDDR2|"],
}

# Display: size|label|resolution|LED|matt|touch|extra.
DISPLAYS = {
    "budget": ['15.6"|HD|1366x768|1|0|0|', '15.6"|HD|1366x768|1|1|0|', '17.3"|HD+|1600x900|1|0|0|'],
    "mid": ['15.6"|HD|1366x768|1|0|0|', '15.6"|Full HD|1920x1080|1|1|0|',
            '17.3"|HD+|1600x900|1|0|0|',
            '15.6"|Full HD|1920x1080|1|0|0|3D'],
    "high": ['15.6"|Full HD|1920x1080|1|1|0|IPS', '17.3"|Full HD|1920x1080|1|0|0|3D'],
    "gaming": ['17.3"|Full HD|1920x1080|1|1|0|', '17.3"|Full HD|1920x1080|1|0|0|3D',
               '15.6"|Full HD|1920x1080|1|1|0|'],
    "business": ['14"|HD+|1600x900|1|1|0|', '15.6"|HD|1366x768|1|1|0|', '14"|HD|1366x768|1|1|0|'],
    "ultra": ['13.3"|HD|1366x768|1|0|0|', '13.3"|Full HD|1920x1080|1|0|1|IPS',
              '14"|HD|1366x768|1|0|0|',
              '11.6"|Full HD|1920x1080|1|0|1|IPS'],
    "mac": ['13.3"|HD|1280x800|1|0|0|', '15.4"|Retina|2880x1800|1|0|0|IPS'],
    "mac_ultra": ['13.3"|HD+|1440x900|1|0|0|'],
    "mac_aio": ['21.5"|Full HD|1920x1080|1|0|0|IPS'],
    "aio": ['21.5"|Full HD|1920x1080|1|0|0|', '23"|Full HD|1920x1080|1|0|1|',
            '23"|Full HD|1920x1080|1|1|0|3D'],
    "tablet": ['10.1"|HD|1280x800|1|0|1|IPS', '7"|HD|1280x800|1|0|1|IPS',
               '10.1"|WXGA|1280x800|1|0|1|'],
    "wintablet": ['10.1"|HD|1366x768|1|0|1|IPS', '11.6"|Full HD|1920x1080|1|0|1|IPS'],
    "ipad": ['9.7"|Retina|2048x1536|1|0|1|IPS'],
}

# Disks: presence|size|type|speed|count, entries separated by "^".
DISKS = {
    "budget": ["1|320 GB|HDD|5400 rpm|1", "1|500 GB|HDD|5400 rpm|1"],
    "mid": ["1|500 GB|HDD|5400 rpm|1", "1|750 GB|HDD|5400 rpm|1", "1|1 TB|HDD|5400 rpm|1",
            "1|1 TB|HDD|5400 rpm|1^0||||"],
    "high": ["1|750 GB|HDD|7200 rpm|1^1|128 GB|SSD||1", "1|1 TB|HDD|5400 rpm|1"],
    "gaming": ["1|750 GB|HDD|7200 rpm|2", "1|256 GB|SSD||1^1|1 TB|HDD|7200 rpm|1"],
    "business": ["1|500 GB|HDD|7200 rpm|1", "1|180 GB|SSD||1", "1|320 GB|HDD|7200 rpm|1"],
    "ultra": ["1|128 GB|SSD||1", "1|256 GB|SSD||1", "1|500 GB|HDD|5400 rpm|1^1|32 GB|SSD||1"],
    "mac": ["1|500 GB|HDD|5400 rpm|1", "1|256 GB|SSD||1"],
    "mac_ultra": ["1|128 GB|SSD||1", "1|256 GB|SSD||1"],
    "mac_aio": ["1|1 TB|HDD|5400 rpm|1"],
    "aio": ["1|1 TB|HDD|7200 rpm|1", "1|2 TB|HDD|7200 rpm|1", "1|500 GB|HDD|7200 rpm|1"],
    "tablet": ["1|16 GB|eMMC||1", "1|32 GB|eMMC||1", "1|8 GB|Flash||1"],
    "wintablet": ["1|64 GB|SSD||1", "1|128 GB|SSD||1"],
    "ipad": ["1|32 GB|Flash||1", "1|64 GB|Flash||1"],
}

# Graphics: presence|maker|type|memory size|memory type|memory speed|count, entries by "^".
INTEL_HD4000 = "1|Intel|HD Graphics 4000||||1"
GCARDS = {
    "budget": ["1|Intel|HD Graphics||||1", "1|AMD|Radeon HD 7420G||||1", "|Intel|HD Graphics||||"],
    "mid": ["1|NVIDIA|GeForce GT 630M|1 GB|DDR3|900 MHz|1^" + INTEL_HD4000,
            "1|NVIDIA|GeForce GT 640M|2 GB|DDR3|900 MHz|1^" + INTEL_HD4000,
            "1|AMD|Radeon HD 7670M|1 GB|DDR3||1", INTEL_HD4000],
    "high": ["1|NVIDIA|GeForce GT 650M|2 GB|GDDR5|4000 MHz|1^" + INTEL_HD4000],
    "gaming": ["1|NVIDIA|GeForce GTX 660M|2 GB|GDDR5|4000 MHz|1",
               "1|NVIDIA|GeForce GTX 680M|4 GB|GDDR5|3600 MHz|2",
               "1|AMD|Radeon HD 7970M|2 GB|GDDR5|4800 MHz|1"],
    "business": [INTEL_HD4000, "1|AMD|FirePro M4000|1 GB|GDDR5||1^" + INTEL_HD4000,
                 "1|NVIDIA|NVS 5200M|1 GB|DDR3||1"],
    "ultra": [INTEL_HD4000, "1|NVIDIA|GeForce GT 620M|1 GB|DDR3||1^" + INTEL_HD4000],
    "mac": ["1|NVIDIA|GeForce GT 650M|1 GB|GDDR5||1^" + INTEL_HD4000, INTEL_HD4000],
    "mac_ultra": [INTEL_HD4000],
    "mac_aio": ["1|NVIDIA|GeForce GT 640M|512 MB|GDDR5||1"],
    "aio": ["1|Intel|HD Graphics 2500||||1", "1|AMD|Radeon HD 7650A|1 GB|DDR3||1", INTEL_HD4000],
    "tablet": ["1|NVIDIA|GeForce ULP||||1", "1|ARM|Mali-400 MP4||||1", "1|PowerVR|SGX540||||1"],
    "wintablet": ["1|Intel|GMA SGX545||||1", INTEL_HD4000],
    "ipad": ["1|PowerVR|SGX554MP4||||1"],
}

# Operating systems: presence|installed flag|name|count, entries by "^".
OS_CHOICES = {
    "budget": ["1|1|Free DOS|1", "1|1|Linux|1", "1|1|Windows 8 64 bit|1",
               "1|1|Windows 7 Home Basic 64 bit|1", ""],
    "mid": ["1|1|Windows 7 Home Premium 64 bit|1", "1|1|Windows 8 64 bit|1", "1|1|Free DOS|1"],
    "high": ["1|1|Windows 7 Home Premium 64 bit|1", "1|1|Windows 8 64 bit|1"],
    "gaming": ["1|1|Windows 7 Home Premium 64 bit|1", "1|1|Windows 8 64 bit|1"],
    "business": ["1|1|Windows 7 Professional 64 bit|1",
                 "1|1|Windows 8 Pro 64 bit|1^1|1|Windows 7 Professional downgrade|1",
                 "1|0|Windows 8 Pro|1^1|1|Windows 7 Professional 64 bit|1"],
    "ultra": ["1|1|Windows 8 64 bit|1", "1|1|Windows 7 Home Premium 64 bit|1"],
    "mac": ["1|1|Mac OS X Mountain Lion|1"],
    "mac_ultra": ["1|1|Mac OS X Mountain Lion|1"],
    "mac_aio": ["1|1|Mac OS X Mountain Lion|1"],
    "aio": ["1|1|Windows 8 64 bit|1", "1|1|Windows 7 Home Premium 64 bit|1"],
    "tablet": ["1|1|Android 4.1 Jelly Bean|1", "1|1|Android 4.0 Ice Cream Sandwich|1",
               "1|1|Android 3.2 Honeycomb|1", "1|1|MeeGo|1"],
    "wintablet": ["1|1|Windows 8 64 bit|1", "1|1|Windows RT|1"],
    "ipad": ["1|1|iOS 6|1"],
}

BASE_PRICE_EUR = {  # purchase price range without VAT
    "budget": (260, 420), "mid": (430, 750), "high": (780, 1200), "gaming": (1000, 2200),
    "business": (620, 1150), "ultra": (650, 1250), "mac": (950, 1900), "mac_ultra": (850, 1300),
    "mac_aio": (1000, 1400), "aio": (480, 1100), "tablet": (110, 480), "wintablet": (420, 900),
    "ipad": (420, 650),
}
EUR_IN = {"EUR": 1.0, "HUF": 295.0, "CZK": 25.2}

PRODUCT_COLUMNS = [
    "id", "published", "sorszam", "product_number", "gyarto", "nev", "tipusmegnevezes", "tipus",
    "processzor", "memoria", "kijelzo", "merevlemez", "grafikus_kartya", "optikai_meghajto",
    "billentyuzet", "wifi", "usb", "kartyaolvaso", "hdmi", "vga", "webkamera", "esata",
    "express_card", "bluetooth", "lan", "tv", "3g", "ujjlenyomat_olvaso", "operacios_rendszer",
    "akkumulator", "kiegeszitok", "kulonlegessegek", "extra_mezo", "garancia", "status",
    "netto_darabar", "uj_netto_darabar", "kedvezmenyek", "tobbletnyeresegek", "nagyraktar",
]


class Dice:
    """Seeded choices built on random() alone, so every Python 3 gives the same catalogue."""

    def __init__(self, seed):
        self._rng = random.Random(seed)

    def chance(self, probability):
        return self._rng.random() < probability

    def pick(self, items):
        return items[int(self._rng.random() * len(items))]

    def between(self, low, high):
        return low + int(self._rng.random() * (high - low + 1))

    def text(self, alphabet, length):
        return "".join(self.pick(alphabet) for _ in range(length))


def sql_literal(value):
    """SQL form of one value: NULL, a number, or a quoted string with its specials escaped."""
    if value is None:
        return "NULL"
    if isinstance(value, int):
        return str(value)
    escaped = (value.replace("\\", "\\\\").replace("'", "''").replace("\0", "\\0")
               .replace("\n", "\\n").replace("\r", "\\r").replace("\x1a", "\\Z"))
    return "'" + escaped + "'"


def write_inserts(out, table, columns, rows):
    """Writes the rows as multi-row INSERT statements of at most ROWS_PER_INSERT rows each."""
    head = "INSERT INTO " + table + " (" + ", ".join("`" + c + "`" for c in columns) + ") VALUES\n"
    for start in range(0, len(rows), ROWS_PER_INSERT):
        chunk = rows[start:start + ROWS_PER_INSERT]
        out.write(head)
        out.write(",\n".join("(" + ", ".join(sql_literal(v) for v in row) + ")" for row in chunk))
        out.write(";\n")


def translation_rows():
    """(szocikk, language, forditas) rows: stale ones first, so the later rows win."""
    rows = list(STALE_TRANSLATIONS)
    groups = [CATEGORY_WORDS, KIND_NAMES, LABELS, WARRANTIES, STOCK_STATUSES, SPECIALITIES,
              EXTRA_FIELDS]
    for group in groups:
        for hu, sk, cz in group:
            rows += [(hu, "HU", hu), (hu, "SK", sk), (hu, "CZ", cz)]
    # Accessories are looked up as stored and, in the Heureka.sk name, with "," for ";".
    for hu, sk, cz in ACCESSORIES:
        rows += [(hu, "HU", hu), (hu, "SK", sk), (hu, "CZ", cz)]
        if ";" in hu:
            comma = [t.replace(";", ",") for t in (hu, sk, cz)]
            rows += [(comma[0], "HU", comma[0]), (comma[0], "SK", comma[1]),
                     (comma[0], "CZ", comma[2])]
    return rows


def category_tree():
    """Category rows (cat_id, name, level, parent id) and the ids to file products under."""
    rows = []
    ids = {}
    for kind in KINDS:
        rows.append((len(rows) + 1, kind, "0", "0"))
        ids[kind] = len(rows)
    for maker, kinds, series, _model, _cls, _ultra in MODELS:
        for kind in kinds:
            level1 = (maker, kind)
            if level1 not in ids:
                rows.append((len(rows) + 1, maker + " " + kind, "1", str(ids[kind])))
                ids[level1] = len(rows)
        level2 = (maker, kinds[0], series)
        if level2 not in ids:
            rows.append((len(rows) + 1, series, "2", str(ids[(maker, kinds[0])])))
            ids[level2] = len(rows)
    return rows, ids


def price_text(dice, amount, currency):
    """A price as the staff type it: "123456", "123 456", "1 234,50", "412.5", ..."""
    if currency == "HUF":
        whole = int(round(amount))
        form = dice.pick(["plain", "plain", "spaced", "dotted"])
        if form == "plain":
            return str(whole)
        if form == "spaced":
            return "{:,}".format(whole).replace(",", " ")
        return "{:,}".format(whole).replace(",", ".") + ",00"
    form = dice.pick(["comma", "spaced", "point", "plain"])
    if form == "plain":
        return str(int(round(amount)))
    if form == "point":
        return ("%.2f" % amount).rstrip("0").rstrip(".")
    text = ("{:,.2f}".format(amount)).replace(",", " ").replace(".", ",")
    return text if form == "spaced" else text.replace(" ", "")


def site_amounts(dice, hu_range, sk_range, cz_range, step_hu, step_cz):
    """ "hu|sk|cz" amounts in each site's currency, or the other stored shapes."""
    shape = dice.pick(["zero", "zero", "zero", "zero", "empty", "all", "all", "hu_only"])
    if shape == "zero":
        return "0|0|0"
    if shape == "empty":
        return ""
    hu = dice.between(*hu_range) * step_hu
    if shape == "hu_only":
        return str(hu)
    return "%d|%d|%d" % (hu, dice.between(*sk_range), dice.between(*cz_range) * step_cz)


def yes_no(dice, probability, texts):
    """A flag|text|count value: present with `probability`, else "0||"."""
    if not dice.chance(probability):
        return "0||"
    return "1|" + dice.pick(texts) + "|" + ("2" if dice.chance(0.05) else "1")


def product_number(dice, maker):
    upper = "ABCDEFGHJKLMNPQRSTUVWXYZ"
    digits = "0123456789"
    both = upper + digits
    shapes = {
        "Acer": lambda: "NX." + dice.text(both, 5) + ".0" + dice.text(digits, 2),
        "Asus": lambda: "90N" + dice.text(both, 5) + "-M" + dice.text(digits, 5),
        "Apple": lambda: "M" + dice.text(upper, 1) + dice.text(digits, 3) + "MG/A",
        "HP": lambda: dice.text(upper, 1) + dice.text(digits, 1) + dice.text(upper, 1)
        + dice.text(digits, 2) + "EA",
        "Dell": lambda: "DL-" + dice.text(digits, 9),
    }
    number = shapes.get(maker, lambda: dice.text(both, 4) + "-" + dice.text(both, 6))()
    return number + " " if dice.chance(0.03) else number


def kind_flags(cls):
    tablet = cls in ("tablet", "wintablet", "ipad")
    aio = cls in ("aio", "mac_aio")
    mac = cls.startswith("mac") or cls == "ipad"
    business = cls == "business"
    return tablet, aio, mac, business


def product_row(dice, product_id, sorszam, model):
    """One laptop_adatbazis row plus what the side tables need to know about it."""
    maker, kinds, _series, model_name, cls, _ultra = model
    tablet, aio, mac, business = kind_flags(cls)
    variant = dice.text("ABCDEFGHJKLMNPRSTUVWXYZ", 2) + dice.text("0123456789", 3) + dice.pick(
        ["D", "H", "P", "", "W"])
    code = model_name.replace(" ", "-").upper() + "-" + variant
    nev = model_name + " " + variant
    if tablet:
        nev += " " + dice.pick(["16GB", "32GB", "WiFi", "3G"])

    country = dice.pick(["SK", "SK", "SK", "HU", "HU", "DE"])
    supplier = dice.pick(SUPPLIERS[country])
    if country == "HU":
        currency = "HUF" if dice.chance(0.9) else "EUR"
    elif country == "SK":
        currency = "CZK" if dice.chance(0.15) else "EUR"
    else:
        currency = "EUR"
    low, high = BASE_PRICE_EUR[cls]
    base_eur = dice.between(low * 10, high * 10) / 10.0
    new_price = base_eur * EUR_IN[currency]
    old_price = new_price * (1 + dice.between(0, 8) / 100.0)
    uj_netto = "kalkul" if dice.chance(0.02) else price_text(dice, new_price, currency)
    netto = "Kalkulálandó" if dice.chance(0.02) else price_text(dice, old_price, currency)

    optical = "0||"
    if not tablet and not cls.startswith("ultra") and cls != "mac_ultra":
        optical = yes_no(dice, 0.85, ["DVD-RW", "DVD Super Multi DL", "DVD-RW", "Blu-ray író",
                                      "Blu-ray DVD combo"])
    if tablet:
        keyboard = "1|Dokkolható billentyûzet|1" if dice.chance(0.2) else "0||"
    else:
        keyboard = yes_no(dice, 0.97, ["Magyar", "Magyar, háttérvilágítású", "", "Angol"])
    usb = ("1|1|micro USB|1" if tablet else dice.pick(
        ["1|1|USB 2.0|2^1|1|USB 3.0|2", "1|1|USB 2.0|3", "1|1|USB 3.0|1^1|1|USB 2.0|1",
         "1|1|USB 2.0|1^1|1|USB 3.0|1"]))
    webcam = (dice.pick(["1|1|1.3 MP|1^1|1|5 MP|1", "1|1|2 MP|1"]) if tablet else dice.pick(
        ["1|1|1.3 MP|1", "1|1|HD 720p|1", "1|1|0.3 MP|1", "0|0||"]))
    battery = ("|" + str(dice.between(8, 12)) + " óra" if tablet else "" if aio else dice.pick(
        ["6 cellás|4 óra", "4 cellás|6 óra", "8 cellás Li-Ion|7 óra", "3 cellás|",
         "4 cellás Li-Polymer|8 óra"]))

    row = {
        "id": product_id,
        "published": 1 if dice.chance(0.92) else 0,
        "sorszam": sorszam,
        "product_number": product_number(dice, maker),
        "gyarto": maker,
        "nev": nev,
        "tipusmegnevezes": model_name,
        "tipus": code,
        "processzor": dice.pick(CPUS[cls]),
        "memoria": dice.pick(MEMORIES[cls]),
        "kijelzo": dice.pick(DISPLAYS[cls]),
        "merevlemez": dice.pick(DISKS[cls]),
        "grafikus_kartya": dice.pick(GCARDS[cls]),
        "optikai_meghajto": optical,
        "billentyuzet": keyboard,
        "wifi": yes_no(dice, 0.98, ["802.11 b/g/n", "802.11 a/b/g/n", ""]),
        "usb": usb,
        "kartyaolvaso": yes_no(dice, 0.8, ["microSD"] if tablet else ["SD/SDHC/SDXC", "5 in 1"]),
        "hdmi": yes_no(dice, 0.85, ["micro HDMI"] if tablet else ["", "HDMI 1.4"]),
        "vga": "0||" if tablet or mac else yes_no(dice, 0.7, ["D-SUB", ""]),
        "webkamera": webcam,
        "esata": "0||" if tablet else yes_no(dice, 0.2, ["eSATA/USB combo", ""]),
        "express_card": yes_no(dice, 0.6, ["ExpressCard/54", "ExpressCard/34"])
        if business else "0||",
        "bluetooth": yes_no(dice, 0.75, ["4.0", "3.0", ""]),
        "lan": "0||" if tablet else yes_no(dice, 0.95, ["10/100 Mbit", "Gigabit", ""]),
        "tv": yes_no(dice, 0.3, ["DVB-T"]) if aio else ("" if dice.chance(0.3) else "0||"),
        "3g": yes_no(dice, 0.4, ["3G modem", "HSPA+"]) if tablet or business else "0||",
        "ujjlenyomat_olvaso": yes_no(dice, 0.7, [""]) if business else "0||",
        "operacios_rendszer": dice.pick(OS_CHOICES[cls]),
        "akkumulator": battery,
        "kiegeszitok": dice.pick(ACCESSORIES)[0] if dice.chance(0.35) else "",
        "kulonlegessegek": dice.pick(SPECIALITIES)[0] if dice.chance(0.3) else "",
        "extra_mezo": dice.pick(EXTRA_FIELDS)[0] if dice.chance(0.15) else "",
        "garancia": dice.pick(WARRANTIES)[0],
        "status": dice.pick(STOCK_STATUSES)[0],
        "netto_darabar": netto,
        "uj_netto_darabar": uj_netto,
        "kedvezmenyek": site_amounts(dice, (1, 15), (5, 50), (1, 15), 1000, 100),
        "tobbletnyeresegek": site_amounts(dice, (1, 8), (3, 25), (1, 8), 500, 100),
        "nagyraktar": supplier,
    }
    return row, currency, base_eur


def fixed_prices(dice, base_eur):
    """fix_ar_hu, fix_ar_sk, fix_ar_cz: a hand-set gross price per site or "0"."""
    hu = "0"
    sk = "0"
    cz = "0"
    if dice.chance(0.7):
        whole = int(base_eur * 295 * 1.27 * 1.1 / 1000) * 1000 + 990
        hu = "{:,}".format(whole).replace(",", " ") if dice.chance(0.5) else str(whole)
    if dice.chance(0.5):
        sk = "%d,90" % int(base_eur * 1.2 * 1.1)
    if dice.chance(0.3):
        cz = "%d" % (int(base_eur * 25.2 * 1.21 * 1.1 / 10) * 10)
    return hu, sk, cz


def sorszam_for(dice, index, count):
    first = max(1, NAMING_THRESHOLD - count // 2)
    number = first + index
    if dice.chance(0.03):
        return dice.pick(["AKC-", "akc-", "Akc"]) + str(number)
    return str(number)


# Hostile rows: what years of hand edits leave in a shop's tables. Texts that break the tool's
# statements (a quote), line ends inside values, empty, NULL and malformed values, keys with
# trailing blanks or in other letter case (equal to the plain key for the database), side rows
# missing, doubled or stored out of id order, and more unpublished and clearance items.
QUOTED_MAKERS = ["D'Arcy", "O'Neill Computers"]
QUOTED_NAMES = ["'Limited' Edition", "Gamer's Choice"]
ODD_PRICES = ["", None, "n/a", "-120", "1.234.567,8", "  ", "12e3"]
ODD_AMOUNTS = ["x|y|z", "|||", None, "5000|abc|0", "1 000|2,5|x"]
ODD_COMPONENTS = ["", None, "|||", "^^^", "1|2", "|", "1|1|\r|1"]
ODD_STORED_TEXTS = ["Alumínium ház\r\nDolby hangrendszer", "Táska\rEgér", "Gamer's Choice",
                    "  Táska  ", "TÁSKA", None, ""]
ODD_WARRANTIES = ["24 hónap\r", None, "", "O'Reilly garancia", "24 HÓNAP", "24 hónap "]
ODD_EXTRA_TEXTS = ["Első sor\r\nmásodik sor", "Csak CR\rután", None, "", "Idézőjel: 'itt'",
                   "  két  szóköz  "]


def blank_padded(dice, key):
    """The key as the database still finds it: trailing blanks or, for letters, another case."""
    return dice.pick([key + " ", key + "  ", key.upper(), key.capitalize(), key])


def make_hostile(dice, tables, category_ids):
    """Spoils the generated rows in place; side tables get explicit ids in an order of their own."""
    product_columns, products = tables["laptop_adatbazis"]
    at = {column: i for i, column in enumerate(product_columns)}
    spoiled = []
    for values in products:
        row = list(values)

        def maybe(column, probability, choices):
            if dice.chance(probability):
                row[at[column]] = dice.pick(choices)

        maybe("published", 0.15, [0, 0, 0, None])
        if dice.chance(0.08):
            row[at["sorszam"]] = dice.pick(["xAkC", "AKC-", "akc ", "Akc"]) + str(row[at["id"]])
        maybe("sorszam", 0.02, [None, ""])
        maybe("gyarto", 0.1, QUOTED_MAKERS + ["", None, "  Asus  ", "asus", "HP\r"])
        maybe("nev", 0.08, [(row[at["nev"]] or "") + " " + dice.pick(QUOTED_NAMES), None, "",
                             "Aspire\r\n5750G", "Vaio\rDuo"])
        maybe("tipusmegnevezes", 0.05, ["Tecra 'R950'", None, ""])
        maybe("tipus", 0.04, [None, "", "X'501"])
        maybe("product_number", 0.04, [None, "", "NX.ABC\r12", "'quoted'"])
        maybe("uj_netto_darabar", 0.1, ODD_PRICES)
        maybe("netto_darabar", 0.1, ODD_PRICES)
        maybe("kedvezmenyek", 0.08, ODD_AMOUNTS)
        maybe("tobbletnyeresegek", 0.08, ODD_AMOUNTS)
        for column in ["processzor", "memoria", "kijelzo", "merevlemez", "grafikus_kartya",
                       "optikai_meghajto", "billentyuzet", "wifi", "usb", "hdmi", "vga",
                       "webkamera", "operacios_rendszer", "akkumulator"]:
            maybe(column, 0.03, ODD_COMPONENTS)
        maybe("kulonlegessegek", 0.08, ODD_STORED_TEXTS)
        maybe("kiegeszitok", 0.08, ODD_STORED_TEXTS)
        maybe("extra_mezo", 0.03, ["Idézőjel 'benne'", None, "sor\r\nvég"])
        maybe("garancia", 0.08, ODD_WARRANTIES)
        maybe("status", 0.04, [None, "", "Raktáron\r", "Külső 'B' raktár"])
        maybe("nagyraktar", 0.05, [None, "", "IPON\r\n", "ingram micro "])
        if not dice.chance(0.02):  # the rest lose their row, their side rows stay behind
            spoiled.append(tuple(row))
    products[:] = spoiled

    def product_key(pid):
        return blank_padded(dice, pid) if dice.chance(0.15) else pid

    def type_key():
        return dice.pick(["0 ", "0  "]) if dice.chance(0.1) else "0"

    _, valuta = tables["product_valuta"]
    valuta[:] = [(type_key(), product_key(pid), dice.pick([currency, currency.lower()])
                  if dice.chance(0.05) else currency)
                 for type_id, pid, currency in valuta if not dice.chance(0.05)]

    columns, fixes = tables["fix_arak"]
    spoiled = []
    for pid, type_id, hu, sk, cz in fixes:
        if type_id == "0" and dice.chance(0.15):  # an older price typed again by hand
            spoiled.append((pid, type_id, dice.pick(["159 990", "0", None, "abc"]), "0", "0"))
        hu = dice.pick(["abc", None, " 99 990 ", hu]) if dice.chance(0.05) else hu
        spoiled.append((product_key(pid), type_key() if type_id == "0" else type_id, hu, sk, cz))
    # The newest row is the one with the highest id, not the one inserted last: ids are handed
    # out so that a product's doubled prices stand in the table newest first.
    tables["fix_arak"] = (["fix_id"] + columns, descending_ids(spoiled, key=lambda r: r[0]))

    _, links = tables["product_categories"]
    spoiled = []
    for type_id, pid, cat in links:
        if dice.chance(0.03):
            continue
        if dice.chance(0.03):
            cat = "0" + cat  # the same category to a numeric join, another to a text compare
        spoiled.append((type_key(), product_key(pid), cat))
        if dice.chance(0.02):
            spoiled.append(("0", pid, cat))  # filed twice under the same category
    ultrabook = str(category_ids[ULTRABOOK])
    spoiled += [("0", "99999" + str(i), ultrabook) for i in range(3)]  # links without products
    links[:] = spoiled

    columns, extras = tables["extra_jellemzo"]
    spoiled = []
    pids = sorted({pid for _, pid, _, _ in extras}, key=int)
    for pid in pids:
        for site in ("hu", "sk"):
            for number in range(dice.between(0, 4)):
                text = dice.pick(EXTRA_INFO)[0 if site == "hu" else 1] + " #" + str(number)
                if dice.chance(0.1):
                    text = dice.pick(ODD_EXTRA_TEXTS)
                spoiled.append((dice.pick(["0", "0", "1"]) if dice.chance(0.05) else type_key(),
                                product_key(pid), blank_padded(dice, site), text))
    spoiled += [("0", "88888", "hu", "Termék nélküli sor")]
    tables["extra_jellemzo"] = (["ex_id"] + columns, shuffled_ids(dice, spoiled, key=lambda r: r[1]))

    # Half the seeds hold one key the tool cannot compare as the database does: an accented site
    # code (equal to the plain one for the database) or a product kind's id with a blank after it
    # (equal to the number for the database).
    if dice.chance(0.5):
        columns, rows = tables["extra_jellemzo"]
        pid = pids[len(pids) // 2] if pids else "1"
        rows.append((max(r[0] for r in rows) + 1 if rows else 1, "0", pid, "hú",
                     "Ékezetes kulcs"))
    if dice.chance(0.5):
        kinds = {str(category_ids[kind]) for kind in (LAPTOP, TABLET, AIO)}
        filed = [i for i, (_, _, cat) in enumerate(links) if cat in kinds]
        if filed:
            type_id, pid, cat = links[filed[len(filed) // 2]]
            links[filed[len(filed) // 2]] = (type_id, pid, cat + " ")


def grouped_ids(rows, key, arrange):
    """Each row prefixed with an id; the rows of one key share a run of consecutive ids, which
    `arrange` lays out among them (it gets the run in rising order and returns it rearranged)."""
    result = []
    groups = {}
    for row in rows:
        groups.setdefault(key(row).strip().lower(), []).append(row)
    next_id = 1
    for group in groups.values():
        ids = arrange(list(range(next_id, next_id + len(group))))
        result += [(ids[i],) + tuple(row) for i, row in enumerate(group)]
        next_id += len(group)
    return result


def descending_ids(rows, key):
    """Each row prefixed with an id; rows of one key get ids falling in insertion order."""
    return grouped_ids(rows, key, lambda ids: ids[::-1])


def shuffled_ids(dice, rows, key):
    """Each row prefixed with an id; the ids of one key's rows are shuffled among them."""

    def shuffle(ids):
        for i in range(len(ids) - 1, 0, -1):
            j = dice.between(0, i)
            ids[i], ids[j] = ids[j], ids[i]
        return ids

    return grouped_ids(rows, key, shuffle)


def hostile_translations(dice, rows):
    """Translation rows with gaps (a word missing for a language) and late duplicates."""
    kept = [row for row in rows if not (row[1] == "SK" and dice.chance(0.04))]
    kept += [(hu.upper(), language, text + " (új)") for hu, language, text in rows
             if dice.chance(0.02)]
    kept += [("24 hónap\r", "HU", "24 hónap"), ("Gamer's Choice", "SK", "Gamer's Choice")]
    return kept


def generate(out, count, seed, hostile=False):
    dice = Dice(seed)
    out.write("-- Sample shop catalogue: %d products, seed %d%s.\n"
              % (count, seed, ", hostile rows" if hostile else ""))
    out.write("SET NAMES utf8mb4;\nSTART TRANSACTION;\n")

    translations = translation_rows()
    if hostile:
        translations = hostile_translations(Dice(seed * 7919 + 3), translations)
    write_inserts(out, "laptop_adatbazis_forditasok", ["szocikk", "language", "forditas"],
                  translations)
    write_inserts(out, "taxes", ["tax_country", "tax_value"],
                  [("hu", "25"), ("sk", "19"), ("hu", "27"), ("sk", "20"), ("cz", "21")])
    write_inserts(out, "exchange_rates", ["er_from", "er_to", "er_value"], [
        ("EUR", "HUF", "285,20"), ("EUR", "CZK", "25,05"), ("HUF", "EUR", "0,00351"),
        ("USD", "HUF", "223,5"), ("EUR", "HUF", "290.1"), ("HUF", "EUR", "0,003375"),
        ("EUR", "CZK", "25,2"), ("CZK", "EUR", "0,0397"), ("HUF", "CZK", "0,0851"),
        ("CZK", "HUF", "11,75"), ("EUR", "HUF", " 296,35 ")])
    margins = [("SK", "HU", "8"), ("HU", "SK", "10")]  # older rows, overruled below
    for source, values in (("SK", ("10", "12", "11")), ("HU", ("6", "12,5", "13")),
                           ("DE", ("15", "9", "14"))):
        margins += [(source, target, value) for target, value in zip(("HU", "SK", "CZ"), values)]
    write_inserts(out, "profit_margins", ["profit_from", "profit_to", "profit_value"], margins)

    categories, category_ids = category_tree()
    write_inserts(out, "categories",
                  ["cat_id", "cat_category_name", "cat_category_level", "cat_category_parent_id"],
                  categories)

    products = []
    valuta = []
    fixes = []
    links = []
    extras = []
    for index in range(count):
        product_id = index + 1
        model = dice.pick(MODELS)
        row, currency, base_eur = product_row(dice, product_id,
                                              sorszam_for(dice, index, count), model)
        products.append(tuple(row[c] for c in PRODUCT_COLUMNS))
        pid = str(product_id)

        if currency != "EUR" or dice.chance(0.85):
            if dice.chance(0.05):
                valuta.append(("0", pid, "USD"))  # typed wrong first, corrected below
            valuta.append(("0", pid, currency))
        if dice.chance(0.6):
            if dice.chance(0.08):
                fixes.append((pid, "0", "149 990", "499,90", "12 490"))  # an older fixed price
            fixes.append((pid, "0") + (fixed_prices(dice, base_eur) if dice.chance(0.4)
                                       else ("0", "0", "0")))
            if dice.chance(0.05):
                fixes.append((pid, "1", "99 990", "0", "0"))  # an accessory bundle's price

        maker, kinds, series, _model_name, _cls, ultrabook = model
        if ultrabook and dice.chance(0.02):
            filed = [category_ids[ULTRABOOK]]  # mis-filed: no product kind at all
        else:
            filed = [category_ids[kind] for kind in kinds]
            filed += [category_ids[(maker, kind)] for kind in kinds]
            filed.append(category_ids[(maker, kinds[0], series)])
            if ultrabook:
                filed.append(category_ids[ULTRABOOK])
        links += [("0", pid, str(cat)) for cat in filed]

        if dice.chance(0.3):
            for _ in range(2 if dice.chance(0.2) else 1):
                hu_text, sk_text = dice.pick(EXTRA_INFO)
                extras.append(("0", pid, "hu", hu_text))
                extras.append(("0", pid, "sk", sk_text))

    tables = {
        "laptop_adatbazis": (PRODUCT_COLUMNS, products),
        "product_valuta": (["prod_val_product_type_id", "prod_val_product_id",
                            "prod_val_valuta"], valuta),
        "fix_arak": (["fix_product_id", "fix_product_type_id", "fix_ar_hu", "fix_ar_sk",
                      "fix_ar_cz"], fixes),
        "product_categories": (["prod_cat_type_id", "prod_cat_product_id",
                                "prod_cat_category_id"], links),
        "extra_jellemzo": (["ex_product_type_id", "ex_product_id", "ex_site", "ex_text"], extras),
    }
    if hostile:
        # A dice of its own, so the ordinary rows above are the same with and without --hostile.
        make_hostile(Dice(seed * 7919 + 17), tables, category_ids)
    for table, (columns, rows) in tables.items():
        write_inserts(out, table, columns, rows)
    out.write("COMMIT;\n")


def positive_int(text):
    value = int(text)
    if value < 1:
        raise argparse.ArgumentTypeError("must be at least 1")
    return value


def main(argv=None):
    parser = argparse.ArgumentParser(
        description="Print SQL INSERT statements for a sample shop catalogue (laptops, tablets, "
        "all-in-one PCs with prices, categories, extra information and the HU/SK/CZ translation "
        "table). Load the output into a database that holds db/schema.sql and no rows.",
        epilog="Example: %(prog)s --products 20000 | mariadb uj_db")
    parser.add_argument("-n", "--products", type=positive_int, default=DEFAULT_PRODUCTS,
                        help="number of products (default %d)" % DEFAULT_PRODUCTS)
    parser.add_argument("-s", "--seed", type=int, default=DEFAULT_SEED,
                        help="random seed; the same seed gives the same catalogue "
                        "(default %d)" % DEFAULT_SEED)
    parser.add_argument("-o", "--output", metavar="FILE",
                        help="write to FILE instead of standard output")
    parser.add_argument("--hostile", action="store_true",
                        help="spoil the rows as years of hand edits do: quotes in makers and "
                        "names, line ends, empty, NULL and malformed values, side-table keys with "
                        "trailing blanks or in other letter case, missing, doubled and "
                        "out-of-order side rows, more unpublished and clearance items")
    args = parser.parse_args(argv)
    if args.output:
        with open(args.output, "w", encoding="utf-8", newline="\n") as out:
            generate(out, args.products, args.seed, args.hostile)
    else:
        sys.stdout.reconfigure(encoding="utf-8", newline="\n")
        try:
            generate(sys.stdout, args.products, args.seed, args.hostile)
            sys.stdout.flush()
        except BrokenPipeError:  # the reader stopped early (head, cmp): not our error
            sys.stdout = None
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
