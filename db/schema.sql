-- Tables of the shop database (uj_db) that the feed export tool reads.
-- Load into an empty database: mariadb uj_db < db/schema.sql
-- Ids are integers (newest row = highest id). Every other value is text as the shop stores it,
-- except the published flag (0/1). The extra keys only speed up the per-product lookups.

CREATE TABLE laptop_adatbazis (
  id INT NOT NULL AUTO_INCREMENT,
  published TINYINT(1) DEFAULT 0,
  sorszam VARCHAR(64) DEFAULT NULL,
  product_number VARCHAR(255) DEFAULT NULL,
  gyarto VARCHAR(255) DEFAULT NULL,
  nev VARCHAR(255) DEFAULT NULL,
  tipusmegnevezes VARCHAR(255) DEFAULT NULL,
  tipus VARCHAR(255) DEFAULT NULL,
  processzor TEXT DEFAULT NULL,
  memoria TEXT DEFAULT NULL,
  kijelzo TEXT DEFAULT NULL,
  merevlemez TEXT DEFAULT NULL,
  grafikus_kartya TEXT DEFAULT NULL,
  optikai_meghajto TEXT DEFAULT NULL,
  billentyuzet TEXT DEFAULT NULL,
  wifi TEXT DEFAULT NULL,
  usb TEXT DEFAULT NULL,
  kartyaolvaso TEXT DEFAULT NULL,
  hdmi TEXT DEFAULT NULL,
  vga TEXT DEFAULT NULL,
  webkamera TEXT DEFAULT NULL,
  esata TEXT DEFAULT NULL,
  express_card TEXT DEFAULT NULL,
  bluetooth TEXT DEFAULT NULL,
  lan TEXT DEFAULT NULL,
  tv TEXT DEFAULT NULL,
  `3g` TEXT DEFAULT NULL,
  ujjlenyomat_olvaso TEXT DEFAULT NULL,
  operacios_rendszer TEXT DEFAULT NULL,
  akkumulator TEXT DEFAULT NULL,
  kiegeszitok TEXT DEFAULT NULL,
  kulonlegessegek TEXT DEFAULT NULL,
  extra_mezo TEXT DEFAULT NULL,
  garancia VARCHAR(255) DEFAULT NULL,
  status VARCHAR(255) DEFAULT NULL,
  netto_darabar VARCHAR(64) DEFAULT NULL,
  uj_netto_darabar VARCHAR(64) DEFAULT NULL,
  kedvezmenyek VARCHAR(255) DEFAULT NULL,
  tobbletnyeresegek VARCHAR(255) DEFAULT NULL,
  nagyraktar VARCHAR(255) DEFAULT NULL,
  PRIMARY KEY (id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Hungarian word or stored value (szocikk) and its text for one site language ("HU", "SK", "CZ").
CREATE TABLE laptop_adatbazis_forditasok (
  id INT NOT NULL AUTO_INCREMENT,
  szocikk TEXT DEFAULT NULL,
  language VARCHAR(8) DEFAULT NULL,
  forditas TEXT DEFAULT NULL,
  PRIMARY KEY (id),
  KEY forditas_szocikk (szocikk(191), language)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- VAT percent per site code ("hu", "sk", "cz").
CREATE TABLE taxes (
  tax_id INT NOT NULL AUTO_INCREMENT,
  tax_country VARCHAR(8) DEFAULT NULL,
  tax_value VARCHAR(32) DEFAULT NULL,
  PRIMARY KEY (tax_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Hand-set gross prices per site, "0" meaning no fixed price.
CREATE TABLE fix_arak (
  fix_id INT NOT NULL AUTO_INCREMENT,
  fix_product_id VARCHAR(32) DEFAULT NULL,
  fix_product_type_id VARCHAR(32) DEFAULT NULL,
  fix_ar_hu VARCHAR(64) DEFAULT NULL,
  fix_ar_sk VARCHAR(64) DEFAULT NULL,
  fix_ar_cz VARCHAR(64) DEFAULT NULL,
  PRIMARY KEY (fix_id),
  KEY fix_arak_product (fix_product_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Currency of a product's purchase price ("HUF", "EUR", "CZK").
CREATE TABLE product_valuta (
  prod_val_id INT NOT NULL AUTO_INCREMENT,
  prod_val_product_type_id VARCHAR(32) DEFAULT NULL,
  prod_val_product_id VARCHAR(32) DEFAULT NULL,
  prod_val_valuta VARCHAR(16) DEFAULT NULL,
  PRIMARY KEY (prod_val_id),
  KEY product_valuta_product (prod_val_product_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE exchange_rates (
  er_id INT NOT NULL AUTO_INCREMENT,
  er_from VARCHAR(16) DEFAULT NULL,
  er_to VARCHAR(16) DEFAULT NULL,
  er_value VARCHAR(64) DEFAULT NULL,
  PRIMARY KEY (er_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Profit percent by warehouse country (profit_from) and target site (profit_to), both upper case.
CREATE TABLE profit_margins (
  profit_id INT NOT NULL AUTO_INCREMENT,
  profit_from VARCHAR(16) DEFAULT NULL,
  profit_to VARCHAR(16) DEFAULT NULL,
  profit_value VARCHAR(64) DEFAULT NULL,
  PRIMARY KEY (profit_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Level 0: product kind, level 1: maker and kind, level 2: series under a level-1 category.
CREATE TABLE categories (
  cat_id INT NOT NULL AUTO_INCREMENT,
  cat_category_name VARCHAR(255) DEFAULT NULL,
  cat_category_level VARCHAR(8) DEFAULT NULL,
  cat_category_parent_id VARCHAR(32) DEFAULT NULL,
  PRIMARY KEY (cat_id),
  KEY categories_name (cat_category_name(191)),
  KEY categories_parent (cat_category_parent_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE product_categories (
  prod_cat_id INT NOT NULL AUTO_INCREMENT,
  prod_cat_type_id VARCHAR(32) DEFAULT NULL,
  prod_cat_product_id VARCHAR(32) DEFAULT NULL,
  prod_cat_category_id VARCHAR(32) DEFAULT NULL,
  PRIMARY KEY (prod_cat_id),
  KEY product_categories_product (prod_cat_product_id),
  KEY product_categories_category (prod_cat_category_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- Free extra information per product and site code ("hu", "sk", "cz").
CREATE TABLE extra_jellemzo (
  ex_id INT NOT NULL AUTO_INCREMENT,
  ex_product_type_id VARCHAR(32) DEFAULT NULL,
  ex_product_id VARCHAR(32) DEFAULT NULL,
  ex_site VARCHAR(8) DEFAULT NULL,
  ex_text TEXT DEFAULT NULL,
  PRIMARY KEY (ex_id),
  KEY extra_jellemzo_product (ex_product_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;
