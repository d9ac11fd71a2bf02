-- The rows a new data store is delivered with. The roster and the awards start empty.
-- Hotkeys use the key codes of the draw screen: 32 space, 8 backspace, 46 delete, letters 65-90.
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (1, 'starKey', 32);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (2, 'stopKey', 32);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (3, 'clearKey', 8);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (4, 'cancelKey', 46);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (5, 'lstOutKey', 69);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (6, 'lstPrtKey', 80);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (7, 'playLuckKey', 76);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (8, 'soundKey', 77);
INSERT INTO KeyBoard (ID, KeyName, KeyAsc) VALUES (9, 'screenKey', 70);
-- The factory password 628413, as its 16-character digest; the guard starts switched off.
INSERT INTO UPassWord (ID, isPassWord, pwd) VALUES (1, 0, 'c6363a424fa0677a');
