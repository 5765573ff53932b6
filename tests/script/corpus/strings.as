// versions: 5-8
// The operators and functions of texts, escapes.
a = "apple"; b = "banana";
trace(a add b);      //= applebanana
trace(a eq "apple"); //= true
trace(a ne b);       //= true
trace(a lt b);       //= true
trace(a gt b);       //= false
trace(a le "apple"); //= true
trace(b ge a);       //= true
trace(b gt a);       //= true
trace(a + 1 + 2);    //= apple12
trace(1 + 2 + a);    //= 3apple
trace("a" + "b" + 1); //= ab1
trace("x" add 5 add "y"); //= x5y
trace(length(a));    //= 5
trace(substring(a, 2, 3)); //= ppl
trace(chr(65));      //= A
trace(ord("B"));     //= 66
trace(mblength("abc"));  //= 3
trace(mbsubstring("abcdef", 3, 2)); //= cd
trace(mbchr(67));    //= C
trace(mbord("D"));   //= 68
trace("tab\tend" eq "tab" add chr(9) add "end"); //= true
trace("q\"q" + 'p\'p');  //= q"qp'p
trace("\x41\u0042\103"); //= ABC
trace("back\\slash");    //= back\slash
trace(length("a" add newline add "b")); //= 3
trace(a.length);         //= 5
trace(a.charAt(1));      //= p
trace("lit".toUpperCase()); //= LIT
trace(String(12) + 1);   //= 121
trace(Number("12") + 1); //= 13
s = "x";
s += 1; s += "y";
trace(s);                //= x1y
