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

INSERT INTO BDPermanente VALUES
    ('Losa maciza de concreto, e = 10 cm', 250),
    ('Losa maciza de concreto, e = 15 cm', 375),
    ('Losa maciza de concreto, e = 20 cm', 500),
    ('Losa nervada con bloques de arcilla, h = 20 cm', 270),
    ('Losa nervada con bloques de arcilla, h = 25 cm', 315),
    ('Losa nervada con bloques de arcilla, h = 30 cm', 360),
    ('Pavimento de granito artificial, e = 5 cm', 100),
    ('Pavimento de cerámica sobre mortero, e = 5 cm', 100),
    ('Pavimento de mortero, e = 3 cm', 66),
    ('Friso de mortero, e = 1.5 cm', 30),
    ('Cielo raso de yeso con entramado', 20),
    ('Tabiquería de bloques de arcilla, e = 10 cm', 150),
    ('Tabiquería de bloques de arcilla, e = 15 cm', 200),
    ('Impermeabilización con manto asfáltico', 5),
    ('Tejas de arcilla con mortero', 100);

INSERT INTO BDVariable VALUES
    ('Viviendas', 175),
    ('Oficinas', 250),
    ('Aulas', 300),
    ('Áreas públicas, pasillos y escaleras', 300),
    ('Escaleras de edificios públicos', 500),
    ('Salas de reunión con asientos fijos', 400),
    ('Comercios', 500),
    ('Estacionamientos de vehículos livianos', 250),
    ('Depósitos', 1000),
    ('Techos sin acceso', 100);
