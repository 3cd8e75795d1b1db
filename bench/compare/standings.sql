-- High Individual Overall and High Team Overall of a contest, tie-breakers included. The tables are
-- imported from tab-separated files; :memory: and indexes by number are SQLite at its best.
CREATE TABLE classes(class INTEGER PRIMARY KEY, has_reasons INTEGER);
CREATE TABLE contestants(number INTEGER PRIMARY KEY, name TEXT);
CREATE TABLE members(number INTEGER PRIMARY KEY, team TEXT, slot INTEGER);
CREATE TABLE scores(number INTEGER, class INTEGER, letter TEXT,
                    placing INTEGER, reasons INTEGER, questions INTEGER);
.mode tabs
.import classes.tsv classes
.import contestants.tsv contestants
.import members.tsv members
.import scores.tsv scores

CREATE TEMP TABLE totals AS
  SELECT number,
         SUM(placing + reasons + questions) AS score,
         SUM(reasons * has_reasons) AS reasons,
         SUM(placing * has_reasons) AS placings
  FROM scores JOIN classes USING (class)
  GROUP BY number;

.mode csv
SELECT name, score, totals.reasons, placings, team
FROM totals JOIN contestants USING (number) LEFT JOIN members USING (number)
WHERE name <> ''
ORDER BY score DESC, totals.reasons DESC, placings
LIMIT 21;

-- The best three of the four regular members count.
WITH ranked AS (
  SELECT team, score, reasons, placings,
         ROW_NUMBER() OVER (PARTITION BY team ORDER BY score DESC, slot) AS place
  FROM members JOIN totals USING (number)
  WHERE slot < 4)
SELECT team, SUM(score) AS score, SUM(reasons) AS reasons, SUM(placings) AS placings
FROM ranked
WHERE place <= 3
GROUP BY team
ORDER BY score DESC, reasons DESC, placings
LIMIT 21;
