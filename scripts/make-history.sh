#!/usr/bin/env bash
# Writes stores holding a long history of finished games, for measuring the app's start over them.
#
#   scripts/make-history.sh DIR RECORDS        RECORDS: 18000 (five game types over 3,600 days) or
#                                              100000 (all 25 types with lists over 4,000 days)
#
# The last day is June 1, 2033 (day 4079): run the app with TESSARINE_TODAY=2033-06-01.
set -euo pipefail
dir="$1" records="$2"
case "$records" in
  18000) types=5 days=3600 ;;
  100000) types=25 days=4000 ;;
  *) echo "usage: $0 DIR 18000|100000" >&2; exit 2 ;;
esac
mkdir -p "$dir"
schema="CREATE TABLE entries (id INTEGER PRIMARY KEY AUTOINCREMENT, text TEXT); PRAGMA user_version=1;"
for store in TessarineSettingsData TessarineChallengeData TessarineBonusData; do
  rm -f "$dir/$store.sqlite" && sqlite3 "$dir/$store.sqlite" "$schema"
done
sqlite3 "$dir/TessarineSettingsData.sqlite" "INSERT INTO entries (text) VALUES ('0000'), ('CNNYYYYNY');"
rm -f "$dir/TessarineCoreDataModel.sqlite"
sqlite3 "$dir/TessarineCoreDataModel.sqlite" "$schema
CREATE TEMP TABLE types (n INTEGER, type TEXT, rows TEXT);
INSERT INTO types VALUES (0,'C','CRANESLATE'),(1,'A','CATDOGEEL'),(2,'B','TREESLAB'),(3,'G','101113'),
  (4,'M','9X4=362X8=16'),(5,'D','BRANCHSTOLEN'),(6,'E','ABSENCE'),(7,'F','ABSOLUTE'),(8,'W','CASA'),
  (9,'X','PERRO'),(10,'2','ABLE'),(11,'3','ABIDE'),(12,'H','123'),(13,'I','1009'),(14,'J','1234'),
  (15,'K','10007'),(16,'L','12345'),(17,'N','9+4=13'),(18,'O','9X4=36'),(19,'S','10+4=14'),
  (20,'T','10-4=06'),(21,'U','10X4=40'),(22,'P','10+40=50'),(23,'Q','10-40=30'),(24,'R','10X40=400');
BEGIN;
WITH RECURSIVE d(day) AS (SELECT 4079 - $days UNION ALL SELECT day + 1 FROM d WHERE day < 4078)
INSERT INTO entries (text)
  SELECT printf('%04d%s%d%-50s010000', day, type, CASE WHEN day % 7 = 3 THEN 0 ELSE 1 + day % 5 END, rows)
  FROM d CROSS JOIN types WHERE n < $types ORDER BY day, n;
COMMIT;"
