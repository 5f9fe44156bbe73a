-- Deleting an account also forgets which calendar events its owner imported: the keys name no
-- event outside this table, but they are the user's data all the same. The function is the one of
-- 0008_account_deletion.sql with that one table added.

create or replace function app.delete_account()
    returns table (bucket_id text, version text)
    language plpgsql
    volatile
    security definer
    set search_path = ''
as $$
declare
    uid uuid := auth.uid();
begin
    if uid is null then
        raise exception 'delete_account: not signed in' using errcode = '42501';
    end if;
    -- Two deletions of the same account run one after the other; the second finds no account.
    perform 1 from auth.users u where u.id = uid for update;
    if not found then
        raise exception 'delete_account: there is no account %', uid using errcode = 'P0002';
    end if;

    -- A project the user made inside another person's team, in which teammates have worked, is
    -- the team's as much as the user's: it passes to the team's owner, so that the teammates'
    -- tasks and time are not deleted with it. Likewise a task of the user that carries a
    -- teammate's time passes to its project's owner. The user's own tasks and time in them still go.
    update public.projects p
    set user_id = t.owner_id
    from public.teams t
    where p.user_id = uid
      and p.team_id = t.id
      and t.owner_id <> uid
      and (exists (select 1 from public.tasks k where k.project_id = p.id and k.user_id <> uid)
           or exists (select 1 from public.time_entries e where e.project_id = p.id and e.user_id <> uid));
    update public.tasks k
    set user_id = p.user_id
    from public.projects p
    where k.user_id = uid
      and k.project_id = p.id
      and p.user_id <> uid
      and exists (select 1 from public.time_entries e where e.task_id = k.id and e.user_id <> uid);

    -- Teams the user owns go with all their memberships; what teammates own in them stays theirs,
    -- outside any team (the foreign keys set team_id to null).
    delete from public.teams t where t.owner_id = uid;
    delete from public.team_members m where m.user_id = uid;
    -- Lines and the links to time entries and trips go with their invoice.
    delete from public.invoices i where i.user_id = uid;
    delete from public.invoice_templates it where it.user_id = uid;
    delete from public.trips tr where tr.user_id = uid;
    delete from public.calendar_imports ci where ci.user_id = uid;
    delete from public.time_entries e where e.user_id = uid;
    delete from public.tasks k where k.user_id = uid;
    delete from public.projects p where p.user_id = uid;
    delete from public.clients c where c.user_id = uid;
    delete from app.invoice_counters ic where ic.user_id = uid;

    -- A bucket holds everyone's objects; it merely stops naming her as its owner.
    update storage.buckets b set owner = null where b.owner = uid;
    return query
        delete from storage.objects o
        where o.owner = uid or (storage.foldername(o.name))[1] = uid::text
        returning o.bucket_id, o.version;

    -- Takes the profile and the authentication service's rows (identities, sessions, refresh
    -- tokens) with it through their ON DELETE CASCADE.
    delete from auth.users u where u.id = uid;
end
$$;
revoke all on function app.delete_account() from public;
grant execute on function app.delete_account() to authenticated;
