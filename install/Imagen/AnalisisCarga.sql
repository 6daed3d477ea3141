-- The load database that all projects share: analyses, and lists of probable unit weights in kgf/m².

CREATE TABLE Generales (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Descripcion TEXT(120) COLLATE NOCASE,
    Carga DOUBLE,
    CP DOUBLE,
    CV INTEGER,
    REL DOUBLE
);

CREATE TABLE CargaPermanente (
    ID INTEGER,
    Numero SMALLINT,
    Descripcion TEXT(120) COLLATE NOCASE,
    Peso INTEGER
);

CREATE TABLE CargaVariable (
    ID INTEGER,
    Descripcion TEXT(120) COLLATE NOCASE,
    Peso INTEGER
);

CREATE TABLE BDPermanente (
    Descripcion TEXT(120) COLLATE NOCASE,
    Peso INTEGER
);

CREATE TABLE BDVariable (
    Descripcion TEXT(120) COLLATE NOCASE,
    Peso INTEGER
);

-- Probable unit weights, rounded: thickness by the density of the material, or the element as it is usually built.

INSERT INTO BDPermanente VALUES
    ('Losa maciza de concreto, e = 8 cm', 200),
    ('Losa maciza de concreto, e = 10 cm', 250),
    ('Losa maciza de concreto, e = 12 cm', 300),
    ('Losa maciza de concreto, e = 15 cm', 375),
    ('Losa maciza de concreto, e = 20 cm', 500),
    ('Losa maciza de concreto, e = 25 cm', 625),
    ('Losa nervada con bloques de arcilla, h = 20 cm', 270),
    ('Losa nervada con bloques de arcilla, h = 25 cm', 315),
    ('Losa nervada con bloques de arcilla, h = 30 cm', 360),
    ('Losa nervada con bloques de arcilla, h = 35 cm', 410),
    ('Losa nervada con bloques de concreto, h = 20 cm', 310),
    ('Losa nervada con bloques de concreto, h = 25 cm', 370),
    ('Losa nervada con bloques de concreto, h = 30 cm', 430),
    ('Losa nervada con bloques de poliestireno, h = 20 cm', 205),
    ('Losa nervada con bloques de poliestireno, h = 25 cm', 230),
    ('Losa nervada con bloques de poliestireno, h = 30 cm', 255),
    ('Losa reticular con casetones recuperables, h = 30 cm', 300),
    ('Losa de tabelones de arcilla sobre perfiles de acero, h = 13 cm', 220),
    ('Losa de concreto sobre lámina de acero, h = 10 cm', 210),
    ('Losa de concreto sobre lámina de acero, h = 12 cm', 260),
    ('Entrepiso de madera con viguetas y tablas', 50),
    ('Mortero de nivelación, e = 2 cm', 40),
    ('Pavimento de mortero, e = 3 cm', 65),
    ('Mortero de nivelación, e = 5 cm', 105),
    ('Sobrepiso de concreto, e = 5 cm', 120),
    ('Relleno de concreto liviano, e = 10 cm', 120),
    ('Relleno de arena, e = 10 cm', 160),
    ('Pavimento de granito artificial, e = 5 cm', 110),
    ('Pavimento de cerámica sobre mortero, e = 5 cm', 100),
    ('Pavimento de porcelanato sobre mortero, e = 5 cm', 110),
    ('Pavimento de terracota sobre mortero, e = 5 cm', 95),
    ('Pavimento de mármol sobre mortero, e = 5 cm', 120),
    ('Pavimento de granito natural sobre mortero, e = 5 cm', 120),
    ('Pavimento de parquet sobre mortero, e = 4 cm', 75),
    ('Pavimento de madera sobre rastreles', 25),
    ('Pavimento de vinilo', 5),
    ('Alfombra con su base', 5),
    ('Piso elevado para instalaciones', 40),
    ('Adoquines de concreto sobre arena, e = 9 cm', 180),
    ('Friso de mortero, e = 1.5 cm', 30),
    ('Friso de mortero, e = 2 cm', 40),
    ('Friso de yeso, e = 1.5 cm', 20),
    ('Cielo raso de yeso con entramado', 20),
    ('Cielo raso de fibra mineral con entramado', 10),
    ('Cielo raso de láminas de PVC', 5),
    ('Cielo raso de madera machihembrada', 15),
    ('Cielo raso de mortero sobre malla metálica', 50),
    ('Instalaciones colgantes y lámparas', 10),
    ('Ductos de aire acondicionado', 15),
    ('Tabiquería liviana de yeso y cartón, repartida', 50),
    ('Tabiquería de bloques de arcilla, e = 10 cm, repartida', 150),
    ('Tabiquería de bloques de arcilla, e = 15 cm, repartida', 200),
    ('Pared de bloques de arcilla frisada, e = 10 cm, por m² de pared', 180),
    ('Pared de bloques de arcilla frisada, e = 15 cm, por m² de pared', 230),
    ('Pared de bloques de arcilla frisada, e = 20 cm, por m² de pared', 280),
    ('Pared de bloques de concreto frisada, e = 10 cm, por m² de pared', 210),
    ('Pared de bloques de concreto frisada, e = 15 cm, por m² de pared', 270),
    ('Pared de bloques de concreto frisada, e = 20 cm, por m² de pared', 330),
    ('Pared de ladrillo macizo en obra limpia, e = 12 cm, por m² de pared', 220),
    ('Pared de ladrillo macizo frisada, e = 12 cm, por m² de pared', 280),
    ('Pared de yeso y cartón, por m² de pared', 40),
    ('Pared de vidrio con perfiles de aluminio, por m² de pared', 25),
    ('Revestimiento de cerámica en paredes, por m² de pared', 55),
    ('Impermeabilización con manto asfáltico', 5),
    ('Impermeabilización con manto asfáltico doble', 10),
    ('Mortero de pendiente, e media = 5 cm', 105),
    ('Concreto liviano de pendiente, e media = 8 cm', 95),
    ('Aislamiento de poliestireno, e = 5 cm', 2),
    ('Gravilla suelta, e = 5 cm', 80),
    ('Tierra vegetal húmeda, e = 10 cm', 180),
    ('Tejas de arcilla sin mortero', 60),
    ('Tejas de arcilla con mortero', 100),
    ('Tejas asfálticas', 15),
    ('Láminas de acero galvanizado', 5),
    ('Láminas de aluminio', 3),
    ('Láminas de fibrocemento', 15),
    ('Paneles de acero con aislamiento', 15),
    ('Láminas de policarbonato', 3),
    ('Vidrio laminado con perfiles', 35),
    ('Machihembrado de madera, e = 2 cm', 15),
    ('Correas de acero', 10),
    ('Correas de madera', 15),
    ('Agua, h = 10 cm', 100);

INSERT INTO BDVariable VALUES
    ('Viviendas', 175),
    ('Viviendas, pasillos y escaleras comunes', 300),
    ('Balcones y terrazas de viviendas', 300),
    ('Hoteles, habitaciones', 200),
    ('Hospitales, habitaciones', 200),
    ('Hospitales, quirófanos y laboratorios', 300),
    ('Celdas y dormitorios colectivos', 200),
    ('Oficinas', 250),
    ('Oficinas, archivos', 500),
    ('Aulas', 300),
    ('Laboratorios y talleres de enseñanza', 300),
    ('Bibliotecas, salas de lectura', 300),
    ('Bibliotecas, depósitos de libros', 1000),
    ('Vestuarios y salas sanitarias públicas', 250),
    ('Áreas públicas, pasillos y escaleras', 300),
    ('Escaleras de edificios públicos', 500),
    ('Salas de reunión con asientos fijos', 400),
    ('Salas de reunión sin asientos fijos', 500),
    ('Templos con asientos fijos', 400),
    ('Teatros, escenarios', 700),
    ('Gimnasios y salones de baile', 500),
    ('Gradas y tribunas', 500),
    ('Museos y salas de exposición', 400),
    ('Restaurantes y cafeterías', 400),
    ('Cocinas de restaurantes', 500),
    ('Comercios', 500),
    ('Mercados y supermercados', 600),
    ('Terminales de pasajeros', 500),
    ('Estacionamientos de vehículos livianos', 250),
    ('Rampas de vehículos livianos', 300),
    ('Talleres de vehículos livianos', 500),
    ('Industria liviana', 600),
    ('Industria pesada', 1200),
    ('Depósitos de mercancía liviana', 600),
    ('Depósitos', 1000),
    ('Cámaras frigoríficas', 1500),
    ('Lavanderías', 300),
    ('Salas de máquinas y de ascensores', 750),
    ('Salas de equipos eléctricos', 500),
    ('Azoteas con acceso', 150),
    ('Azoteas de uso público', 400),
    ('Azoteas con jardín', 300),
    ('Techos sin acceso', 100),
    ('Techos livianos inclinados', 50);

-- Analyses of usual floors and roofs.

INSERT INTO Generales (ID, Descripcion) VALUES
    (1, 'ENTREPISO DE VIVIENDA, LOSA NERVADA DE 25 cm'),
    (2, 'ENTREPISO DE VIVIENDA, LOSA MACIZA DE 15 cm'),
    (3, 'ENTREPISO DE OFICINAS, LOSA NERVADA DE 30 cm'),
    (4, 'ENTREPISO DE AULAS, LOSA NERVADA DE 30 cm'),
    (5, 'ESTACIONAMIENTO, LOSA MACIZA DE 20 cm'),
    (6, 'TECHO CON ACCESO, LOSA NERVADA DE 25 cm'),
    (7, 'TECHO SIN ACCESO, LOSA NERVADA DE 20 cm'),
    (8, 'TECHO DE TEJAS, LOSA NERVADA DE 20 cm');

INSERT INTO CargaPermanente VALUES
    (1, 1, 'Losa nervada con bloques de arcilla, h = 25 cm', 315),
    (1, 2, 'Pavimento de cerámica sobre mortero, e = 5 cm', 100),
    (1, 3, 'Friso de mortero, e = 1.5 cm', 30),
    (1, 4, 'Tabiquería de bloques de arcilla, e = 10 cm, repartida', 150),
    (2, 1, 'Losa maciza de concreto, e = 15 cm', 375),
    (2, 2, 'Pavimento de granito artificial, e = 5 cm', 110),
    (2, 3, 'Friso de mortero, e = 1.5 cm', 30),
    (2, 4, 'Tabiquería de bloques de arcilla, e = 10 cm, repartida', 150),
    (3, 1, 'Losa nervada con bloques de poliestireno, h = 30 cm', 255),
    (3, 2, 'Pavimento de porcelanato sobre mortero, e = 5 cm', 110),
    (3, 3, 'Cielo raso de fibra mineral con entramado', 10),
    (3, 4, 'Ductos de aire acondicionado', 15),
    (3, 5, 'Tabiquería liviana de yeso y cartón, repartida', 50),
    (4, 1, 'Losa nervada con bloques de arcilla, h = 30 cm', 360),
    (4, 2, 'Pavimento de granito artificial, e = 5 cm', 110),
    (4, 3, 'Friso de mortero, e = 1.5 cm', 30),
    (5, 1, 'Losa maciza de concreto, e = 20 cm', 500),
    (5, 2, 'Pavimento de mortero, e = 3 cm', 65),
    (6, 1, 'Losa nervada con bloques de arcilla, h = 25 cm', 315),
    (6, 2, 'Mortero de pendiente, e media = 5 cm', 105),
    (6, 3, 'Impermeabilización con manto asfáltico', 5),
    (6, 4, 'Friso de mortero, e = 1.5 cm', 30),
    (7, 1, 'Losa nervada con bloques de arcilla, h = 20 cm', 270),
    (7, 2, 'Mortero de pendiente, e media = 5 cm', 105),
    (7, 3, 'Impermeabilización con manto asfáltico doble', 10),
    (7, 4, 'Friso de yeso, e = 1.5 cm', 20),
    (8, 1, 'Losa nervada con bloques de poliestireno, h = 20 cm', 205),
    (8, 2, 'Impermeabilización con manto asfáltico', 5),
    (8, 3, 'Tejas de arcilla con mortero', 100),
    (8, 4, 'Friso de mortero, e = 1.5 cm', 30);

INSERT INTO CargaVariable VALUES
    (1, 'Viviendas', 175),
    (2, 'Viviendas', 175),
    (3, 'Oficinas', 250),
    (4, 'Aulas', 300),
    (5, 'Estacionamientos de vehículos livianos', 250),
    (6, 'Azoteas con acceso', 150),
    (7, 'Techos sin acceso', 100),
    (8, 'Techos livianos inclinados', 50);

-- Totals as a save of each analysis sets them.
UPDATE Generales SET
    CP = (SELECT TOTAL(Peso) FROM CargaPermanente WHERE CargaPermanente.ID = Generales.ID),
    CV = (SELECT Peso FROM CargaVariable WHERE CargaVariable.ID = Generales.ID);
UPDATE Generales SET Carga = CP + CV, REL = CV / CP;
