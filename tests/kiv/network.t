SPDX-License-Identifier: GPL-3.0-or-later

What the command asks of the network, with a server of the test's own for the rates
service and the list of releases.

  $ . "$TESTDIR/household.sh"
  $ url=$("$TESTDIR/serve")
  $ ask() { export KIV_RATES_SERVICE="$url/$1/" KIV_RELEASE_FEED="$url/$2"; }
  $ cat >rates.json <<END
  > {"timestamp": 1772366400, "base": "USD", "rates": {"EUR": 0.92, "JPY": 150, "USD": 1}}
  > END
  $ release() { printf '{"version": "%s", "date": "2026-03-01", "notes": "Faster.\\nSafer."}' $1; }

Rates are fetched and kept, and the service's key is shown to nobody:

  $ ask answer/rates.json none
  $ kiv rates fetch EUR JPY --verbose 2>log | grep fetched
  JPY       150   2026-03-01  fetched
  USD       1     2026-03-01  fetched
  EUR       0.92  2026-03-01  fetched
  $ key=$(sed -n 's/.*app_id=\([^&]*\).*/\1/p' asked)
  $ sed "s/$key/${#key} signs/" asked
  /answer/rates.json/latest.json?app_id=32 signs&symbols=JPY,EUR
  $ grep -c "$key" log
  0
  [1]
  $ kiv rates show --json | jq -c '.base, .fetchedAt, [.rates[].currency]'
  "USD"
  "2026-03-01T12:00:00Z"
  ["JPY","USD","EUR"]

They convert from now on:

  $ kiv configure set --preferred USD --usable USD --usable EUR >/dev/null
  $ kiv new >/dev/null
  $ kiv wage add Job '92.00 EUR' >/dev/null
  $ kiv rates set USD EUR=0.92 >/dev/null
  $ kiv dashboard --json | jq -c .totals.wages
  {"amount":"100.00","currency":"USD"}
  $ kiv rates fetch | grep -c fetched
  3
  $ echo rates fetch EUR JPY | kiv watch | grep JPY
  {"arguments":{"currencies":"(USD, EUR)","currentConversions":"USD at 2026-03-01T12:00:00Z (JPY 150, USD 1, EUR 0.92)"},"signal":"showExchangeRates"}
  {"arguments":{"conversions":"USD at 2026-03-01T12:00:00Z (JPY 150, USD 1, EUR 0.92)","currencies":"(JPY, EUR)"},"signal":"fetchedExchangeRates"}

A server that behaves badly, or tells what no rate can be, leaves the rates as they are:

  $ kiv rates set USD EUR=0.5 >/dev/null
  $ cp data/kiv/kiv/rates kept
  $ sed s/0.92/-1/ rates.json >other.json
  $ for how in html/rates.json refused/rates.json answer/other.json; do
  >   ask $how none
  >   kiv rates fetch EUR 2>&1 | sed 's/ set\. The .*/ set./'
  >   cmp data/kiv/kiv/rates kept
  > done | uniq -c
        3 kiv: The exchange rates could not be fetched; try again later, or set them with kiv rates set.

Newer releases are told, and what is absurd is no release:

  $ echo "[$(release 1.0.0), $(release 255.1.0), $(release 999.0.0)]" >list.json
  $ ask none answer/list.json
  $ kiv updates check
  There is a newer release: 255.1.0.
  $ kiv release-notes | head -4
  255.1.0 2026-03-01
  Faster.
  Safer.
  1.0.0 2026-03-01
  $ echo '[]' >none.json
  $ ask none answer/none.json
  $ kiv release-notes
  There are no releases.

The program tries to refresh its rates meanwhile, which fails and is no failure of the list:

  $ for list in '' "$(release 0.9.9)" "$(release 999.0.0)"; do
  >   echo "[$list]" >list.json
  >   rm asked
  >   ask missing late/list.json
  >   kiv updates check | grep -ci 'no newer release'
  >   wc -l <asked
  > done | tr '\n' ' '
  1 2 1 2 1 2  (no-eol)

A bad server tells no release:

  $ echo "[$(release 255.0.0)]" >list.json
  $ for how in html refused; do
  >   ask none $how/list.json
  >   kiv updates check
  >   kiv release-notes
  > done 2>&1 | sed 's/later\. The .*/later./' | uniq -c
        4 kiv: The releases could not be fetched; try again later.

Without a network one sentence says so, and plain HTTP goes nowhere but to this computer:

  $ kill $(cat server)
  $ export KIV_RATES_SERVICE=https://127.0.0.1:9/ KIV_RELEASE_FEED=https://127.0.0.1:9/
  $ kiv rates fetch EUR
  kiv: The exchange rates could not be fetched; try again later, or set them with kiv rates set. The transfer failed (ConnectionRefusedError).
  [1]
  $ kiv release-notes
  kiv: The releases could not be fetched; try again later. The transfer failed (ConnectionRefusedError).
  [1]
  $ KIV_RELEASE_FEED=http://releases.example/ kiv updates check
  kiv: The releases could not be fetched; try again later. Only HTTPS is allowed, and plain HTTP to the loopback address.
  [1]
  $ kiv bank add First >/dev/null
