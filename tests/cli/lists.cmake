# The shipped lists keep every rule, and the CLI finds the day's answer the way the game does.
add_test(NAME cli.lists.check COMMAND tessarine-cli lists check)
set_tests_properties(cli.lists.check PROPERTIES PASS_REGULAR_EXPRESSION "lists check: every rule holds")

# Regenerated lists change the first answer: read it again then.
file(STRINGS ${TESSARINE_RESOURCES_DIR}/5LetterAnswers.txt tessarine_first_five LIMIT_COUNT 1)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${TESSARINE_RESOURCES_DIR}/5LetterAnswers.txt)
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
set(tessarine_broken_rules
  first_rule_named "failed: 3LetterAnswers: 5 lines, fewer than the modulus 3654"
  answer_not_valid "'DOG' is not on 3LetterWords"
  not_a_key "'Q7Z' holds '7', which is no key"
  no_definition "'EEL' has no definition"
  round_broken "'CAT' comes back on day 2 before the pool of 4 is used up"
  operator_switched_off "'6X7=42' uses 'X', whose key this type switches off"
  leading_zero "'05\\+2=7' has a leading zero"
  validator_refuses "'18/0=0' is refused by the game's validator"
  primes_incomplete "3DigitPrimes: does not hold exactly the 143 primes"
  enye_is_one_tile "'AÑO' has 3 characters, not 4"
  missing_file "Could not load 4LetterAnswers.txt from bundle."
  operator_missing "'/' occurs in none of them")
list(LENGTH tessarine_broken_rules tessarine_count)
math(EXPR tessarine_last "${tessarine_count} - 1")
foreach(i RANGE 0 ${tessarine_last} 2)
  math(EXPR tessarine_j "${i} + 1")
  list(GET tessarine_broken_rules ${i} tessarine_name)
  list(GET tessarine_broken_rules ${tessarine_j} tessarine_regex)
  add_test(NAME cli.lists.broken.${tessarine_name} COMMAND tessarine-cli lists check --resources ${tessarine_broken})
  set_tests_properties(cli.lists.broken.${tessarine_name} PROPERTIES PASS_REGULAR_EXPRESSION "${tessarine_regex}")
endforeach()
