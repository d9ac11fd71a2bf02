-- The data store: roster, awards, hotkeys and the management password.
-- Statements are separated by ";" at the end of a line. Applied when user_version is below the schema version.
CREATE TABLE IF NOT EXISTS UserList (
  ID INTEGER PRIMARY KEY,
  UserName TEXT NOT NULL DEFAULT '',
  UserPart TEXT DEFAULT '',
  UserPhoto TEXT DEFAULT '',
  DiffNum INTEGER DEFAULT 0,
  UserStatus INTEGER DEFAULT 0,
  JxID TEXT,
  UpdateTime TEXT
);
CREATE INDEX IF NOT EXISTS UserList_Status ON UserList(UserStatus);
CREATE INDEX IF NOT EXISTS UserList_NamePart ON UserList(UserName, UserPart);
CREATE INDEX IF NOT EXISTS UserList_DiffNum ON UserList(DiffNum);
-- Version 3: the roster manager pages by remark through this index.
CREATE INDEX IF NOT EXISTS UserList_Part ON UserList(UserPart);
-- Version 4: the winners are found through an index of only their rows, which every query about
-- wins reaches by saying "JxID > ''"; a whole-roster index on JxID or UpdateTime cost a million-row
-- import a second to build again and served nothing the winners' index does not.
DROP INDEX IF EXISTS UserList_JxID;
DROP INDEX IF EXISTS UserList_UpdateTime;
CREATE INDEX IF NOT EXISTS UserList_Winners ON UserList(JxID) WHERE JxID > '';
CREATE TABLE IF NOT EXISTS JPList (
  ID INTEGER PRIMARY KEY,
  JXName TEXT NOT NULL DEFAULT '',
  JXNum INTEGER NOT NULL DEFAULT 0,
  JXGroup INTEGER NOT NULL DEFAULT 1,
  JXHave INTEGER DEFAULT 0,
  JPName TEXT DEFAULT '',
  JPPhoto TEXT DEFAULT '',
  OrderNum INTEGER DEFAULT 0,
  isReLuck INTEGER DEFAULT 1,
  RangeType INTEGER DEFAULT 0,
  RangeNum1 INTEGER DEFAULT 0,
  RangeNum2 INTEGER DEFAULT 0
);
CREATE INDEX IF NOT EXISTS JPList_OrderNum ON JPList(OrderNum);
CREATE TABLE IF NOT EXISTS KeyBoard (
  ID INTEGER PRIMARY KEY,
  KeyName TEXT NOT NULL,
  KeyAsc INTEGER NOT NULL DEFAULT -1
);
CREATE TABLE IF NOT EXISTS UPassWord (
  ID INTEGER PRIMARY KEY,
  isPassWord INTEGER DEFAULT 0,
  pwd TEXT
);
