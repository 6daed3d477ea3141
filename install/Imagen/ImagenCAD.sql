-- A project of the drawing program without data: the tables that are exchanged with it. Both of its versions
-- have the same ones. Names compare without regard to case: NOCASE is the store's own, aware of Unicode.

CREATE TABLE Proyecto (
    Proyecto TEXT(120),
    Cliente TEXT(120),
    Propietario TEXT(120),
    Responsable TEXT(120),
    Comentario TEXT(255),
    Fecha TEXT(10),
    FC SMALLINT,
    FY SMALLINT,
    RLosas DOUBLE,
    RVigas DOUBLE,
    RColumnas DOUBLE,
    DVigas DOUBLE,
    NormaSolape BOOLEAN,
    RVigasR DOUBLE,
    RLosasR DOUBLE,
    OpcionDiametro SMALLINT,
    OpcionEspesor BOOLEAN,
    ValorDatum SMALLINT,
    NMAX SMALLINT,
    LMax SMALLINT
);

CREATE TABLE LosaDatos (
    Nombre TEXT(60) COLLATE NOCASE,
    NT SMALLINT,
    EscLosa SMALLINT,
    EscPlano SMALLINT,
    Bo DOUBLE,
    H DOUBLE,
    So DOUBLE,
    Loseta DOUBLE,
    OpcionMaciza BOOLEAN,
    Nervios SMALLINT,
    Ancho SMALLINT,
    Repeticiones SMALLINT,
    OK BOOLEAN,
    OpcionLosaF BOOLEAN
);

CREATE TABLE LosaTramos (
    Nombre TEXT(60) COLLATE NOCASE,
    Numero SMALLINT,
    LT DOUBLE
);

CREATE TABLE LosaNervios (
    Nombre TEXT(60) COLLATE NOCASE,
    Tramo SMALLINT,
    Opcion BOOLEAN,
    Diametro TEXT(10),
    Ancho DOUBLE
);

CREATE TABLE LosaEjes (
    Nombre TEXT(60) COLLATE NOCASE,
    Numero SMALLINT,
    Eje TEXT(20) COLLATE NOCASE,
    Apoyo BOOLEAN,
    HViga DOUBLE,
    Lizq DOUBLE,
    Lder DOUBLE,
    MczIzq DOUBLE,
    MczDer DOUBLE
);

CREATE TABLE LosaRefTeorico (
    Nombre TEXT(60) COLLATE NOCASE,
    Eje SMALLINT,
    AsEje DOUBLE,
    AsTramo DOUBLE
);

-- What the drawing program adds to a slab. Only the key is known: an export deletes the slab's rows.

CREATE TABLE LosaComputos (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaDefecto (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaIguales (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaNM (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaRefuerzoEjeInferior (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaRefuerzoEjeSuperior (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaRefuerzoTramoInferior (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaRefuerzoTramoSuperior (Nombre TEXT(60) COLLATE NOCASE);
CREATE TABLE LosaReparticion (Nombre TEXT(60) COLLATE NOCASE);
