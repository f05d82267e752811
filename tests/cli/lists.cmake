# The shipped lists keep every rule, and the CLI finds the day's answer the way the game does.
add_test(NAME cli.lists.check COMMAND tessarine-cli lists check)
set_tests_properties(cli.lists.check PROPERTIES PASS_REGULAR_EXPRESSION "lists check: every rule holds")

file(STRINGS ${TESSARINE_RESOURCES_DIR}/5LetterAnswers.txt tessarine_first_five LIMIT_COUNT 1)
add_test(NAME cli.answer.first_day COMMAND tessarine-cli answer C 0)
set_tests_properties(cli.answer.first_day PROPERTIES PASS_REGULAR_EXPRESSION "^${tessarine_first_five}\n$")
add_test(NAME cli.answer.no_list COMMAND tessarine-cli answer Y 10)
set_tests_properties(cli.answer.no_list PROPERTIES PASS_REGULAR_EXPRESSION "^Tessarine\n$")
add_test(NAME cli.answer.missing_file
  COMMAND tessarine-cli answer A 0 --resources ${CMAKE_CURRENT_SOURCE_DIR}/data/lists-broken/absent)
set_tests_properties(cli.answer.missing_file PROPERTIES
  PASS_REGULAR_EXPRESSION "Fatal error: Could not load 3LetterWords.txt from bundle.")

# A folder that breaks one rule per file: each broken rule must be named.
set(tessarine_broken ${CMAKE_CURRENT_SOURCE_DIR}/data/lists-broken)
add_test(NAME cli.lists.broken_fails COMMAND tessarine-cli lists check --resources ${tessarine_broken})
set_tests_properties(cli.lists.broken_fails PROPERTIES WILL_FAIL TRUE)
foreach(rule
    "failed: 3LetterAnswers: 5 lines, fewer than the modulus 3654"
    "'DOG' is not on 3LetterWords"
    "'Q7Z' holds '7', which is no key"
    "'EEL' has no definition"
    "'CAT' comes back on day 2 before the pool of 4 is used up"
    "'6X7=42' uses 'X', whose key this type switches off"
    "'05\\+2=7' has a leading zero"
    "'18/0=0' is refused by the game's validator"
    "3DigitPrimes: does not hold exactly the 143 primes"
    "'AÑO' has 3 characters, not 4"
    "Could not load 4LetterAnswers.txt from bundle."
    "'/' occurs in none of them")
  string(MAKE_C_IDENTIFIER "${rule}" tessarine_rule_id)
  add_test(NAME cli.lists.broken.${tessarine_rule_id}
    COMMAND tessarine-cli lists check --resources ${tessarine_broken})
  set_tests_properties(cli.lists.broken.${tessarine_rule_id} PROPERTIES PASS_REGULAR_EXPRESSION "${rule}")
endforeach()
