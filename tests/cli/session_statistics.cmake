# The statistics screens and the share texts in the session runner. Uses session.cmake's function.
set(WON_GAME "guess CRANE\\nguess TOWEL\\nguess WIELD\\n")
set(WON_GRID "⬜⬜⬜⬜🟨⭐️\n⬜⬜🟨🟨🟨⭐️\n🟩🟩🟩🟩🟩⭐️\n")

# The highlighted tile shares as black, and the language reaches the header and the score name.
session_cli_test(share_game
  "share game\\n${WON_GAME}highlight 0 4\\nshare game\\nhighlight 0 4\\noption EnglishTranslation N\\nshare game\\n"
  "^error: the game is not over\nTessarine 5L\nJanuary 10, 2024\n\n⬜⬜⬜⬜⬛⭐️\n⬜⬜🟨🟨🟨⭐️\n🟩🟩🟩🟩🟩⭐️\n\nBirdie ⭐️\n~~~\nTessarina 5L\n10 enero, 2024\n\n${WON_GRID}\nPajarito ⭐️\n~~~\n$")

session_cli_test(statistics_screen
  "${WON_GAME}statistics\\noption EnglishTranslation N\\nshare stats\\n"
  "^STATISTICS\nLatest score:\nJanuary 10, 2024 Birdie\nLatest available day:\nJanuary 9, 2024\n  Days Available: 15\n  Games Played: 1\n  Games Completed: 1\n  Average Score: 3.00\n  Win %: 100\n  Current Streak: 1\nJanuary 10, 2024 - January 10, 2024\n  Max Streak: 1\nJanuary 10, 2024 - January 10, 2024\nESTADÍSTICAS\nTessarina 5L\n\nJuegos completados:  1\nPuntuación media:  3.00\nGanar %:  100\nRacha actual:  1\n10 enero, 2024 - 10 enero, 2024\nracha máxima:  1\n10 enero, 2024 - 10 enero, 2024\n~~~\n$")

# A sort run opens the list once; any other command in between opens it afresh in date order.
session_cli_test(sort_and_list
  "${WON_GAME}date pick 1\\nguess WIELD\\nsort date-ascending\\nlist\\necho --\\nsort score-descending\\nsort date-ascending\\nlist\\nshare list\\n"
  "^January 9, 2024 Hole-in-one\nJanuary 10, 2024 Birdie\n--\nJanuary 9, 2024 Hole-in-one\nJanuary 10, 2024 Birdie\nJanuary 9, 2024,Hole-in-one,-3\nJanuary 10, 2024,Birdie,-1\n~~~\n$")

session_cli_test(distribution
  "${WON_GAME}distribution\\n"
  "^ 1 5 red 0\n 2 5 red 0\n 3 255 green 1\n 4 5 red 0\n 5 5 red 0\n 6 5 red 0\n$")

# Played but nothing finished: the list is empty, and sharing it gives nothing instead of a crash.
session_cli_test(empty_list_share
  "guess CRANE\\nlist\\nshare list\\nstatistics\\necho alive\\n"
  "^error: the list is empty: nothing to share\nSTATISTICS\n.*No games completed\n.*alive\n$")

session_cli_test(list_before_any_game
  "list\\n"
  "^error: the list button is off\n$")
