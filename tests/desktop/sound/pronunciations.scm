;; Lists how the voice says the words that have two pronunciations or that its lexicon does not
;; know: word, phones and sentence, with tabs between. A sentence is given by (list_words "...").

(voice_cmu_us_slt_arctic_hts)

;; Twins of which the lexicon knows one alone.
(set! other_twins
      '("bow" "bows" "closer" "invalid" "learned" "number" "polish" "recall" "refund" "resume"
        "row" "rows" "used" "wound"))
;; What every speaker gets right by the words around it.
(set! usual '(("a" ("ax")) ("does" ("d" "ah" "z")) ("to" ("t" "ax"))))

(define (phones_said word)
  (apply append
         (mapcar (lambda (syllable) (mapcar item.name (item.daughters syllable)))
                 (item.daughters (item.relation word 'SylStructure)))))

(define (phones_known word)
  (mapcar (lambda (entry) (apply append (mapcar car (car (cddr entry)))))
          (lex.lookup_all word)))

(define (all_alike all)
  (or (null (cdr all)) (and (equal? (car all) (cadr all)) (all_alike (cdr all)))))

(define (is_doubtful word said)
  (let ((known (phones_known word)))
    (and said
         (not (equal? (list said) (cdr (assoc_string word usual))))
         (or (null known) (not (all_alike known)) (member_string word other_twins)))))

(define (list_words sentence)
  (let ((utt (eval (list 'Utterance 'Text sentence))))
    (mapcar (lambda (module) (module utt))
            (list Initialize Text Token_POS Token POS Phrasify Word))
    (mapcar (lambda (item)
              (let ((word (downcase (item.name item))) (said (phones_said item)))
                (if (is_doubtful word said)
                    (format t "%s\t%l\t%s\n" word said sentence))))
            (utt.relation.items utt 'Word))))
